#pragma once

class QJsonArray;
class QJsonObject;
class QString;
class TFBaseView;
class TFRightContainer;

/// The views of a page as data.
namespace TFViewDescription {

/// The main view on top, or null where there is none.
QJsonValue mainView(const TFRightContainer &container);
/// The child views, in the order of their tabs.
QJsonArray childViews(const TFRightContainer &container);
/// State of the main view; "waiting" without one.
QString state(const TFRightContainer &container);

} // namespace TFViewDescription
