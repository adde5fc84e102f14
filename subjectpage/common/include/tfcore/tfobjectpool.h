#pragma once

#include "tfcoreglobal.h"

#include <QList>
#include <QObject>

/// The host's pool of objects that plug-ins registered; not owned.
///
/// A page type is registered as an object with the properties \c id ("TFApp.SUBJECT") and \c metaId, the
/// meta-type id of a page class: a class whose first base is QWidget and that implements ITFAbstractPage. The
/// middle of \c id is free, its end is the plug-in's category in capitals. User-interface thread only.
class TFCORE_EXPORT TFObjectPool : public QObject
{
    Q_OBJECT

public:
    static TFObjectPool *instance();

    void addObject(QObject *object);
    void removeObject(QObject *object);
    QList<QObject *> objects() const;
    /// The first object whose property \c id equals \a id, or null.
    QObject *find(const QString &id) const;

signals:
    void objectAdded(QObject *object);

private:
    QList<QObject *> m_objects;
};
