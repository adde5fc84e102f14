#pragma once

#include "tfcoreglobal.h"

#include <QByteArray>
#include <QGenericArgument>
#include <QObject>
#include <QVector>

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

    /// Appends an argument of the type named \a typeName. Ten arguments at most; more are refused with a
    /// warning.
    InvokerBase &bind(const char *typeName, void *argument);

    /// Calls \a method directly. Returns false if \a object is null or has no such invokable method.
    bool invoke(QObject *object, const char *method);

private:
    struct Argument
    {
        QByteArray typeName;
        void *data;
    };
    QVector<Argument> m_arguments;
};
