#include "tfdatajsontable.h"

#include "tftablenames.h"

void TFDataJsonTable::initWith(const QJsonValue &value)
{
    m_maps.clear();
    m_array = value.toArray();
}

int TFDataJsonTable::tableType() const
{
    return TFTableId::Data;
}

int TFDataJsonTable::rowCount() const
{
    return m_array.size() + m_maps.size();
}

QList<QVariantMap> TFDataJsonTable::rows() const
{
    if (m_array.isEmpty())
        return m_maps;
    QList<QVariantMap> rows;
    rows.reserve(m_array.size());
    const QVariantList elements = m_array.toVariantList();
    for (const QVariant &element : elements)
        rows.append(element.toMap());
    return rows;
}

void TFDataJsonTable::setRows(const QList<QVariantMap> &rows)
{
    m_array = QJsonArray();
    m_maps = rows;
}

void TFDataJsonTable::clear()
{
    setRows({});
}
