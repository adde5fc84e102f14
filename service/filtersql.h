#pragma once

#include "columns.h"
#include "filterparser.h"
#include "result.h"
#include "servicelimits.h"
#include "sqltemplate.h"

#include <QJsonObject>

namespace service {

/// The SQL condition of a filter over \a columns, its values bound; an empty text for an empty filter.
///
/// Every fault is a refusal with status 400 whose message tells the place: `filter: position 7: ...` or
/// `filterParams.F_0: ...`. Parentheses nest at most \a depth deep.
Result<BoundSql> filterCondition(const QString &filter, const QJsonObject &parameters, const Columns &columns,
                                 int depth = Limits().filterDepth);

} // namespace service
