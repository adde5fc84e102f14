#pragma once

#include "columntypes.h"
#include "runlimit.h"
#include "sqltemplate.h"
#include "storedvalue.h"

#include <memory>

namespace service {

class SqlDialect;

/// Why a statement gave no rows, or not all of them.
struct DatabaseFault
{
    enum Kind {
        None,
        Statement, ///< the database does not accept or could not carry out the statement
        BadValue,  ///< a bound value does not have the form that the statement needs
        TimedOut,  ///< the time limit ended it
        Cancelled, ///< another thread ended it
        Lost       ///< the connection is gone; only a new one will serve again
    };

    Kind kind = None;
    QString text; ///< the database's own words
};

/// The rows of one statement on their way from the database. A connection carries one stream at a time.
class RowStream
{
public:
    RowStream() = default;
    RowStream(const RowStream &) = delete;
    RowStream &operator=(const RowStream &) = delete;
    virtual ~RowStream();

    /// Steps to the next row. False at the end and on a fault; fault() tells which.
    virtual bool next() = 0;

    /// A value of the current row.
    virtual StoredValue stored(int column) const = 0;

    virtual QVector<StoredColumn> columns() const = 0;
    virtual DatabaseFault fault() const = 0;
};

/// One connection to a database of one kind. It belongs to the thread that made it; only cancel() may be
/// called from others.
class Connection
{
public:
    Connection() = default;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    virtual ~Connection();

    /// Opens it. On a fault false, and \a fault tells why, without the password of the address.
    virtual bool open(QString *fault) = 0;

    /// Starts a SELECT, whose values take the places of "?" in their order. On a fault null, and \a fault
    /// tells why. The stream before has to be gone.
    virtual std::unique_ptr<RowStream> run(const BoundSql &sql, DatabaseFault *fault) = 0;

    virtual const SqlDialect &dialect() const = 0;

    /// Limits each later statement, from its start to its last row; zero is no limit.
    void setTimeLimit(std::chrono::milliseconds limit) { m_limit.setTime(limit); }

    /// Ends the statement that runs now, if there is one. From any thread.
    void cancel() { m_limit.cancel(); }

protected:
    RunLimit m_limit;
};

/// A connection for \a address: `postgresql://...` or `postgres://...` in the form of libpq, else an SQLite
/// file.
std::unique_ptr<Connection> makeConnection(const QString &address);

} // namespace service
