#pragma once

class QJsonArray;
class TFBaseView;
class TFFilterWidget;

/// A filter bar as data.
namespace TFFilterDescription {

/// What the controls report, one object a reporting control.
QJsonArray reports(const TFFilterWidget &bar);
/// What the user sees of the controls, one object a control, buttons too.
QJsonArray controls(const TFFilterWidget &bar);
/// Parameters and conditions of the last request of \a view.
QJsonArray parameters(const TFBaseView &view);
QJsonArray conditions(const TFBaseView &view);

} // namespace TFFilterDescription
