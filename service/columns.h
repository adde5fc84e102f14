#pragma once

#include "sqldialect.h"

#include <QHash>

namespace service {

/// The output columns of a statement in their order.
class Columns
{
public:
    Columns();

    /// Columns of a database that has no types, each named as its field.
    Columns(const QStringList &names, const QHash<QString, ValueKind> &kinds);

    /// Columns as the database of that \a dialect tells them; \a kinds are those that the document declares.
    Columns(const QVector<StoredColumn> &stored, const QHash<QString, ValueKind> &kinds,
            const SqlDialect &dialect);

    const QStringList &names() const { return m_names; }
    bool contains(const QString &name) const { return m_places.contains(name); }

    /// Place of a column, -1 for a name that there is not.
    int place(const QString &name) const { return m_places.value(name, -1); }

    ValueKind kind(int place) const { return m_kinds.at(place); }
    ValueKind kind(const QString &name) const { return m_kinds.at(m_places.value(name)); }

    /// The column of the field \a name as it stands in SQL.
    QString inSql(const QString &name) const { return m_inSql.at(place(name)); }

    StoredType stored(const QString &name) const { return m_stored.at(place(name)); }

    /// How values are compared with the field in this database.
    ValueKind comparedAs(const QString &name) const
    {
        return m_dialect->comparedAs(kind(name), stored(name));
    }

    const SqlDialect &dialect() const { return *m_dialect; }

    /// All names for a message: "columns are A, B, C".
    QString listing() const;

private:
    void add(const QString &name, const StoredColumn &column, ValueKind kind);

    QStringList m_names;
    QVector<ValueKind> m_kinds;
    QHash<QString, int> m_places;
    QStringList m_inSql;
    QVector<StoredType> m_stored;
    const SqlDialect *m_dialect;
};

} // namespace service
