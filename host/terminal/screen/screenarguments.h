#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>

class ArgumentsDialog;
class QWidget;

/// The global arguments that the components of one composite screen share, by their names.
class ScreenArguments : public QObject
{
    Q_OBJECT

public:
    /// \a window is the widget that the dialogs belong to; it must outlive the object.
    explicit ScreenArguments(QWidget *window);

    QVariantMap values() const { return m_values; }
    /// Takes all arguments; without a difference nothing happens.
    void setValues(const QVariantMap &values);
    void setValue(const QString &name, const QVariant &value);
    /// Values that the editor offers: the views that the screen's components show.
    void setProposals(std::function<QStringList()> proposals) { m_proposals = std::move(proposals); }

    /// Has the user edit the arguments.
    void edit();
    /// Has the user choose one of the arguments, at first \a currentKey, or make one. Returns its name, or an
    /// empty text when he cancels.
    QString choose(const QString &currentKey);

signals:
    /// \a difference holds the arguments that are new or have another value, and with an invalid variant
    /// those that are gone. values() has the new ones already.
    void changed(const QVariantMap &difference);

private:
    bool run(ArgumentsDialog *dialog);
    QStringList proposals() const { return m_proposals ? m_proposals() : QStringList(); }

    QWidget *m_window;
    QVariantMap m_values;
    std::function<QStringList()> m_proposals;
};
