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

const char EnvelopeHead[] = "{\"state\":1,\"msg\":\"\",\"extend\":null,\"data\":";

/// What `objId` of `/bas/ds/data` asks for.
enum NamedObject { NavigationObject = 38, BlockObject = 43, ConstantsObject = 390 };

Reply reply(const QByteArray &data, qint64 rows = 0)
{
    return {200, EnvelopeHead + data + '}', rows};
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

/// The configuration's members where the whole document is asked for, with a comma behind them.
QByteArray configurationPart(const ServedView &view, ViewPart part)
{
    return part == ViewPart::Whole ? view.configuration + ',' : QByteArray();
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

Result<QByteArray> allRows(const BoundSql &sql, const Columns &columns, Database &database, qint64 *count)
{
    Result<Cursor> cursor = database.select(sql);
    if (!cursor.ok())
        return cursor.refusal();
    QByteArray data;
    *count = RowWriter(columns).appendAll(data, cursor.value());
    if (!cursor.value().isGood())
        return Database::fault();
    return data;
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

Reply RequestHandler::subjectData(const QByteArray &body, Database &database) const
{
    const Result<Reply> result = view(body, database);
    return result.ok() ? result.value() : refusal(result.refusal());
}

Reply RequestHandler::namedData(const QByteArray &body, Database &database) const
{
    const Result<Reply> result = named(body, database);
    return result.ok() ? result.value() : refusal(result.refusal());
}

Result<Reply> RequestHandler::view(const QByteArray &body, Database &database) const
{
    const Result<QJsonObject> object = readBody(body);
    if (!object.ok())
        return object.refusal();
    const Result<ViewRequest> request = readViewRequest(object.value());
    if (!request.ok())
        return request.refusal();
    const ServedView *view = m_library.view(request.value().view);
    if (!view)
        return Refusal{400, QStringLiteral("obj_vw_id: no view %1").arg(request.value().view)};
    if (request.value().part == ViewPart::Configuration)
        return reply('{' + view->configuration + '}');
    return rows(*view, request.value(), database);
}

Result<Reply> RequestHandler::rows(const ServedView &view, const ViewRequest &request,
                                   Database &database) const
{
    const Result<RowSelect> select = selectRows(view, request);
    if (!select.ok())
        return select.refusal();
    if (view.document.cross.isSet())
        return crossTable(view, request, select.value(), database);
    qint64 count = 0;
    const Result<QByteArray> data =
        allRows(select.value().page(request.page), view.columns, database, &count);
    if (!data.ok())
        return data.refusal();
    const Result<qint64> total = totalRows(select.value(), request.page, count, database);
    if (!total.ok())
        return total.refusal();
    return reply('{' + configurationPart(view, request.part) + "\"Data\":" + data.value() + ',' +
                     summary(total.value(), request.page) + "]}",
                 count);
}

Result<Reply> RequestHandler::crossTable(const ServedView &view, const ViewRequest &request,
                                         const RowSelect &select, Database &database) const
{
    Result<Cursor> cells = database.select(select.page(std::nullopt));
    if (!cells.ok())
        return cells.refusal();
    const Result<CrossRows> cross = crossRows(view, cells.value(), request.page);
    if (!cross.ok())
        return cross.refusal();
    QByteArray data = '{' + configurationPart(view, request.part) + "\"Data\":" + cross.value().data + ',' +
                      summary(cross.value().count, request.page) + ",{\"Item\":\"GridColumns\",\"value\":";
    json::appendUtf8(data, cross.value().gridColumns);
    return reply(data + "}]}", cross.value().count);
}

Result<Reply> RequestHandler::named(const QByteArray &body, Database &database) const
{
    const Result<QJsonObject> object = readBody(body);
    if (!object.ok())
        return object.refusal();
    const QString name = object.value().value(QLatin1String("objName")).toString();
    if (!name.isEmpty()) {
        if (const RowSource *list = m_library.catalogue().list(name))
            return filtered(*list, object.value(), database);
        return Refusal{400, QStringLiteral("objName: no list \"%1\"").arg(name)};
    }
    const Result<qint64> id = readWhole(object.value(), QStringLiteral("objId"));
    if (!id.ok())
        return Refusal{400,
                       QStringLiteral("objId: expected a whole number, or objName with the name of a list")};
    switch (id.value()) {
    case NavigationObject:
        return navigation(object.value(), database);
    case BlockObject:
        return filtered(m_library.catalogue().blocks(), object.value(), database);
    case ConstantsObject:
        return filtered(m_library.catalogue().constants(), object.value(), database);
    default:
        return Refusal{400, QStringLiteral("objId: no object %1").arg(id.value())};
    }
}

Result<Reply> RequestHandler::navigation(const QJsonObject &body, Database &database) const
{
    const Result<qint64> code = readWhole(body, QStringLiteral("P_NODE_CODE"));
    if (!code.ok())
        return code.refusal();
    QByteArray nodes = m_library.catalogue().topicRows(code.value());
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
        return Database::fault();
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
    const Result<BoundSql> filter = filterCondition(text.value(), parameters.value(), source.columns);
    if (!filter.ok())
        return filter.refusal();
    qint64 count = 0;
    const Result<QByteArray> data =
        allRows(restricted(source.sql, {filter.value()}), source.columns, database, &count);
    if (!data.ok())
        return data.refusal();
    return reply(data.value(), count);
}

} // namespace service
