#include "tfsummaryjsontable.h"

#include "tfheaderfieldconfigdata.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
constexpr QLatin1String ItemKey("Item");
constexpr QLatin1String ValueKey("value");
constexpr QLatin1String RowCountItem("rcount");
constexpr QLatin1String PageIndexItem("pindex");
constexpr QLatin1String PageSizeItem("psize");
constexpr QLatin1String ColumnsItem("GridColumns");
} // namespace

void TFSummaryJsonTable::initWith(const QJsonValue &value)
{
    m_items.clear();
    const QJsonArray elements = value.toArray();
    for (const QJsonValue &element : elements) {
        if (!element.isObject())
            break;
        const QJsonObject object = element.toObject();
        const QString name = object.value(ItemKey).toString();
        m_items.append({name, readValue(name, object.value(ValueKey))});
    }
}

int TFSummaryJsonTable::tableType() const
{
    return TFTableId::Summary;
}

QVariant TFSummaryJsonTable::readValue(const QString &name, const QJsonValue &value)
{
    if (name.contains(ColumnsItem)) {
        delete m_columnTable;
        m_columnTable = new TFHeaderFieldConfigData(this, false);
        m_columnTable->initWith(value);
        return QVariant();
    }
    const int number = value.toInt();
    if (name == RowCountItem)
        m_rowCount = number;
    else if (name == PageIndexItem)
        m_pageIndex = number;
    else if (name == PageSizeItem)
        m_pageSize = number;
    return number;
}

HeaderFieldInfo TFSummaryJsonTable::headerFieldInfo(const QString &fieldName) const
{
    return m_columnTable ? m_columnTable->headerFieldInfo(fieldName) : HeaderFieldInfo();
}
