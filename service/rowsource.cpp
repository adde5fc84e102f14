#include "rowsource.h"

#include "database.h"
#include "viewreader.h"

#include <QJsonArray>

namespace service {

namespace {

QStringList keysOf(const QJsonArray &rows)
{
    QStringList keys;
    for (const QJsonValue &row : rows)
        keys << row.toObject().keys();
    keys.removeDuplicates();
    keys.erase(std::remove_if(keys.begin(), keys.end(), isComment), keys.end());
    return keys;
}

RowSource sourceOfJson(const QJsonArray &array, const DocumentPlace &place)
{
    const QStringList names = keysOf(array);
    QVector<QVariantList> rows;
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isObject())
            place.element(i).wrongType(QStringLiteral("an object"), array.at(i));
        const QJsonObject object = array.at(i).toObject();
        QVariantList row;
        for (const QString &name : names) {
            const QJsonValue value = object.value(name);
            row << (value.isDouble() ? boundNumber(value.toDouble()) : value.toVariant());
        }
        rows << row;
    }
    return sourceOfRows(names, rows);
}

} // namespace

RowSource sourceOfRows(const QStringList &names, const QVector<QVariantList> &rows)
{
    if (names.isEmpty() || rows.isEmpty())
        return {};
    QStringList outputs;
    for (int i = 0; i < names.size(); ++i)
        outputs << QStringLiteral("column%1 AS ").arg(i + 1) + quotedIdentifier(names.at(i));
    RowSource source;
    source.columns = Columns(names, {});
    source.sql.text = QStringLiteral("SELECT %1 FROM (VALUES ").arg(outputs.join(QStringLiteral(", ")));
    for (const QVariantList &row : rows) {
        source.sql.text += source.sql.values.isEmpty() ? QStringLiteral("(") : QStringLiteral(",(");
        source.sql.append(boundList(row));
        source.sql.text += QLatin1Char(')');
    }
    source.sql.text += QStringLiteral(") AS written");
    return source;
}

QStringList probeColumns(const BoundSql &sql, Database &database, const DocumentPlace &place)
{
    const Result<Cursor> cursor =
        database.select({QStringLiteral("SELECT * FROM (%1) AS probe LIMIT 0").arg(sql.text), sql.values});
    if (cursor.ok())
        return cursor.value().columnNames();
    place.fault(QStringLiteral("the database does not accept the statement: ") + database.lastFault());
    return {};
}

RowSource readRowSource(const QJsonValue &value, Database &database, const DocumentPlace &place)
{
    static const MemberRules rules{{"sql", MemberType::Any}, {"rows", MemberType::Array}};
    const QJsonObject object = checkedObject(value, rules, place);
    if (object.contains(QLatin1String("sql")) == object.contains(QLatin1String("rows"))) {
        place.fault(QStringLiteral("expected either sql or rows"));
        return {};
    }
    if (object.contains(QLatin1String("rows")))
        return sourceOfJson(object.value(QLatin1String("rows")).toArray(),
                            place.member(QStringLiteral("rows")));
    const DocumentPlace at = place.member(QStringLiteral("sql"));
    RowSource source;
    source.sql = readSql(object.value(QLatin1String("sql")), {}, at).bind({});
    if (!source.sql.text.isEmpty())
        source.columns = Columns(probeColumns(source.sql, database, at), {});
    return source;
}

} // namespace service
