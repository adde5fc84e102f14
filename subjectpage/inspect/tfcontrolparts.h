#pragma once

#include <QStringList>

class QToolButton;
class QWidget;

/// One part of a filter control, of whatever toolkit class: how it is read and set.
namespace TFControlParts {

/// Whether the user can set or press \a widget; labels and ornaments are no parts.
bool isPart(const QWidget *widget);

QString text(const QWidget *part);
QStringList entries(const QWidget *part);
QStringList checked(const QWidget *part);

/// Why \a part does not take \a text; empty where it does.
QString refusal(const QWidget *part, const QString &text);
/// Sets \a part and tells those that listen, as after a user's choice.
void set(QWidget *part, const QString &text);

/// Whether the entries of the button's menu can be ticked.
bool hasTicks(const QToolButton *button);
/// Ticks the entries \a wanted and no others.
void setTicks(QToolButton *button, const QStringList &wanted);

} // namespace TFControlParts
