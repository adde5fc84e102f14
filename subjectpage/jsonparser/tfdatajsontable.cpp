#include "tfdatajsontable.h"

#include "tftablenames.h"

#include <QJsonArray>

TFDataJsonTable::TFDataJsonTable(QObject *parent)
    : TFBaseJsonTable(parent)
    , m_rows(std::make_shared<TFRawRows>())
{}

void TFDataJsonTable::initWith(const QJsonValue &value)
{
    m_rows = TFRawRows::fromJson(value.toArray());
}

int TFDataJsonTable::tableType() const
{
    return TFTableId::Data;
}

QList<QVariantMap> TFDataJsonTable::rows() const
{
    QList<QVariantMap> rows;
    rows.reserve(rowCount());
    for (int row = 0; row < rowCount(); ++row)
        rows.append(m_rows->map(row));
    return rows;
}

void TFDataJsonTable::setRows(const QList<QVariantMap> &rows)
{
    m_rows = TFRawRows::fromMaps(rows);
}

void TFDataJsonTable::clear()
{
    m_rows = std::make_shared<TFRawRows>();
}
