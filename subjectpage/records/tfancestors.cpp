#include "tfancestors.h"

#include <cstring>

QObject *TFAncestors::find(const QObject *start, const char *className)
{
    QObject *object = start ? start->parent() : nullptr;
    while (object && std::strcmp(object->metaObject()->className(), className) != 0)
        object = object->parent();
    return object;
}
