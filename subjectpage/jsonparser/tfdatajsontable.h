#pragma once

#include "tfbasejsontable.h"

#include <QJsonArray>
#include <QList>
#include <QVariantMap>

/// The raw rows of a page: one map from field name to value each, in document order.
///
/// Keeps the JSON array as it came (shared, not copied) and makes maps only for who asks for them.
class TFDataJsonTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    using TFBaseJsonTable::TFBaseJsonTable;

    /// An element that is not an object is a row without keys.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    int rowCount() const;
    /// A copy of all rows as maps, made at each call.
    QList<QVariantMap> rows() const;
    /// Replaces the rows.
    void setRows(const QList<QVariantMap> &rows);
    void clear();

    /// The rows as they came; empty after setRows().
    const QJsonArray &rowArray() const { return m_array; }
    /// The rows of setRows(); empty after initWith().
    const QList<QVariantMap> &rowMaps() const { return m_maps; }

private:
    QJsonArray m_array;
    QList<QVariantMap> m_maps;
};
