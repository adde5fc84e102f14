#include "postgresconnection.h"

#include "categories.h"
#include "postgresvalues.h"
#include "sqldialect.h"

#include <QTimeZone>

#include <cerrno>

#include <poll.h>

namespace service {

namespace {

const int LookMilliseconds = 50;    ///< between two looks at the limit
const int GraceMilliseconds = 2000; ///< for the server to answer a cancel

using Piece = PostgresConnection::ResultPointer;

/// Rows as they arrive, one result each.
class PostgresRows : public RowStream
{
public:
    PostgresRows(PostgresConnection *connection, Piece first)
        : m_connection(connection)
        , m_result(std::move(first))
    {
        for (int i = 0; i < PQnfields(m_result.get()); ++i)
            m_columns << StoredColumn{QString::fromUtf8(PQfname(m_result.get(), i)),
                                      storedType(PQftype(m_result.get(), i))};
    }

    ~PostgresRows() override
    {
        if (!m_atEnd)
            m_connection->finish(PQresultStatus(m_result.get()) == PGRES_SINGLE_TUPLE);
    }

    bool next() override
    {
        if (m_started && !m_atEnd)
            m_result = m_connection->nextResult(&m_fault);
        m_started = true;
        m_atEnd = m_atEnd || !m_result;
        // The result behind the last row has none.
        if (m_atEnd || PQntuples(m_result.get()) == 0)
            return takeEnd();
        return true;
    }

    StoredValue stored(int column) const override { return storedValue(m_result.get(), 0, column); }
    QVector<StoredColumn> columns() const override { return m_columns; }
    DatabaseFault fault() const override { return m_fault; }

private:
    bool takeEnd()
    {
        while (m_result && m_fault.kind == DatabaseFault::None)
            m_result = m_connection->nextResult(&m_fault);
        m_atEnd = true;
        return false;
    }

    PostgresConnection *m_connection;
    Piece m_result;
    QVector<StoredColumn> m_columns;
    DatabaseFault m_fault;
    bool m_started = false;
    bool m_atEnd = false;
};

/// What a fault's SQLSTATE tells.
DatabaseFault::Kind kindOfState(const QByteArray &state)
{
    static const QList<QByteArray> badValues{"22P02", "22003", "22007", "22008", "22021"};
    if (badValues.contains(state))
        return DatabaseFault::BadValue;
    if (state == "57014")
        return DatabaseFault::TimedOut;
    // Connection exceptions, and an administrator's shutdown.
    return state.startsWith("08") || state.startsWith("57P") ? DatabaseFault::Lost : DatabaseFault::Statement;
}

/// A fault in one line, with the server's hint.
QString wordsOf(const PGresult *result)
{
    const QString text = QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY));
    const QString hint = QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_HINT));
    if (text.isEmpty())
        return QString::fromUtf8(PQresultErrorMessage(result)).trimmed();
    return hint.isEmpty() ? text : text + QStringLiteral("; ") + hint;
}

void logNotice(void *, const char *message)
{
    qCDebug(lcDatabase).noquote() << QString::fromUtf8(message).trimmed();
}

} // namespace

PostgresConnection::PostgresConnection(const QString &address)
    : m_address(address)
{}

const SqlDialect &PostgresConnection::dialect() const
{
    static const PostgresDialect dialect;
    return dialect;
}

bool PostgresConnection::open(QString *fault)
{
    const QByteArray address = m_address.toUtf8();
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> parts(
        PQconninfoParse(address.constData(), nullptr), &PQconninfoFree);
    if (!parts) {
        // The library's own words may repeat the password.
        *fault = QStringLiteral("the address of the database is not of the form "
                                "postgresql://user@host:port/name?option=value");
        return false;
    }
    const char *const keys[] = {"connect_timeout", "fallback_application_name", "dbname", "client_encoding",
                                nullptr};
    const char *const values[] = {"10", "subject-service", address.constData(), "UTF8", nullptr};
    m_connection.reset(PQconnectdbParams(keys, values, 1));
    PGconn *connection = m_connection.get();
    if (PQstatus(connection) != CONNECTION_OK) {
        *fault = QStringLiteral("cannot open database: ") +
                 QString::fromUtf8(PQerrorMessage(connection)).trimmed();
        m_connection.reset();
        return false;
    }
    PQsetNoticeProcessor(connection, logNotice, nullptr);
    // Compiling a plan takes longer than a page's statement runs. A server without such settings may refuse
    // them.
    const QByteArray zone = "TimeZone = '" + QTimeZone::systemTimeZoneId() + '\'';
    for (const QByteArray &setting : {QByteArray("default_transaction_read_only = on"),
                                      QByteArray("DateStyle = ISO"), QByteArray("jit = off"), zone})
        Piece(PQexec(connection, ("SET " + setting).constData()), &PQclear);
    return true;
}

DatabaseFault PostgresConnection::lost() const
{
    return {DatabaseFault::Lost, m_connection
                                     ? QString::fromUtf8(PQerrorMessage(m_connection.get())).trimmed()
                                     : QStringLiteral("there is no connection")};
}

DatabaseFault PostgresConnection::faultOf(const PGresult *result) const
{
    const QByteArray state(PQresultErrorField(result, PG_DIAG_SQLSTATE));
    const QString text = wordsOf(result);
    if (PQstatus(m_connection.get()) == CONNECTION_BAD)
        return {DatabaseFault::Lost, text};
    const DatabaseFault::Kind kind = kindOfState(state);
    return {kind == DatabaseFault::TimedOut && m_limit.state() == RunLimit::Cancelled
                ? DatabaseFault::Cancelled
                : kind,
            text};
}

std::unique_ptr<RowStream> PostgresConnection::run(const BoundSql &sql, DatabaseFault *fault)
{
    m_limit.begin();
    m_isCancelAsked = false;
    const PostgresStatement statement(sql);
    if (!statement.isGood()) {
        *fault = {DatabaseFault::BadValue, QStringLiteral("a text holds the character U+0000")};
        return nullptr;
    }
    if (!m_connection || !statement.send(m_connection.get()) || PQsetSingleRowMode(m_connection.get()) != 1) {
        *fault = lost();
        return nullptr;
    }
    Piece first = nextResult(fault);
    return first ? std::make_unique<PostgresRows>(this, std::move(first)) : nullptr;
}

Piece PostgresConnection::nextResult(DatabaseFault *fault)
{
    while (m_connection && PQisBusy(m_connection.get())) {
        if (!waitForInput(fault))
            return Piece(nullptr, &PQclear);
    }
    Piece result(m_connection ? PQgetResult(m_connection.get()) : nullptr, &PQclear);
    const ExecStatusType status = result ? PQresultStatus(result.get()) : PGRES_TUPLES_OK;
    if (status == PGRES_TUPLES_OK || status == PGRES_SINGLE_TUPLE)
        return result;
    *fault = faultOf(result.get());
    finish(false);
    return Piece(nullptr, &PQclear);
}

/// Waits until something has arrived. Where the limit is over the server is asked to end the statement, and
/// given up when it does not answer.
bool PostgresConnection::waitForInput(DatabaseFault *fault)
{
    PGconn *connection = m_connection.get();
    pollfd wanted{PQsocket(connection), POLLIN, 0};
    PQflush(connection);
    for (;;) {
        const int ready = ::poll(&wanted, 1, m_isCancelAsked ? GraceMilliseconds : LookMilliseconds);
        if (ready > 0 && PQconsumeInput(connection) == 1)
            return true;
        if (ready > 0 || (ready < 0 && errno != EINTR) || (ready == 0 && m_isCancelAsked)) {
            *fault = lost();
            m_connection.reset();
            return false;
        }
        if (!m_isCancelAsked && m_limit.state() != RunLimit::Running)
            askForCancel();
    }
}

void PostgresConnection::askForCancel()
{
    m_isCancelAsked = true;
    const std::unique_ptr<PGcancel, decltype(&PQfreeCancel)> request(PQgetCancel(m_connection.get()),
                                                                     &PQfreeCancel);
    char fault[256] = "";
    if (!request || !PQcancel(request.get(), fault, sizeof fault))
        qCWarning(lcDatabase) << "a statement could not be cancelled:" << fault;
}

void PostgresConnection::finish(bool rowsRemain)
{
    if (!m_connection || PQtransactionStatus(m_connection.get()) != PQTRANS_ACTIVE)
        return;
    if (rowsRemain)
        askForCancel();
    DatabaseFault ignored;
    do {
        while (m_connection && PQisBusy(m_connection.get()))
            waitForInput(&ignored);
    } while (m_connection && Piece(PQgetResult(m_connection.get()), &PQclear));
}

} // namespace service
