#pragma once

#include "records/tfrawrows.h"
#include "tfbasejsontable.h"

#include <QList>
#include <QVariantMap>

/// The raw rows of a page: one map from field name to value each, in document order.
///
/// Keeps them in compact form, shared with what is built from them, and makes maps only for who asks.
class TFDataJsonTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    explicit TFDataJsonTable(QObject *parent = nullptr);

    /// An element that is not an object is a row without keys.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    int rowCount() const { return m_rows->rowCount(); }
    /// A copy of all rows as maps, made at each call.
    QList<QVariantMap> rows() const;
    /// Replaces the rows.
    void setRows(const QList<QVariantMap> &rows);
    void setRows(const TFRawRowsPtr &rows) { m_rows = rows; }
    void clear();

    /// Never null.
    const TFRawRowsPtr &rawRows() const { return m_rows; }

private:
    TFRawRowsPtr m_rows;
};
