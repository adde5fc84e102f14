#include "columns.h"

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

Columns::Columns(const QStringList &names, const QHash<QString, ValueKind> &kinds)
    : m_names(names)
{
    for (int i = 0; i < names.size(); ++i) {
        m_places.insert(names.at(i), i);
        m_kinds << kinds.value(names.at(i), ValueKind::Any);
    }
}

QString Columns::listing() const
{
    return QStringLiteral("columns are ") + m_names.join(QStringLiteral(", "));
}

} // namespace service
