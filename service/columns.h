#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace service {

/// How a column's values are compared and written.
enum class ValueKind {
    Any,    ///< not declared: as the database gives it
    Text,   ///< always written as text
    Number, ///< compared as a number
    Date    ///< ISO text in the database, epoch milliseconds on the wire
};

/// The kind that a configured value type stands for.
ValueKind kindOfType(const QString &valueType);

/// The output columns of a statement in their order.
class Columns
{
public:
    Columns() = default;
    Columns(const QStringList &names, const QHash<QString, ValueKind> &kinds);

    const QStringList &names() const { return m_names; }
    bool contains(const QString &name) const { return m_places.contains(name); }

    /// Place of a column, -1 for a name that there is not.
    int place(const QString &name) const { return m_places.value(name, -1); }

    ValueKind kind(int place) const { return m_kinds.at(place); }
    ValueKind kind(const QString &name) const { return m_kinds.at(m_places.value(name)); }

    /// All names for a message: "columns are A, B, C".
    QString listing() const;

private:
    QStringList m_names;
    QVector<ValueKind> m_kinds;
    QHash<QString, int> m_places;
};

} // namespace service
