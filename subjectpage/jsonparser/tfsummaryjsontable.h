#pragma once

#include "records/headerfieldinfo.h"
#include "tfbasejsontable.h"

#include <QList>
#include <QVariant>

class TFHeaderFieldConfigData;

/// What the service says about a query as a whole.
class TFSummaryJsonTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    struct Item
    {
        QString name;
        QVariant value; ///< null for a column list
    };

    using TFBaseJsonTable::TFBaseJsonTable;

    /// May be called again for a later page: figures and columns that the new part lacks stay.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    int rowCount() const { return m_rowCount; }
    int pageIndex() const { return m_pageIndex; }
    int pageSize() const { return m_pageSize; }
    QList<Item> items() const { return m_items; }

    /// Columns of a cross table, or null. Owned by this table, replaced when a new list comes.
    TFHeaderFieldConfigData *columnTable() const { return m_columnTable; }
    /// The first column of that field name, or an empty record.
    HeaderFieldInfo headerFieldInfo(const QString &fieldName) const;

private:
    QVariant readValue(const QString &name, const QJsonValue &value);

    QList<Item> m_items;
    int m_rowCount = 0;
    int m_pageIndex = 0;
    int m_pageSize = 200;
    TFHeaderFieldConfigData *m_columnTable = nullptr;
};
