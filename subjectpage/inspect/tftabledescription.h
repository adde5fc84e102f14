#pragma once

class QJsonArray;
class QJsonObject;
class QString;
class TFSubjectTableWidget;

/// A table view's own part of a description.
namespace TFTableDescription {

/// Bands, columns, rows, groups, paging of \a table.
QJsonObject describe(const TFSubjectTableWidget &table);
/// "noData", "waiting", "loading" or "shown".
QString state(const TFSubjectTableWidget &table);

} // namespace TFTableDescription
