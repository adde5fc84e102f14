#pragma once

#include "documentplace.h"

namespace service {

/// The keys that each object of a view document may have, with their types and fallbacks.
namespace rules {

const MemberRules &view();
const MemberRules &properties();
const MemberRules &column();
const MemberRules &filter();
const MemberRules &childView();
const MemberRules &chart();
const MemberRules &chartSeries();
const MemberRules &cross();

} // namespace rules
} // namespace service
