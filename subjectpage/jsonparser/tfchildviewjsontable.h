#pragma once

#include "tfbasejsontable.h"

#include <QList>
#include <QString>

/// The views that follow a selected row of the main table.
class TFChildViewJsonTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    struct Child
    {
        QString propertyParams;
        qint64 objVwId = 0; ///< 0 where the document gives no number; such a child is not announced
        QString caption;
    };

    using TFBaseJsonTable::TFBaseJsonTable;

    /// Emits sigJsonData() for each child as it is read.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    /// Parameters of the first child of that identifier, or an empty text.
    QString propertyParams(qint64 objVwId) const;
    QList<Child> children() const { return m_children; }

private:
    QList<Child> m_children;
};
