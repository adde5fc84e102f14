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

/// No kinds, but the names as they are spelled.
QHash<QString, ValueKind> writtenKinds(const QStringList &names)
{
    QHash<QString, ValueKind> kinds;
    for (const QString &name : names)
        kinds.insert(name, ValueKind::Any);
    return kinds;
}

RowSource sourceOfJson(const QJsonArray &array, const SqlDialect &dialect, const DocumentPlace &place)
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
    return sourceOfRows(names, rows, dialect);
}

} // namespace

RowSource sourceOfRows(const QStringList &names, const QVector<QVariantList> &rows, const SqlDialect &dialect)
{
    if (names.isEmpty() || rows.isEmpty())
        return {};
    QVector<StoredType> types;
    const QVector<QVariantList> literals = dialect.literalRows(rows, &types);
    QStringList outputs;
    QVector<StoredColumn> columns;
    for (int i = 0; i < names.size(); ++i) {
        outputs << QStringLiteral("column%1 AS ").arg(i + 1) + quotedIdentifier(names.at(i));
        columns << StoredColumn{names.at(i), types.at(i)};
    }
    RowSource source;
    source.columns = Columns(columns, writtenKinds(names), dialect);
    source.sql.text = QStringLiteral("SELECT %1 FROM (VALUES ").arg(outputs.join(QStringLiteral(", ")));
    for (const QVariantList &row : literals) {
        source.sql.text += source.sql.values.isEmpty() ? QStringLiteral("(") : QStringLiteral(",(");
        source.sql.append(boundList(row));
        source.sql.text += QLatin1Char(')');
    }
    source.sql.text += QStringLiteral(") AS written");
    return source;
}

QVector<StoredColumn> probeColumns(const BoundSql &sql, Database &database, const DocumentPlace &place)
{
    const Result<Cursor> cursor =
        database.select({QStringLiteral("SELECT * FROM (%1) AS probe LIMIT 0").arg(sql.text), sql.values});
    if (cursor.ok())
        return cursor.value().columns();
    place.fault(QStringLiteral("the database does not accept the statement: ") + database.lastFault().text);
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
        return sourceOfJson(object.value(QLatin1String("rows")).toArray(), database.dialect(),
                            place.member(QStringLiteral("rows")));
    const DocumentPlace at = place.member(QStringLiteral("sql"));
    RowSource source;
    source.sql = readSql(object.value(QLatin1String("sql")), {}, at).bind({});
    if (!source.sql.text.isEmpty())
        source.columns = Columns(probeColumns(source.sql, database, at), {}, database.dialect());
    return source;
}

} // namespace service
