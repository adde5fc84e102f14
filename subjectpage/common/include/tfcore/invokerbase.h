#pragma once

#include "tfcoreglobal.h"

#include <QByteArray>
#include <QObject>
#include <QVector>

class QMetaMethod;

/// Calls a method of an object by its name, with arguments that are bound beforehand.
///
/// \code
/// QString key = "A", chosen;
/// InvokerBase invoker;
/// invoker.bind("QString", &key).bind("QString", &chosen);
/// invoker.invoke(screen, "getArgsDlg");
/// \endcode
/// The arguments are not copied: they must outlive the call, and a method that takes a reference may write to
/// them.
class TFCORE_EXPORT InvokerBase
{
public:
    InvokerBase();
    ~InvokerBase();

    /// Appends an argument of the type named \a typeName; a reference needs no "&". Ten arguments at most;
    /// more are refused with a warning.
    InvokerBase &bind(const char *typeName, void *argument);

    /// Calls \a method directly. Returns false if \a object is null, and with a warning if it has no
    /// invokable method of that name for the bound arguments.
    bool invoke(QObject *object, const char *method);

private:
    bool accepts(const QMetaMethod &candidate, const char *method) const;

    struct Argument
    {
        QByteArray typeName;
        void *data;
    };
    QVector<Argument> m_arguments;
};
