#include "screenobject.h"

#include "screenarguments.h"

ScreenObject::ScreenObject(ScreenArguments *arguments, QObject *parent)
    : QObject(parent)
    , m_arguments(arguments)
{
    connect(arguments, &ScreenArguments::changed, this, &ScreenObject::argsChanged);
}

QVariantMap ScreenObject::args() const
{
    return m_arguments->values();
}

void ScreenObject::getArgsDlg(QString currentKey, QString &chosenKey)
{
    const QString chosen = m_arguments->choose(currentKey);
    if (!chosen.isEmpty())
        chosenKey = chosen;
}

void ScreenObject::settingsChanged()
{
    emit componentChanged();
}
