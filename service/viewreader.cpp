#include "viewreader.h"

#include "bandreader.h"
#include "viewrules.h"

#include <QRegularExpression>

namespace service {

namespace {

const QLatin1String ParameterCategoryKey("ParameterCategory");
const QLatin1String FieldNameKey("FieldName");

QJsonArray readFilters(const QJsonArray &array, const ViewDocument &view, const DocumentPlace &place)
{
    QJsonArray filters;
    for (int i = 0; i < array.size(); ++i) {
        const DocumentPlace at = place.element(i);
        const QJsonObject filter = checkedObject(array.at(i), rules::filter(), at);
        const QString field = filter.value(FieldNameKey).toString();
        const bool feedsParameter = filter.value(ParameterCategoryKey).toInt() == 1;
        if (feedsParameter && !field.isEmpty() && !view.params.contains(field))
            at.member(FieldNameKey).fault(QStringLiteral("no parameter \"%1\" in params").arg(field));
        filters << filter;
    }
    return filters;
}

/// The products that may see the view, as a text or a list; a view for nobody is a mistake.
QStringList readProducts(const QJsonValue &value, const DocumentPlace &place)
{
    if (value.isUndefined())
        return {};
    const QStringList products = value.isString() ? QStringList{value.toString()} : texts(value, place);
    if (products.isEmpty())
        place.fault(QStringLiteral("expected a product at least; without the key all may see the view"));
    static const QRegularExpression name(QStringLiteral("^[^\\s,*]+$"));
    for (const QString &product : products) {
        if (!name.match(product).hasMatch())
            place.fault(
                QStringLiteral("\"%1\" is no product's name: no blanks, commas or \"*\"").arg(product));
    }
    return products;
}

QVector<ChildView> readChildViews(const QJsonArray &array, const DocumentPlace &place)
{
    QVector<ChildView> children;
    for (int i = 0; i < array.size(); ++i) {
        const DocumentPlace at = place.element(i);
        const QJsonObject object = checkedObject(array.at(i), rules::childView(), at);
        ChildView child;
        child.view = static_cast<qint64>(object.value(QLatin1String("view")).toDouble());
        child.caption = object.value(QLatin1String("caption")).toString();
        const QJsonObject link = object.value(QLatin1String("link")).toObject();
        for (auto it = link.begin(); it != link.end(); ++it) {
            if (isComment(it.key()))
                continue;
            if (!it.value().isString())
                at.member(QStringLiteral("link"))
                    .member(it.key())
                    .wrongType(QStringLiteral("a text"), it.value());
            child.link << qMakePair(it.key(), it.value().toString());
        }
        children << child;
    }
    return children;
}

QJsonObject readChart(const QJsonObject &object, const DocumentPlace &place)
{
    QJsonObject chart = checkedObject(object, rules::chart(), place);
    const QString key = QStringLiteral("ChartDataConfigs");
    const QJsonArray given = chart.value(key).toArray();
    QJsonArray series;
    for (int i = 0; i < given.size(); ++i)
        series << checkedObject(given.at(i), rules::chartSeries(), place.member(key).element(i));
    chart.insert(key, series);
    return chart;
}

CrossTable readCross(const QJsonObject &object, const DocumentPlace &place)
{
    const QJsonObject checked = checkedObject(object, rules::cross(), place);
    CrossTable cross;
    cross.rows = texts(checked.value(QLatin1String("rows")), place.member(QStringLiteral("rows")));
    cross.column = checked.value(QLatin1String("column")).toString();
    cross.values = texts(checked.value(QLatin1String("values")), place.member(QStringLiteral("values")));
    cross.caption = checked.value(QLatin1String("caption")).toString();
    cross.columnOrder = checked.value(QLatin1String("columnOrder")).toString();
    if (cross.columnOrder.isEmpty())
        cross.columnOrder = cross.column;
    return cross;
}

void readBlock(const QJsonValue &value, ViewDocument *view, const DocumentPlace &place)
{
    if (value.isUndefined())
        return;
    if (value.isString()) {
        view->blockField = value.toString();
        return;
    }
    static const MemberRules rules{{"condition", MemberType::Text, true}};
    const QString condition = checkedObject(value, rules, place).value(QLatin1String("condition")).toString();
    const DocumentPlace at = place.member(QStringLiteral("condition"));
    QString fault;
    // The condition has the same lexical rules as a statement, so it is read as one.
    view->blockCondition = SqlTemplate::parse(QStringLiteral("SELECT ") + condition, &fault);
    if (!fault.isEmpty())
        at.fault(fault);
    else if (view->blockCondition.parameterNames() != QStringList{QStringLiteral("CODES")})
        at.fault(QStringLiteral("the condition takes the one parameter :CODES"));
}

QVariant readDefault(const QJsonValue &value, const DocumentPlace &place)
{
    if (value.isArray()) {
        QVariantList list;
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            list << readDefault(array.at(i), place.element(i));
        return list;
    }
    if (value.isDouble())
        return boundNumber(value.toDouble());
    if (value.isString())
        return value.toString();
    if (!value.isNull())
        place.wrongType(QStringLiteral("a text, a number, null or an array"), value);
    return QVariant(QVariant::String);
}

QStringList readKey(const QJsonValue &value, const DocumentPlace &place)
{
    if (value.isUndefined())
        return {};
    return value.isString() ? QStringList{value.toString()} : texts(value, place);
}

} // namespace

QString textOrLines(const QJsonValue &value, QChar separator, const DocumentPlace &place)
{
    return value.isString() ? value.toString() : texts(value, place).join(separator);
}

QStringList texts(const QJsonValue &value, const DocumentPlace &place)
{
    QStringList list;
    if (!value.isArray())
        place.wrongType(QStringLiteral("an array of texts"), value);
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isString())
            place.element(i).wrongType(QStringLiteral("a text"), array.at(i));
        list << array.at(i).toString();
    }
    return list;
}

QHash<QString, QVariant> readParams(const QJsonObject &params, const DocumentPlace &place)
{
    QHash<QString, QVariant> defaults;
    for (auto it = params.begin(); it != params.end(); ++it) {
        if (!isComment(it.key()))
            defaults.insert(it.key(), readDefault(it.value(), place.member(it.key())));
    }
    return defaults;
}

SqlTemplate readSql(const QJsonValue &value, const QHash<QString, QVariant> &params,
                    const DocumentPlace &place)
{
    if (value.isUndefined())
        return {};
    QString fault;
    const SqlTemplate sql = SqlTemplate::parse(textOrLines(value, QLatin1Char('\n'), place), &fault);
    if (!fault.isEmpty())
        place.fault(fault);
    for (const QString &name : sql.parameterNames()) {
        if (!params.contains(name))
            place.fault(QStringLiteral("the parameter :%1 is not in params").arg(name));
    }
    return sql;
}

QVector<OrderTerm> readOrder(const QString &text, const DocumentPlace &place)
{
    QVector<OrderTerm> order;
    const QStringList terms = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &term : terms) {
        const QStringList words = term.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QString direction = words.value(1).toUpper();
        const bool isDescending = direction == QLatin1String("DESC");
        if (words.size() != 2 || (!isDescending && direction != QLatin1String("ASC")))
            place.fault(QStringLiteral("\"%1\" is not a column with ASC or DESC").arg(term.trimmed()));
        else
            order << OrderTerm{words.first(), isDescending};
    }
    return order;
}

ViewDocument readView(const QJsonObject &object, const DocumentPlace &place)
{
    const QJsonObject checked = checkedObject(object, rules::view(), place);
    const auto at = [&place](const char *key) { return place.member(QLatin1String(key)); };
    const auto value = [&checked](const char *key) { return checked.value(QLatin1String(key)); };
    ViewDocument view;
    view.id = static_cast<qint64>(value("id").toDouble());
    view.name = value("name").toString();
    view.source = value("source").toString();
    view.products = readProducts(value("products"), at("products"));
    view.params = readParams(value("params").toObject(), at("params"));
    view.sql = readSql(value("sql"), view.params, at("sql"));
    view.key = readKey(value("key"), at("key"));
    view.orderText = value("order").toString();
    view.order = readOrder(view.orderText, at("order"));
    view.properties = checkedObject(value("properties").toObject(), rules::properties(), at("properties"));
    view.bands = readBands(value("bands").toArray(), at("bands"));
    view.fields = readFields(value("fields").toObject(), at("fields"));
    view.filters = readFilters(value("filters").toArray(), view, at("filters"));
    view.childViews = readChildViews(value("childViews").toArray(), at("childViews"));
    if (checked.contains(QLatin1String("chart")))
        view.chart = readChart(value("chart").toObject(), at("chart"));
    if (checked.contains(QLatin1String("cross")))
        view.cross = readCross(value("cross").toObject(), at("cross"));
    readBlock(value("block"), &view, at("block"));
    if (view.bands.isEmpty() && view.chart.isEmpty())
        at("bands").fault(QStringLiteral("a view needs bands or a chart"));
    return view;
}

} // namespace service
