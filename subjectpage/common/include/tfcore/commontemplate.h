#pragma once

#include <QLoggingCategory>
#include <QObject>

/// Messages of the window templates, category "subject.window".
inline const QLoggingCategory &lcWindow()
{
    static const QLoggingCategory category("subject.window", QtInfoMsg);
    return category;
}

/// Small look-ups that window code repeats.
class CommonTemplate
{
public:
    /// The descendant of \a parent named \a objectName with the type \a T, or null with a warning.
    template <typename T> static T *get(const QObject *parent, const QString &objectName)
    {
        T *child = parent->findChild<T *>(objectName);
        if (!child) {
            qCWarning(lcWindow).nospace().noquote()
                << "not found " << objectName << " with typename:" << T::staticMetaObject.className();
        }
        return child;
    }
};
