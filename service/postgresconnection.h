#pragma once

#include "connection.h"

#include <libpq-fe.h>

namespace service {

/// A read-only connection to a PostgreSQL server, or to one that speaks its protocol.
///
/// Statements are sent whole, with their values, and nothing of them stays in the session; so a pooler may
/// give each transaction another session.
class PostgresConnection : public Connection
{
public:
    /// \a address is a connection URI of libpq.
    explicit PostgresConnection(const QString &address);

    bool open(QString *fault) override;
    std::unique_ptr<RowStream> run(const BoundSql &sql, DatabaseFault *fault) override;
    const SqlDialect &dialect() const override;

    using ResultPointer = std::unique_ptr<PGresult, decltype(&PQclear)>;

    /// The next piece of what the running statement gives; null at its end, or on a \a fault.
    ResultPointer nextResult(DatabaseFault *fault);

    /// Takes what is still on its way of the running statement, which is ended first where \a rowsRemain.
    void finish(bool rowsRemain);

private:
    bool waitForInput(DatabaseFault *fault);
    void askForCancel();
    DatabaseFault faultOf(const PGresult *result) const;
    DatabaseFault lost() const;

    QString m_address;
    std::unique_ptr<PGconn, decltype(&PQfinish)> m_connection{nullptr, &PQfinish};
    bool m_isCancelAsked = false; ///< of the running statement
};

} // namespace service
