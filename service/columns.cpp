#include "columns.h"

#include "sqltemplate.h"

namespace service {

ValueKind kindOfType(const QString &valueType)
{
    static const QStringList numbers{QStringLiteral("Decimal"), QStringLiteral("Double"),
                                     QStringLiteral("Int16"),   QStringLiteral("Int32"),
                                     QStringLiteral("Int64"),   QStringLiteral("UInt16"),
                                     QStringLiteral("UInt32"),  QStringLiteral("UInt64")};
    if (numbers.contains(valueType))
        return ValueKind::Number;
    if (valueType == QLatin1String("DateTime"))
        return ValueKind::Date;
    return ValueKind::Text;
}

Columns::Columns()
    : Columns(QVector<StoredColumn>(), {}, SqlDialect::plain())
{}

Columns::Columns(const QStringList &names, const QHash<QString, ValueKind> &kinds)
    : Columns()
{
    for (const QString &name : names)
        add(name, {name, StoredType::Unknown}, kinds.value(name, ValueKind::Any));
}

Columns::Columns(const QVector<StoredColumn> &stored, const QHash<QString, ValueKind> &kinds,
                 const SqlDialect &dialect)
    : m_dialect(&dialect)
{
    for (const StoredColumn &column : stored) {
        const QString name = dialect.fieldName(column.name, kinds.keys());
        add(name, column, kinds.value(name, ValueKind::Any));
    }
}

void Columns::add(const QString &name, const StoredColumn &column, ValueKind kind)
{
    m_places.insert(name, m_names.size());
    m_names << name;
    m_kinds << kind;
    m_inSql << quotedIdentifier(column.name);
    m_stored << column.type;
}

QString Columns::listing() const
{
    return QStringLiteral("columns are ") + m_names.join(QStringLiteral(", "));
}

} // namespace service
