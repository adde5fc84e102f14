#include "sqliteconnection.h"

#include "sqldialect.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlRecord>
#include <QUuid>

#include <algorithm>

#include <sqlite3.h>
#include <sys/stat.h>

namespace service {

namespace {

const std::size_t MaxStatements = 64;
const int StepsBetweenLooks = 10000; ///< of SQLite's machine; well below a millisecond

/// Rows of a prepared statement, which goes back to the connection in the end.
class SqliteRows : public RowStream
{
public:
    SqliteRows(SqliteConnection *connection, const QString &text, std::unique_ptr<QSqlQuery> query)
        : m_connection(connection)
        , m_text(text)
        , m_query(std::move(query))
    {}

    ~SqliteRows() override { m_connection->giveBack(m_text, std::move(m_query)); }

    bool next() override { return m_query->next(); }
    QVariant value(int column) const override { return m_query->value(column); }
    DatabaseFault fault() const override { return m_connection->faultOf(*m_query); }

    QVector<StoredColumn> columns() const override
    {
        const QSqlRecord record = m_query->record();
        QVector<StoredColumn> columns;
        for (int i = 0; i < record.count(); ++i)
            columns << StoredColumn{record.fieldName(i), StoredType::Unknown};
        return columns;
    }

private:
    SqliteConnection *m_connection;
    QString m_text;
    std::unique_ptr<QSqlQuery> m_query;
};

/// What tells a file from another of the same name; 0 when there is none.
quint64 inodeOf(const QString &file)
{
    struct stat status
    {};
    return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_ino : 0;
}

int isOver(void *limit)
{
    return static_cast<const RunLimit *>(limit)->state() == RunLimit::Running ? 0 : 1;
}

} // namespace

SqliteConnection::SqliteConnection(const QString &file)
    : m_file(file)
    , m_name(QUuid::createUuid().toString(QUuid::WithoutBraces))
{}

SqliteConnection::~SqliteConnection()
{
    m_statements.clear();
    m_database = QSqlDatabase();
    if (QSqlDatabase::contains(m_name))
        QSqlDatabase::removeDatabase(m_name);
}

bool SqliteConnection::open(QString *fault)
{
    if (!QFileInfo(m_file).isFile()) {
        *fault = QStringLiteral("no database file %1").arg(m_file);
        return false;
    }
    m_inode = inodeOf(m_file);
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
    m_database.setDatabaseName(m_file);
    m_database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=5000"));
    const bool opened = m_database.open();
    QSqlQuery query(m_database);
    // Reading one page tells whether the file is a database at all.
    if (!opened || !query.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))) {
        *fault = QStringLiteral("cannot open database %1: %2")
                     .arg(m_file, opened ? query.lastError().text() : m_database.lastError().text());
        return false;
    }
    for (const char *pragma :
         {"query_only = 1", "mmap_size = 268435456", "cache_size = -16384", "temp_store = MEMORY"})
        query.exec(QStringLiteral("PRAGMA ") + QLatin1String(pragma));
    watchLimit();
    return true;
}

void SqliteConnection::watchLimit()
{
    const QVariant handle = m_database.driver()->handle();
    if (qstrcmp(handle.typeName(), "sqlite3*") == 0)
        sqlite3_progress_handler(*static_cast<sqlite3 *const *>(handle.constData()), StepsBetweenLooks,
                                 isOver, &m_limit);
}

/// Whether another file has taken the name since. One that is merely gone is read on.
bool SqliteConnection::isReplaced() const
{
    const quint64 inode = inodeOf(m_file);
    return inode != 0 && inode != m_inode;
}

const SqlDialect &SqliteConnection::dialect() const
{
    return SqlDialect::plain();
}

DatabaseFault SqliteConnection::faultOf(const QSqlQuery &query) const
{
    const QSqlError error = query.lastError();
    if (!error.isValid())
        return {};
    if (error.nativeErrorCode().toInt() != SQLITE_INTERRUPT)
        return {DatabaseFault::Statement, error.databaseText()};
    return {m_limit.state() == RunLimit::Cancelled ? DatabaseFault::Cancelled : DatabaseFault::TimedOut,
            error.databaseText()};
}

std::unique_ptr<QSqlQuery> SqliteConnection::prepared(const QString &text, DatabaseFault *fault)
{
    const auto known = std::find_if(m_statements.begin(), m_statements.end(),
                                    [&text](const auto &entry) { return entry.first == text; });
    if (known != m_statements.end()) {
        std::unique_ptr<QSqlQuery> query = std::move(known->second);
        m_statements.erase(known);
        return query;
    }
    auto query = std::make_unique<QSqlQuery>(m_database);
    query->setForwardOnly(true);
    if (query->prepare(text))
        return query;
    *fault = faultOf(*query);
    return nullptr;
}

void SqliteConnection::giveBack(const QString &text, std::unique_ptr<QSqlQuery> query)
{
    query->finish();
    if (m_statements.size() == MaxStatements)
        m_statements.erase(m_statements.begin());
    m_statements.emplace_back(text, std::move(query));
}

std::unique_ptr<RowStream> SqliteConnection::run(const BoundSql &sql, DatabaseFault *fault)
{
    m_limit.begin();
    if (isReplaced()) {
        *fault = {DatabaseFault::Lost, QStringLiteral("the file %1 was replaced").arg(m_file)};
        return nullptr;
    }
    std::unique_ptr<QSqlQuery> query = prepared(sql.text, fault);
    if (!query)
        return nullptr;
    for (int i = 0; i < sql.values.size(); ++i)
        query->bindValue(i, sql.values.at(i));
    if (!query->exec()) {
        *fault = faultOf(*query);
        return nullptr;
    }
    return std::make_unique<SqliteRows>(this, sql.text, std::move(query));
}

} // namespace service
