#pragma once

#include "records/headerfieldinfo.h"

class QJsonObject;

/// Reads the description of one column from JSON.
namespace TFHeaderFieldKeys {

/// All keys; they begin in upper or in lower case. Keys that are absent give 0, false or empty.
HeaderFieldInfo read(const QJsonObject &object, bool upperCaseKeys);

/// The keys of a field's display settings ("ots_cfg"): the upper-case ones but for band, display status and
/// statistics.
HeaderFieldInfo readDisplaySettings(const QJsonObject &object);

} // namespace TFHeaderFieldKeys
