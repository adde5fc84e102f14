#include "database.h"

#include "categories.h"
#include "sqldialect.h"

namespace service {

namespace {

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

Cursor::Cursor(Database *database, const QString &text, std::unique_ptr<RowStream> rows)
    : m_database(database)
    , m_text(text)
    , m_rows(std::move(rows))
{}

bool Cursor::next()
{
    if (m_rows->next())
        return true;
    const DatabaseFault fault = m_rows->fault();
    if (fault.kind != DatabaseFault::None) {
        m_database->report("reading failed:", fault, m_text);
        m_good = false;
    }
    return false;
}

Refusal Cursor::refusal() const
{
    return Database::refusalFor(m_rows->fault());
}

Database::Database(const QString &address)
    : m_connection(makeConnection(address))
{}

bool Database::open(QString *fault)
{
    return m_connection->open(fault);
}

Refusal Database::fault()
{
    return {500, QStringLiteral("the database failed; the log of the service tells more")};
}

Refusal Database::refusalFor(const DatabaseFault &fault)
{
    switch (fault.kind) {
    case DatabaseFault::BadValue:
        return {400, QStringLiteral("a value of the request is not of the form that its column holds")};
    case DatabaseFault::TimedOut:
        return {504,
                QStringLiteral("the query took too long and was stopped; a narrower filter or fewer rows "
                               "may help")};
    default:
        return Database::fault();
    }
}

Refusal Database::report(const char *step, const DatabaseFault &fault, const QString &text)
{
    m_lastFault = fault;
    qCWarning(lcDatabase).noquote() << step << fault.text << "statement:" << text;
    return refusalFor(fault);
}

Result<Cursor> Database::select(const BoundSql &sql)
{
    DatabaseFault fault;
    std::unique_ptr<RowStream> rows = m_connection->run(sql, &fault);
    if (!rows)
        return report("failed:", fault, sql.text);
    return Cursor(this, sql.text, std::move(rows));
}

Result<QVariant> Database::singleValue(const BoundSql &sql)
{
    Result<Cursor> cursor = select(sql);
    if (!cursor.ok())
        return cursor.refusal();
    if (!cursor.value().next())
        return cursor.value().refusal();
    const QVariant value = cursor.value().value(0);
    cursor.value().next();
    return value;
}

void Database::forgetCountsAfterChange()
{
    QVariant version;
    if (m_tellsVersion) {
        const Result<QVariant> told = singleValue({dialect().versionQuery(), {}});
        m_tellsVersion = told.ok() || m_lastFault.kind != DatabaseFault::Statement;
        version = told.ok() ? told.value() : QVariant();
    }
    if (!version.isValid() || version != m_version || m_counts.size() >= MaxCounts)
        m_counts.clear();
    m_version = version;
}

Result<qint64> Database::count(const BoundSql &sql)
{
    forgetCountsAfterChange();
    const QString key = fingerprint(sql);
    const auto known = m_counts.constFind(key);
    if (known != m_counts.constEnd())
        return *known;
    const Result<QVariant> rows =
        singleValue({QStringLiteral("SELECT count(*) FROM (%1) AS counted").arg(sql.text), sql.values});
    if (!rows.ok())
        return rows.refusal();
    m_counts.insert(key, rows.value().toLongLong());
    return rows.value().toLongLong();
}

} // namespace service
