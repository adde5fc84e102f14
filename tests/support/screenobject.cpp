#include "screenobject.h"

ScreenObject::ScreenObject(QObject *parent)
    : QObject(parent)
{}

void ScreenObject::setArgs(const QVariantMap &args)
{
    m_args = args;
    emit argsChanged(args);
}

void ScreenObject::getArgsDlg(QString current, QString &chosen)
{
    askedWith = current;
    chosen = choice;
}
