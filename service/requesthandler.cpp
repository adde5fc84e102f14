#include "requesthandler.h"

#include "crosstable.h"
#include "database.h"
#include "filtersql.h"
#include "jsonwriter.h"
#include "rowselect.h"
#include "rowwriter.h"

#include <algorithm>

namespace service {

namespace {

const int CellsPerRow = 10; // that a cross view may read, on average
const int UsualReply = 64 * 1024;
const char EnvelopeHead[] = "{\"state\":1,\"msg\":\"\",\"extend\":null,\"data\":";

/// What `objId` of `/bas/ds/data` asks for.
enum NamedObject { NavigationObject = 38, BlockObject = 43, ConstantsObject = 390 };

/// The beginning of a good reply. Rows are appended to it as they come, so that they are written once.
QByteArray newBody(const char *start)
{
    QByteArray body;
    body.reserve(UsualReply);
    return body += EnvelopeHead + QByteArray(start);
}

/// The reply that \a body is, once the envelope is closed.
Reply closed(QByteArray &&body, qint64 rows = 0)
{
    body += '}';
    return {200, std::move(body), rows, {}};
}

Reply reply(const QByteArray &data)
{
    QByteArray body = EnvelopeHead + data;
    return closed(std::move(body));
}

void appendSummaryItem(QByteArray &out, const char *item, qint64 value)
{
    out += QByteArray("{\"Item\":\"") + item + "\",\"value\":";
    json::appendInteger(out, value);
    out += '}';
}

/// The member "Summary". Without paging the one page is as large as the data set.
QByteArray summary(qint64 total, const std::optional<Page> &page)
{
    QByteArray out("\"Summary\":[");
    appendSummaryItem(out, "rcount", total);
    out += ',';
    appendSummaryItem(out, "pindex", page ? page->number : 1);
    out += ',';
    appendSummaryItem(out, "psize", page ? page->size : std::max<qint64>(total, 1));
    return out;
}

/// Total of a paged data set. A page that is not full tells it; only else the database has to count.
Result<qint64> totalRows(const RowSelect &select, const std::optional<Page> &page, qint64 rows,
                         Database &database)
{
    if (!page)
        return rows;
    if (rows < page->size && (rows > 0 || page->number == 1))
        return qint64(page->number - 1) * page->size + rows;
    return database.count(select.matching);
}

/// A refusal for a reply that would have more than \a limit rows.
Refusal tooManyRows(int limit)
{
    return {400, QStringLiteral("size: more than %1 rows; ask for them page by page").arg(limit)};
}

/// Appends the rows of \a sql, which asks for one row more than may be sent, and gives their number.
Result<qint64> appendRows(QByteArray &out, const BoundSql &sql, const Columns &columns, int limit,
                          Database &database)
{
    Result<Cursor> cursor = database.select(sql);
    if (!cursor.ok())
        return cursor.refusal();
    const qint64 count = RowWriter(columns).appendAll(out, cursor.value());
    if (!cursor.value().isGood())
        return cursor.value().refusal();
    if (count > limit)
        return tooManyRows(limit);
    return count;
}

} // namespace

Reply RequestHandler::refusal(const Refusal &refusal)
{
    Reply result;
    result.status = refusal.status;
    result.body = "{\"state\":";
    json::appendInteger(result.body, -refusal.status);
    result.body += ",\"msg\":";
    json::appendText(result.body, refusal.message);
    result.body += ",\"extend\":null,\"data\":null}";
    return result;
}

namespace {

Reply finished(const Result<Reply> &result, const QString &target)
{
    Reply reply = result.ok() ? result.value() : RequestHandler::refusal(result.refusal());
    reply.target = target;
    return reply;
}

} // namespace

Reply RequestHandler::subjectData(const QByteArray &body, const Identity &identity, Database &database) const
{
    const Result<QJsonObject> object = readBody(body);
    if (!object.ok())
        return refusal(object.refusal());
    const Result<ViewRequest> request = readViewRequest(object.value(), m_limits.rows);
    if (!request.ok())
        return refusal(request.refusal());
    return finished(view(request.value(), identity, database), QString::number(request.value().view));
}

Reply RequestHandler::namedData(const QByteArray &body, const Identity &identity, Database &database) const
{
    const Result<QJsonObject> object = readBody(body);
    if (!object.ok())
        return refusal(object.refusal());
    const QString name = object.value().value(QLatin1String("objName")).toString();
    if (!name.isEmpty())
        return finished(list(name, object.value(), database), QStringLiteral("list ") + name);
    const Result<qint64> id = readWhole(object.value(), QStringLiteral("objId"));
    if (!id.ok())
        return refusal(
            {400, QStringLiteral("objId: expected a whole number, or objName with the name of a list")});
    return finished(named(id.value(), object.value(), identity, database),
                    QStringLiteral("object %1").arg(id.value()));
}

Result<Reply> RequestHandler::view(const ViewRequest &request, const Identity &identity,
                                   Database &database) const
{
    const ServedView *view = m_library.view(request.view);
    // A view that is kept from somebody must not be told from one that there is not.
    if (!view || !identity.maySee(view->document.products))
        return Refusal{400, QStringLiteral("obj_vw_id: no view %1").arg(request.view)};
    if (request.part == ViewPart::Configuration)
        return reply('{' + m_library.configuration(*view, identity) + '}');
    return rows(*view, request, identity, database);
}

Result<Reply> RequestHandler::rows(const ServedView &view, const ViewRequest &request,
                                   const Identity &identity, Database &database) const
{
    // The configuration's members where the whole document is asked for.
    const QByteArray head =
        request.part == ViewPart::Whole ? m_library.configuration(view, identity) + ',' : QByteArray();
    const Result<RowSelect> select = selectRows(view, request, m_limits.filterDepth);
    if (!select.ok())
        return select.refusal();
    if (view.document.cross.isSet())
        return crossTable(view, request, select.value(), head, database);
    QByteArray body = newBody("{");
    body += head;
    body += "\"Data\":";
    const Page wanted = request.page.value_or(Page{1, m_limits.rows + 1});
    const Result<qint64> count =
        appendRows(body, select.value().page(wanted), view.columns, m_limits.rows, database);
    if (!count.ok())
        return count.refusal();
    const Result<qint64> total = totalRows(select.value(), request.page, count.value(), database);
    if (!total.ok())
        return total.refusal();
    body += ',' + summary(total.value(), request.page) + "]}";
    return closed(std::move(body), count.value());
}

Result<Reply> RequestHandler::crossTable(const ServedView &view, const ViewRequest &request,
                                         const RowSelect &select, const QByteArray &head,
                                         Database &database) const
{
    Result<Cursor> cells = database.select(select.page(std::nullopt));
    if (!cells.ok())
        return cells.refusal();
    const Result<CrossRows> cross =
        crossRows(view, cells.value(), request.page, qint64(m_limits.rows) * CellsPerRow);
    if (!cross.ok())
        return cross.refusal();
    QByteArray body = newBody("{") + head + "\"Data\":" + cross.value().data + ',' +
                      summary(cross.value().count, request.page) + ",{\"Item\":\"GridColumns\",\"value\":";
    json::appendUtf8(body, cross.value().gridColumns);
    body += "}]}";
    return closed(std::move(body), cross.value().count);
}

Result<Reply> RequestHandler::list(const QString &name, const QJsonObject &body, Database &database) const
{
    if (const RowSource *list = m_library.catalogue().list(name))
        return filtered(*list, body, database);
    return Refusal{400, QStringLiteral("objName: no list \"%1\"").arg(name)};
}

Result<Reply> RequestHandler::named(qint64 id, const QJsonObject &body, const Identity &identity,
                                    Database &database) const
{
    switch (id) {
    case NavigationObject:
        return navigation(body, identity, database);
    case BlockObject:
        return filtered(m_library.catalogue().blocks(), body, database);
    case ConstantsObject:
        return filtered(m_library.catalogue().constants(), body, database);
    default:
        return Refusal{400, QStringLiteral("objId: no object %1").arg(id)};
    }
}

Result<Reply> RequestHandler::navigation(const QJsonObject &body, const Identity &identity,
                                         Database &database) const
{
    const Result<qint64> code = readWhole(body, QStringLiteral("P_NODE_CODE"));
    if (!code.ok())
        return code.refusal();
    QByteArray nodes = m_library.catalogue().topic(code.value()).rows([this, &identity](qint64 view) {
        return m_library.isVisible(view, identity);
    });
    if (nodes.isEmpty())
        return Refusal{400, QStringLiteral("P_NODE_CODE: no topic %1").arg(code.value())};
    const RowSource &constants = m_library.catalogue().constants();
    if (constants.sql.text.isEmpty())
        return reply('[' + nodes + ']');
    Result<Cursor> cursor = database.select(constants.sql);
    if (!cursor.ok())
        return cursor.refusal();
    // A tree drops rows with the code of its root, and the table of constants takes them.
    QByteArray mark(",{\"NODE_CODE\":");
    json::appendInteger(mark, code.value());
    RowWriter writer(constants.columns);
    while (cursor.value().next()) {
        nodes += mark;
        for (int i = 0; i < constants.columns.names().size(); ++i) {
            nodes += ',';
            writer.appendMember(nodes, cursor.value(), i);
        }
        nodes += '}';
    }
    if (!cursor.value().isGood())
        return cursor.value().refusal();
    return reply('[' + nodes + ']');
}

Result<Reply> RequestHandler::filtered(const RowSource &source, const QJsonObject &body,
                                       Database &database) const
{
    if (source.sql.text.isEmpty())
        return reply("[]");
    const Result<QString> text = readFilterText(body);
    if (!text.ok())
        return text.refusal();
    const Result<QJsonObject> parameters = readFilterParams(body);
    if (!parameters.ok())
        return parameters.refusal();
    const Result<BoundSql> filter =
        filterCondition(text.value(), parameters.value(), source.columns, m_limits.filterDepth);
    if (!filter.ok())
        return filter.refusal();
    BoundSql sql = restricted(source.sql, {filter.value()});
    sql.append({QStringLiteral(" LIMIT ?"), {m_limits.rows + 1}});
    QByteArray out = newBody("");
    const Result<qint64> count = appendRows(out, sql, source.columns, m_limits.rows, database);
    if (!count.ok())
        return count.refusal();
    return closed(std::move(out), count.value());
}

} // namespace service
