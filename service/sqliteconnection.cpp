#include "sqliteconnection.h"

#include "sqldialect.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include <sqlite3.h>
#include <sys/stat.h>

namespace service {

namespace {

const std::size_t MaxStatements = 64;
const int StepsBetweenLooks = 10000; ///< of SQLite's machine; well below a millisecond
const int BusyMilliseconds = 5000;

/// Rows of a prepared statement, which goes back to the connection in the end.
class SqliteRows : public RowStream
{
public:
    /// \a firstStep is what the first step of \a statement returned.
    SqliteRows(SqliteConnection *connection, const QString &text, SqliteConnection::Statement statement,
               int firstStep)
        : m_connection(connection)
        , m_text(text)
        , m_statement(std::move(statement))
        , m_code(firstStep)
    {}

    ~SqliteRows() override { m_connection->giveBack(m_text, std::move(m_statement)); }

    bool next() override
    {
        if (m_isStarted && m_code == SQLITE_ROW)
            m_code = sqlite3_step(m_statement.get());
        m_isStarted = true;
        return m_code == SQLITE_ROW;
    }

    StoredValue stored(int column) const override
    {
        sqlite3_stmt *row = m_statement.get();
        switch (sqlite3_column_type(row, column)) {
        case SQLITE_INTEGER:
            return StoredValue::ofWhole(sqlite3_column_int64(row, column));
        case SQLITE_FLOAT:
            return StoredValue::ofReal(sqlite3_column_double(row, column));
        case SQLITE_NULL:
            return {};
        default:
            const auto text = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
            return StoredValue::ofText(text, sqlite3_column_bytes(row, column));
        }
    }

    DatabaseFault fault() const override
    {
        return m_code == SQLITE_DONE || m_code == SQLITE_ROW ? DatabaseFault()
                                                             : m_connection->faultOf(m_code);
    }

    QVector<StoredColumn> columns() const override
    {
        QVector<StoredColumn> columns;
        for (int i = 0; i < sqlite3_column_count(m_statement.get()); ++i)
            columns << StoredColumn{QString::fromUtf8(sqlite3_column_name(m_statement.get(), i)),
                                    StoredType::Unknown};
        return columns;
    }

private:
    SqliteConnection *m_connection;
    QString m_text;
    SqliteConnection::Statement m_statement;
    int m_code; ///< of the last step
    bool m_isStarted = false;
};

int bindValue(sqlite3_stmt *statement, int place, const QVariant &value)
{
    if (value.isNull())
        return sqlite3_bind_null(statement, place);
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
        return sqlite3_bind_int64(statement, place, value.toLongLong());
    case QMetaType::Double:
        return sqlite3_bind_double(statement, place, value.toDouble());
    default:
        const QByteArray text = value.toString().toUtf8();
        return sqlite3_bind_text(statement, place, text.constData(), text.size(), SQLITE_TRANSIENT);
    }
}

int bindValues(sqlite3_stmt *statement, const QVariantList &values)
{
    if (sqlite3_bind_parameter_count(statement) != values.size())
        return SQLITE_RANGE;
    int code = SQLITE_OK;
    for (int i = 0; i < values.size() && code == SQLITE_OK; ++i)
        code = bindValue(statement, i + 1, values.at(i));
    return code;
}

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

void SqliteConnection::StatementEnd::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

void SqliteConnection::DatabaseEnd::operator()(sqlite3 *database) const
{
    sqlite3_close(database);
}

SqliteConnection::SqliteConnection(const QString &file)
    : m_file(file)
{}

SqliteConnection::~SqliteConnection()
{
    m_statements.clear();
}

bool SqliteConnection::execute(const char *sql) const
{
    return sqlite3_exec(m_database.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool SqliteConnection::open(QString *fault)
{
    if (!QFileInfo(m_file).isFile()) {
        *fault = QStringLiteral("no database file %1").arg(m_file);
        return false;
    }
    m_inode = inodeOf(m_file);
    sqlite3 *database = nullptr;
    // A connection stays in its thread, so SQLite need not lock it.
    const int code = sqlite3_open_v2(QFile::encodeName(m_file).constData(), &database,
                                     SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    m_database.reset(database);
    sqlite3_busy_timeout(database, BusyMilliseconds);
    // Reading one page tells whether the file is a database at all.
    if (code != SQLITE_OK || !execute("SELECT count(*) FROM sqlite_master")) {
        *fault = QStringLiteral("cannot open database %1: %2")
                     .arg(m_file, QString::fromUtf8(sqlite3_errmsg(database)));
        return false;
    }
    execute("PRAGMA query_only = 1; PRAGMA mmap_size = 268435456; PRAGMA cache_size = -16384;"
            "PRAGMA temp_store = MEMORY");
    sqlite3_progress_handler(database, StepsBetweenLooks, isOver, &m_limit);
    return true;
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

DatabaseFault SqliteConnection::faultOf(int code) const
{
    if ((code & 0xff) != SQLITE_INTERRUPT)
        return {DatabaseFault::Statement, QString::fromUtf8(sqlite3_errmsg(m_database.get()))};
    return {m_limit.state() == RunLimit::Cancelled ? DatabaseFault::Cancelled : DatabaseFault::TimedOut,
            QStringLiteral("interrupted")};
}

SqliteConnection::Statement SqliteConnection::prepared(const QString &text, DatabaseFault *fault)
{
    const auto known = std::find_if(m_statements.begin(), m_statements.end(),
                                    [&text](const auto &entry) { return entry.first == text; });
    if (known != m_statements.end()) {
        Statement statement = std::move(known->second);
        m_statements.erase(known);
        return statement;
    }
    const QByteArray utf8 = text.toUtf8();
    sqlite3_stmt *statement = nullptr;
    const int code = sqlite3_prepare_v3(m_database.get(), utf8.constData(), utf8.size(),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (code != SQLITE_OK)
        *fault = faultOf(code);
    return Statement(statement);
}

void SqliteConnection::giveBack(const QString &text, Statement statement)
{
    sqlite3_reset(statement.get());
    if (m_statements.size() == MaxStatements)
        m_statements.erase(m_statements.begin());
    m_statements.emplace_back(text, std::move(statement));
}

std::unique_ptr<RowStream> SqliteConnection::run(const BoundSql &sql, DatabaseFault *fault)
{
    m_limit.begin();
    if (isReplaced()) {
        *fault = {DatabaseFault::Lost, QStringLiteral("the file %1 was replaced").arg(m_file)};
        return nullptr;
    }
    Statement statement = prepared(sql.text, fault);
    if (!statement)
        return nullptr;
    int code = bindValues(statement.get(), sql.values);
    if (code == SQLITE_OK)
        code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) {
        *fault = faultOf(code);
        return nullptr;
    }
    return std::make_unique<SqliteRows>(this, sql.text, std::move(statement), code);
}

} // namespace service
