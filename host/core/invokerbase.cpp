#include "tfcore/invokerbase.h"

#include "tfcorelog.h"

#include <QMetaMethod>

#include <array>

namespace {
constexpr int MaxArguments = 10;

/// A text bound as "QString" fits a method that takes it by value or by any reference.
QByteArray plainType(const QByteArray &typeName)
{
    QByteArray type = QMetaObject::normalizedType(typeName.constData());
    if (type.endsWith('&'))
        type.chop(1);
    return type;
}
} // namespace

InvokerBase::InvokerBase() = default;

InvokerBase::~InvokerBase() = default;

InvokerBase &InvokerBase::bind(const char *typeName, void *argument)
{
    if (m_arguments.size() == MaxArguments)
        qCWarning(lcCore) << "more than" << MaxArguments << "arguments bound, dropped:" << typeName;
    else
        m_arguments.append({plainType(typeName), argument});
    return *this;
}

bool InvokerBase::accepts(const QMetaMethod &candidate, const char *method) const
{
    if (candidate.name() != method || candidate.parameterCount() != m_arguments.size())
        return false;
    const QList<QByteArray> types = candidate.parameterTypes();
    for (int i = 0; i < types.size(); ++i) {
        if (plainType(types.at(i)) != m_arguments.at(i).typeName)
            return false;
    }
    return true;
}

bool InvokerBase::invoke(QObject *object, const char *method)
{
    if (!object)
        return false;
    std::array<QGenericArgument, MaxArguments> args;
    for (int i = 0; i < m_arguments.size(); ++i)
        args[i] = QGenericArgument(m_arguments.at(i).typeName.constData(), m_arguments.at(i).data);

    const QMetaObject *meta = object->metaObject();
    // From the end, so that a derived class's method hides that of its base.
    for (int i = meta->methodCount() - 1; i >= 0; --i) {
        const QMetaMethod candidate = meta->method(i);
        if (accepts(candidate, method))
            return candidate.invoke(object, Qt::DirectConnection, args[0], args[1], args[2], args[3], args[4],
                                    args[5], args[6], args[7], args[8], args[9]);
    }
    qCWarning(lcCore) << meta->className() << "has no method" << method << "for the bound arguments";
    return false;
}
