#pragma once

#include "result.h"
#include "sqltemplate.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <memory>
#include <utility>
#include <vector>

namespace service {

class Database;

/// The rows of one statement, first to last. Gives its prepared statement back when it ends.
class Cursor
{
public:
    Cursor(Database *database, const QString &text, std::unique_ptr<QSqlQuery> query);
    Cursor(Cursor &&other) = default;
    Cursor &operator=(Cursor &&other) = delete;
    ~Cursor();

    /// Steps to the next row. False at the end and on a fault; isGood() tells which.
    bool next();
    bool isGood() const { return m_good; }

    QVariant value(int column) const { return m_query->value(column); }
    QStringList columnNames() const;

private:
    Database *m_database;
    QString m_text;
    std::unique_ptr<QSqlQuery> m_query;
    bool m_good = true;
};

/// One read-only connection with its prepared statements. Belongs to the thread that made it.
class Database
{
public:
    /// \a file names an SQLite database. Nothing is opened yet.
    explicit Database(const QString &file);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Opens the connection. On a fault false, and \a fault tells why.
    bool open(QString *fault);

    /// Runs a SELECT. A fault of the database is logged with the statement, and refused with status 500
    /// and a text that shows nothing of it.
    Result<Cursor> select(const BoundSql &sql);

    /// Number of rows of \a sql. Remembered as long as nothing in the database has changed.
    Result<qint64> count(const BoundSql &sql);

    /// The refusal for a fault of the database.
    static Refusal fault();

    /// The database's own words on the last fault, for messages to authors.
    QString lastFault() const { return m_lastFault; }

private:
    friend class Cursor;
    Refusal report(const char *step, const QSqlQuery &query, const QString &text);
    std::unique_ptr<QSqlQuery> prepared(const QString &text);
    void giveBack(const QString &text, std::unique_ptr<QSqlQuery> query);
    void forgetCountsAfterChange();
    Result<qint64> singleNumber(const BoundSql &sql);

    QString m_file;
    QString m_connection;
    QSqlDatabase m_database;
    std::vector<std::pair<QString, std::unique_ptr<QSqlQuery>>> m_statements; ///< oldest first
    QHash<QString, qint64> m_counts;
    QString m_lastFault;
    qint64 m_version = -1;
};

} // namespace service
