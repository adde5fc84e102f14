#pragma once

#include <QtGlobal>

#include <functional>

class QJsonValue;
class QWidget;
class TFBaseView;

/// Makes views by their kind (TFBaseView::ViewKind).
namespace TFViewFactory {

/// Makes an empty view for \a parent, which may be null and then leaves it to the caller.
using Maker = std::function<TFBaseView *(QWidget *parent, bool isMain)>;

/// Sets the maker of \a kind; those for tables and charts are there from the start.
void registerKind(int kind, Maker maker);

/// An empty view, or null for a kind without a maker.
TFBaseView *make(int kind, QWidget *parent, bool isMain);

/// A view with its identifier that has read \a config, or null for a kind without a maker. The signals of a
/// table are blocked for good: it announces no further views, and its clicks go nowhere.
TFBaseView *create(int kind, qint64 viewId, const QJsonValue &config, QWidget *parent, bool isMain);

} // namespace TFViewFactory
