#pragma once

#include "database.h"

#include <QJsonObject>
#include <QTemporaryDir>

#include <memory>

/// A folder with documents of views (10, a table; 11, its child; 12, a cross view; and the other files), and
/// a small database that they show: an SQLite file, or, where SUBJECT_TEST_POSTGRES names a PostgreSQL server
/// (see tests/support/with-postgres), a schema of its own there.
///
/// The table `price` holds 12 rows: symbols S01 to S12, sectors 1 to 3 in turn, prices 1.5 times the number
/// but NULL for S05, days 2020-01-01 to 2020-01-12, each third with a time of day, exchanges A and B in turn,
/// and a name that needs escaping. The table `curve` holds day, tenor and rate for a cross view.
class ServiceFixture
{
public:
    ServiceFixture();
    ~ServiceFixture();

    /// Whether the tests run on PostgreSQL.
    static bool isPostgres() { return qEnvironmentVariableIsSet("SUBJECT_TEST_POSTGRES"); }

    /// The database as the service takes it.
    QString databaseAddress() const;
    /// A connection as the service has it; ends the test where there is none.
    std::unique_ptr<service::Database> openDatabase() const;
    QString viewFolder() const { return m_folder.filePath(QStringLiteral("views")); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

    /// Writes a document below the folder of views.
    void write(const QString &name, const QJsonObject &document) const;
    void write(const QString &name, const QByteArray &text) const;

    /// Runs statements on a connection that may write.
    void change(const QStringList &statements) const;

    /// Ends all connections of services to the server. A file has none.
    void breakConnections() const;

    /// View 10: all of `price`, parameter EXCHANGE, key SYMBOL, order PRICE DESC,SYMBOL ASC.
    static QJsonObject tableDocument();

private:
    void writeViews() const;
    void changeFile(const QStringList &statements) const;
    void changeServer(const QStringList &statements) const;

    QTemporaryDir m_folder;
    QString m_schema;
};

/// A JSON object from text with single quotes in place of double ones; "??" stands for two single quotes, and
/// a double quote for itself within a text.
QJsonObject object(const char *text);
