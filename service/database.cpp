#include "database.h"

#include "categories.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlRecord>
#include <QUuid>

#include <algorithm>

namespace service {

namespace {

const std::size_t MaxStatements = 64;
const int MaxCounts = 1024;

/// Identity of a statement with its values, for remembering what it gave.
QString fingerprint(const BoundSql &sql)
{
    QString text = sql.text;
    for (const QVariant &value : sql.values) {
        const QString shown = value.toString();
        text += QStringLiteral("\n%1:%2:").arg(value.userType()).arg(shown.size()) + shown;
    }
    return text;
}

} // namespace

Cursor::Cursor(Database *database, const QString &text, std::unique_ptr<QSqlQuery> query)
    : m_database(database)
    , m_text(text)
    , m_query(std::move(query))
{}

Cursor::~Cursor()
{
    if (m_query)
        m_database->giveBack(m_text, std::move(m_query));
}

bool Cursor::next()
{
    if (m_query->next())
        return true;
    if (m_query->lastError().isValid()) {
        qCWarning(lcDatabase).noquote()
            << "reading failed:" << m_query->lastError().text() << "statement:" << m_text;
        m_good = false;
    }
    return false;
}

QStringList Cursor::columnNames() const
{
    const QSqlRecord record = m_query->record();
    QStringList names;
    for (int i = 0; i < record.count(); ++i)
        names << record.fieldName(i);
    return names;
}

Database::Database(const QString &file)
    : m_file(file)
    , m_connection(QUuid::createUuid().toString(QUuid::WithoutBraces))
{}

Database::~Database()
{
    m_statements.clear();
    m_database = QSqlDatabase();
    if (QSqlDatabase::contains(m_connection))
        QSqlDatabase::removeDatabase(m_connection);
}

bool Database::open(QString *fault)
{
    if (!QFileInfo(m_file).isFile()) {
        *fault = QStringLiteral("no database file %1").arg(m_file);
        return false;
    }
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
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
    return true;
}

Refusal Database::fault()
{
    return {500, QStringLiteral("the database failed; the log of the service tells more")};
}

Refusal Database::report(const char *step, const QSqlQuery &query, const QString &text)
{
    m_lastFault = query.lastError().databaseText();
    qCWarning(lcDatabase).noquote() << step << query.lastError().text() << "statement:" << text;
    return fault();
}

std::unique_ptr<QSqlQuery> Database::prepared(const QString &text)
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
    report("not accepted:", *query, text);
    return nullptr;
}

void Database::giveBack(const QString &text, std::unique_ptr<QSqlQuery> query)
{
    query->finish();
    if (m_statements.size() == MaxStatements)
        m_statements.erase(m_statements.begin());
    m_statements.emplace_back(text, std::move(query));
}

Result<Cursor> Database::select(const BoundSql &sql)
{
    std::unique_ptr<QSqlQuery> query = prepared(sql.text);
    if (!query)
        return fault();
    for (int i = 0; i < sql.values.size(); ++i)
        query->bindValue(i, sql.values.at(i));
    if (!query->exec())
        return report("failed:", *query, sql.text);
    return Cursor(this, sql.text, std::move(query));
}

Result<qint64> Database::singleNumber(const BoundSql &sql)
{
    Result<Cursor> cursor = select(sql);
    if (!cursor.ok())
        return cursor.refusal();
    if (!cursor.value().next())
        return fault();
    return cursor.value().value(0).toLongLong();
}

void Database::forgetCountsAfterChange()
{
    const Result<qint64> version = singleNumber({QStringLiteral("PRAGMA data_version"), {}});
    if (!version.ok() || version.value() != m_version || m_counts.size() >= MaxCounts)
        m_counts.clear();
    m_version = version.ok() ? version.value() : -1;
}

Result<qint64> Database::count(const BoundSql &sql)
{
    forgetCountsAfterChange();
    const QString key = fingerprint(sql);
    const auto known = m_counts.constFind(key);
    if (known != m_counts.constEnd())
        return *known;
    const Result<qint64> rows =
        singleNumber({QStringLiteral("SELECT count(*) FROM (%1)").arg(sql.text), sql.values});
    if (rows.ok())
        m_counts.insert(key, rows.value());
    return rows;
}

} // namespace service
