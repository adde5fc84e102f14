#include "tfcore/tfobjectpool.h"

#include <QVariant>

namespace {
const char IdProperty[] = "id";
}

TFObjectPool *TFObjectPool::instance()
{
    static TFObjectPool pool;
    return &pool;
}

void TFObjectPool::addObject(QObject *object)
{
    if (!object || m_objects.contains(object))
        return;
    m_objects.append(object);
    connect(object, &QObject::destroyed, this, &TFObjectPool::removeObject);
    emit objectAdded(object);
}

void TFObjectPool::removeObject(QObject *object)
{
    if (m_objects.removeOne(object))
        object->disconnect(this);
}

QList<QObject *> TFObjectPool::objects() const
{
    return m_objects;
}

QObject *TFObjectPool::find(const QString &id) const
{
    for (QObject *object : m_objects) {
        if (object->property(IdProperty).toString() == id)
            return object;
    }
    return nullptr;
}
