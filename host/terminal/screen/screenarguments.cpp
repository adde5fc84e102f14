#include "screenarguments.h"

#include "argumentsdialog.h"

#include <QApplication>

namespace {
QVariantMap difference(const QVariantMap &before, const QVariantMap &after)
{
    QVariantMap changed;
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!after.contains(it.key()))
            changed.insert(it.key(), QVariant());
    }
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (!before.contains(it.key()) || before.value(it.key()) != it.value())
            changed.insert(it.key(), it.value());
    }
    return changed;
}

/// A component may ask from a modal dialog of its own.
QWidget *dialogParent(QWidget *window)
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : window;
}
} // namespace

ScreenArguments::ScreenArguments(QWidget *window)
    : m_window(window)
{}

void ScreenArguments::setValues(const QVariantMap &values)
{
    const QVariantMap changedOnes = difference(m_values, values);
    m_values = values;
    if (!changedOnes.isEmpty())
        emit changed(changedOnes);
}

void ScreenArguments::setValue(const QString &name, const QVariant &value)
{
    QVariantMap values = m_values;
    values.insert(name, value);
    setValues(values);
}

void ScreenArguments::edit()
{
    ArgumentsDialog dialog(m_values, proposals(), dialogParent(m_window));
    run(&dialog);
}

QString ScreenArguments::choose(const QString &currentKey)
{
    ArgumentsDialog dialog(m_values, proposals(), dialogParent(m_window));
    dialog.letChoose(currentKey);
    return run(&dialog) ? dialog.chosenKey() : QString();
}

bool ScreenArguments::run(ArgumentsDialog *dialog)
{
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (accepted)
        setValues(dialog->args());
    return accepted;
}
