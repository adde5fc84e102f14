#pragma once

class QJsonObject;
class QString;
class TFRightContainer;

/// The user's hand on the views: all but tab() on the main one. Each step returns false, with the reason,
/// where it can't be done. Rows and columns are numbered as a description lists them, from 0.
namespace TFViewSteps {

/// Clicks the row "index".
bool row(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Follows the link in the cell "row", "column".
bool link(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Clicks the caption of "column".
bool sort(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Goes to the page "number", counted from 1.
bool page(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Chooses "size" rows a page.
bool pageSize(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Sets the control of the field "field" or with the caption "caption" to "value".
bool filter(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Chooses the unit "text".
bool unit(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Presses the query button.
bool query(TFRightContainer &views, const QJsonObject &step, QString *reason);
/// Brings the child view "index" to the front.
bool tab(TFRightContainer &views, const QJsonObject &step, QString *reason);

} // namespace TFViewSteps
