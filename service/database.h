#pragma once

#include "connection.h"
#include "result.h"

#include <QHash>

namespace service {

class Database;

/// The rows of one statement, first to last.
class Cursor
{
public:
    Cursor(Database *database, const QString &text, std::unique_ptr<RowStream> rows);

    /// Steps to the next row. False at the end and on a fault; isGood() tells which.
    bool next();
    bool isGood() const { return m_good; }

    /// The refusal for the fault that ended the rows.
    Refusal refusal() const;

    StoredValue stored(int column) const { return m_rows->stored(column); }
    QVariant value(int column) const { return stored(column).toVariant(); }
    QVector<StoredColumn> columns() const { return m_rows->columns(); }

private:
    Database *m_database;
    QString m_text;
    std::unique_ptr<RowStream> m_rows;
    bool m_good = true;
};

/// One read-only connection, with what it remembers of the data. Belongs to the thread that made it.
class Database
{
public:
    /// \a address as makeConnection() takes it. Nothing is opened yet.
    explicit Database(const QString &address);

    /// Opens the connection. On a fault false, and \a fault tells why.
    bool open(QString *fault);

    /// Runs a SELECT; the cursor before has to be gone. A fault of the database is logged with the statement,
    /// and refused with a text that shows nothing of it: status 400 for a value that the statement can't
    /// take, 504 where the time limit ended it, else 500.
    Result<Cursor> select(const BoundSql &sql);

    /// Number of rows of \a sql. Remembered as long as nothing in the database has changed.
    Result<qint64> count(const BoundSql &sql);

    const SqlDialect &dialect() const { return m_connection->dialect(); }

    /// The connection, for its time limit and to cancel what it runs.
    Connection &connection() { return *m_connection; }

    /// The refusal for a fault of the database.
    static Refusal fault();

    /// The last fault, with the database's own words for messages to authors. After DatabaseFault::Lost only
    /// a new Database serves again.
    const DatabaseFault &lastFault() const { return m_lastFault; }

private:
    friend class Cursor;
    static Refusal refusalFor(const DatabaseFault &fault);
    Refusal report(const char *step, const DatabaseFault &fault, const QString &text);
    void forgetCountsAfterChange();
    Result<QVariant> singleValue(const BoundSql &sql);

    std::unique_ptr<Connection> m_connection;
    QHash<QString, qint64> m_counts;
    DatabaseFault m_lastFault;
    QVariant m_version;
    bool m_tellsVersion = true; ///< a database that is only like one of ours may not know how
};

} // namespace service
