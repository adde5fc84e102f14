#include "tflinktemplate.h"

#include "records/tfcategories.h"

#include <QMap>
#include <QRegularExpression>
#include <QUrl>

namespace {
QString filledQuery(QString query, const QMap<QString, QVariant> &values)
{
    static const QRegularExpression placeholder(QStringLiteral("\\$\\{(.*?)\\}"));
    QStringList names;
    auto matches = placeholder.globalMatch(query);
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    for (const QString &name : qAsConst(names)) {
        // A value stays one value: it must neither end the item that it stands in nor look encoded.
        const QString value = values.value(name)
                                  .toString()
                                  .replace(QLatin1Char('%'), QLatin1String("%25"))
                                  .replace(QLatin1Char('&'), QLatin1String("%26"));
        query.replace(QStringLiteral("${%1}").arg(name), value);
    }
    return query;
}
} // namespace

QString TFLinkTemplate::fill(const QString &link, const RowData &row)
{
    QMap<QString, QVariant> values;
    for (const TFTableModelData::tagCellValue &cell : row)
        values.insert(cell.fieldName, cell.value);
    qCDebug(lcTable) << "map keys:" << values.keys();

    QUrl url(link);
    const bool hasQuery = url.hasQuery();
    if (hasQuery)
        url.setQuery(filledQuery(url.query(), values));
    qCDebug(lcTable) << "linkActivated:" << url;
    return hasQuery ? url.toString() : link;
}
