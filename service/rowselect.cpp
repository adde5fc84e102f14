#include "rowselect.h"

#include "filtersql.h"

#include <algorithm>

namespace service {

namespace {

const int ConditionPrefixLength = 7; // "SELECT ", see ViewDocument::blockCondition

/// The codes for a column of that type; one that is no number can't be in a column of numbers.
QVariantList comparableCodes(const QVariantList &codes, StoredType stored)
{
    if (stored == StoredType::Unknown)
        return codes;
    QVariantList result;
    for (const QVariant &code : codes) {
        bool isNumber = true;
        const double number = code.toDouble(&isNumber);
        if (stored != StoredType::Number && stored != StoredType::Truth)
            result << code.toString();
        else if (isNumber)
            result << boundNumber(number);
    }
    return result;
}

BoundSql blockCondition(const ServedView &served, const QVariantList &codes)
{
    const ViewDocument &view = served.document;
    if (codes.isEmpty() || (view.blockField.isEmpty() && view.blockCondition.isEmpty()))
        return {};
    if (!view.blockCondition.isEmpty()) {
        BoundSql condition = view.blockCondition.bind({{QStringLiteral("CODES"), codes}});
        condition.text = QLatin1Char('(') + condition.text.mid(ConditionPrefixLength) + QLatin1Char(')');
        return condition;
    }
    const Columns &columns = served.columns;
    const StoredType stored = columns.stored(view.blockField);
    BoundSql condition{
        columns.dialect().comparable(columns.inSql(view.blockField), stored) + QStringLiteral(" IN ("), {}};
    condition.append(boundList(comparableCodes(codes, stored), columns.dialect().mark(stored)));
    condition.text += QLatin1Char(')');
    return condition;
}

/// The request's terms. They come as an object, whose keys have lost their order; fields that the view's own
/// order names stand as they stand there, others behind them.
QVector<OrderTerm> effectiveOrder(const ViewDocument &view, const QVector<OrderTerm> &asked)
{
    if (asked.isEmpty())
        return view.order;
    const auto rank = [&view](const OrderTerm &term) {
        const auto it = std::find_if(view.order.begin(), view.order.end(),
                                     [&term](const OrderTerm &own) { return own.field == term.field; });
        return it - view.order.begin();
    };
    QVector<OrderTerm> order = asked;
    std::stable_sort(order.begin(), order.end(),
                     [&rank](const OrderTerm &a, const OrderTerm &b) { return rank(a) < rank(b); });
    return order;
}

/// Columns that make any order total: the view's key, or all columns where pages have to fit together.
QStringList tieBreakers(const ServedView &view, bool isPaged)
{
    if (view.document.cross.isSet())
        return view.document.cross.rows;
    if (!view.document.key.isEmpty() || !isPaged)
        return view.document.key;
    return view.columns.names();
}

QString orderClause(const QVector<OrderTerm> &order, const QStringList &tieBreakers, const Columns &columns)
{
    QStringList terms;
    QSet<QString> used;
    const auto add = [&](const QString &field, bool isDescending) {
        if (used.contains(field))
            return;
        used << field;
        terms << columns.dialect().orderTerm(columns.inSql(field), columns.stored(field), isDescending);
    };
    for (const OrderTerm &term : order)
        add(term.field, term.descending);
    for (const QString &field : tieBreakers)
        add(field, false);
    return terms.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + terms.join(QStringLiteral(", "));
}

} // namespace

BoundSql RowSelect::page(const std::optional<Page> &page) const
{
    BoundSql sql{matching.text + order, matching.values};
    if (page) {
        const qint64 offset = qint64(page->number - 1) * page->size;
        sql.append({QStringLiteral(" LIMIT ? OFFSET ?"), {page->size, offset}});
    }
    return sql;
}

BoundSql restricted(const BoundSql &base, const QVector<BoundSql> &conditions)
{
    BoundSql sql{QStringLiteral("SELECT * FROM (") + base.text + QStringLiteral(") AS base"), base.values};
    QString joint = QStringLiteral(" WHERE ");
    for (const BoundSql &condition : conditions) {
        if (condition.text.isEmpty())
            continue;
        sql.text += joint;
        sql.append(condition);
        joint = QStringLiteral(" AND ");
    }
    return sql;
}

Result<RowSelect> selectRows(const ServedView &view, const ViewRequest &request, int filterDepth)
{
    const ViewDocument &document = view.document;
    const QVector<OrderTerm> order = effectiveOrder(document, request.order);
    for (const OrderTerm &term : order) {
        if (!view.columns.contains(term.field))
            return Refusal{
                400, QStringLiteral("order: no field \"%1\"; %2").arg(term.field, view.columns.listing())};
    }
    const Result<QHash<QString, QVariant>> parameters = readParameters(document.params, request.body);
    if (!parameters.ok())
        return parameters.refusal();
    const Result<BoundSql> filter =
        filterCondition(request.filter, request.filterParams, view.columns, filterDepth);
    if (!filter.ok())
        return filter.refusal();
    const BoundSql base = document.sql.bind(parameters.value());
    return RowSelect{restricted(base, {filter.value(), blockCondition(view, request.blocks)}),
                     orderClause(order, tieBreakers(view, request.page.has_value()), view.columns)};
}

} // namespace service
