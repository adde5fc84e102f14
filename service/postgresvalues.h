#pragma once

#include "connection.h"

#include <QByteArray>

#include <vector>

#include <libpq-fe.h>

namespace service {

/// A statement with its values in the form of libpq.
class PostgresStatement
{
public:
    explicit PostgresStatement(const BoundSql &sql);

    /// False when a value can't be sent: PostgreSQL has no texts with the character U+0000.
    bool isGood() const { return m_isGood; }

    /// Sends it. False, and the connection tells why, when that fails.
    bool send(PGconn *connection) const;

private:
    void append(const QVariant &value);

    QByteArray m_text;
    std::vector<Oid> m_types;
    std::vector<QByteArray> m_values;
    bool m_isGood = true;
};

/// The type of a result's column.
StoredType storedType(Oid type);

/// A value of a result; its text lives as long as the result.
StoredValue storedValue(const PGresult *result, int row, int column);

} // namespace service
