#pragma once

#include <QList>
#include <QPair>
#include <QStringList>

class QJsonValue;
class QToolButton;
class QWidget;
class TFBaseFilterWidget;

/// What the user sees of a control of the filter bar, and his hand on it: the boxes, lines and buttons that
/// it is made of, whatever its class.
class TFControlSurface
{
public:
    explicit TFControlSurface(TFBaseFilterWidget *control);

    /// Texts of the parts from left to right, joined by blanks.
    QString text() const;
    /// Entries of its lists and menus, part after part.
    QStringList entries() const;
    /// The entries that are ticked, "All" included.
    QStringList checked() const;

    /// Sets the parts as a user does.
    ///
    /// A single part takes a text or a number, one with ticks the list of those to be ticked. Several parts
    /// take a list with a text or number each, or the texts joined by blanks. Returns false, with the reason,
    /// where the value does not fit; nothing is changed then.
    bool setValue(const QJsonValue &value, QString *reason);

    /// Presses the control's button; false where it has none or it can't be pressed.
    bool press();

private:
    /// The parts with the texts that they are to get; empty, with the reason, where the value does not fit.
    QList<QPair<QWidget *, QString>> assigned(const QJsonValue &value, QString *reason) const;
    bool setTicks(QToolButton *button, const QJsonValue &value, QString *reason);

    TFBaseFilterWidget *m_control;
    QList<QWidget *> m_parts;
};
