#include "sqldialect.h"

#include <QRegularExpression>

namespace service {

namespace {

bool isNumber(const QVariant &value)
{
    return value.userType() == QMetaType::LongLong || value.userType() == QMetaType::Double ||
           value.userType() == QMetaType::Bool;
}

} // namespace

SqlDialect::~SqlDialect() = default;

const SqlDialect &SqlDialect::plain()
{
    static const SqlDialect dialect;
    return dialect;
}

QString SqlDialect::fieldName(const QString &column, const QStringList &) const
{
    return column;
}

ValueKind SqlDialect::comparedAs(ValueKind declared, StoredType) const
{
    return declared;
}

QString SqlDialect::comparable(const QString &column, StoredType) const
{
    return column;
}

QString SqlDialect::orderTerm(const QString &column, StoredType, bool isDescending) const
{
    return isDescending ? column + QStringLiteral(" DESC") : column;
}

QString SqlDialect::like(const QString &column, StoredType) const
{
    return column + QStringLiteral(" LIKE ? ESCAPE '\\'");
}

QString SqlDialect::mark(StoredType) const
{
    return QStringLiteral("?");
}

QVector<QVariantList> SqlDialect::literalRows(const QVector<QVariantList> &rows,
                                              QVector<StoredType> *types) const
{
    types->fill(StoredType::Unknown, rows.value(0).size());
    return rows;
}

QString SqlDialect::versionQuery() const
{
    return QStringLiteral("PRAGMA data_version");
}

QString PostgresDialect::fieldName(const QString &column, const QStringList &spelled) const
{
    if (column != column.toLower() || spelled.contains(column))
        return column;
    // The database has lost the capitals of a name without quotes; where no document has them the standard's
    // rule tells: all are.
    const int at = spelled.indexOf(
        QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(column)),
                           QRegularExpression::CaseInsensitiveOption));
    return at < 0 ? column.toUpper() : spelled.at(at);
}

ValueKind PostgresDialect::comparedAs(ValueKind declared, StoredType stored) const
{
    switch (stored) {
    case StoredType::Number:
    case StoredType::Truth:
        return ValueKind::Number;
    case StoredType::Moment:
        return ValueKind::Date;
    case StoredType::Text:
    case StoredType::Other:
        return declared == ValueKind::Date ? ValueKind::Date : ValueKind::Text;
    default:
        return declared;
    }
}

QString PostgresDialect::comparable(const QString &column, StoredType stored) const
{
    if (stored == StoredType::Truth)
        return QStringLiteral("CAST(%1 AS INTEGER)").arg(column);
    return stored == StoredType::Other ? QStringLiteral("CAST(%1 AS TEXT)").arg(column) : column;
}

QString PostgresDialect::orderTerm(const QString &column, StoredType stored, bool isDescending) const
{
    const QString collated = stored == StoredType::Text ? column + QStringLiteral(" COLLATE \"C\"") : column;
    return collated + (isDescending ? QStringLiteral(" DESC NULLS LAST") : QStringLiteral(" NULLS FIRST"));
}

QString PostgresDialect::like(const QString &column, StoredType stored) const
{
    const QString text = stored == StoredType::Text ? column : QStringLiteral("CAST(%1 AS TEXT)").arg(column);
    return text + QStringLiteral(" COLLATE \"C\" ILIKE ? ESCAPE '\\'");
}

QString PostgresDialect::mark(StoredType stored) const
{
    return stored == StoredType::Moment ? QStringLiteral("CAST(? AS TIMESTAMP)") : QStringLiteral("?");
}

QVector<QVariantList> PostgresDialect::literalRows(const QVector<QVariantList> &rows,
                                                   QVector<StoredType> *types) const
{
    QVector<QVariantList> result = rows;
    types->fill(StoredType::Number, rows.value(0).size());
    for (const QVariantList &row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            if (!row.at(i).isNull() && !isNumber(row.at(i)))
                (*types)[i] = StoredType::Text;
        }
    }
    for (QVariantList &row : result) {
        for (int i = 0; i < row.size(); ++i) {
            if (types->at(i) == StoredType::Text && !row.at(i).isNull())
                row[i] = row.at(i).toString();
        }
    }
    return result;
}

QString PostgresDialect::versionQuery() const
{
    return QStringLiteral("SELECT CAST(pg_current_snapshot() AS TEXT)");
}

} // namespace service
