#pragma once

#include <QJsonValue>
#include <QObject>

/// Base of the tables of a configuration document.
///
/// A table reads its part of the document, keeps it in typed form and answers questions about it. A part of a
/// wrong type leaves the table empty; nothing is reported to the caller. User-interface thread only.
class TFBaseJsonTable : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Discards what the table held and fills it from its part of the document.
    virtual void initWith(const QJsonValue &value) = 0;
    /// The table's id, one of TFTableId.
    virtual int tableType() const = 0;

signals:
    /// A child view was announced; emitted while the table is being read.
    void sigJsonData(qint64 obj_vw_id, QString caption);
};
