#include "filtersql.h"

#include "wiredate.h"

#include <QJsonArray>

namespace service {

namespace {

const int MaxListLength = 10000;

/// Builds the SQL of one condition.
class ConditionWriter
{
public:
    ConditionWriter(const FilterCondition &condition, const QJsonObject &parameters, const Columns &columns)
        : m_condition(condition)
        , m_parameters(parameters)
        , m_columns(columns)
    {}

    Result<BoundSql> write()
    {
        if (!m_columns.contains(m_condition.field))
            return refuse(filterPlace(m_condition.fieldPosition),
                          QStringLiteral("no field \"%1\"; %2").arg(m_condition.field, m_columns.listing()));
        if (!m_condition.parameter.isEmpty() && !m_parameters.contains(m_condition.parameter))
            return refuse(filterPlace(m_condition.operandPosition),
                          QStringLiteral("no value for :%1 in filterParams").arg(m_condition.parameter));
        m_kind = m_columns.comparedAs(m_condition.field);
        const StoredType stored = m_columns.stored(m_condition.field);
        m_column = m_columns.dialect().comparable(m_columns.inSql(m_condition.field), stored);
        m_mark = m_columns.dialect().mark(stored);
        const QJsonValue value =
            m_condition.parameter.isEmpty() ? m_condition.literal : m_parameters.value(m_condition.parameter);
        if (m_condition.op == FilterOperator::In || m_condition.op == FilterOperator::NotIn)
            return membership(value);
        if (value.isArray() || value.isObject())
            return refuse(
                valuePlace(),
                QStringLiteral("operator %1 takes one text or number").arg(operatorText(m_condition.op)));
        if (value.isNull())
            return nullTest();
        return m_kind == ValueKind::Date && m_condition.op != FilterOperator::Like &&
                       m_condition.op != FilterOperator::And
                   ? dateTest(value)
                   : plainTest(value);
    }

private:
    static QString filterPlace(int position) { return QStringLiteral("filter: position %1").arg(position); }

    QString valuePlace() const
    {
        return m_condition.parameter.isEmpty() ? filterPlace(m_condition.operandPosition)
                                               : QStringLiteral("filterParams.") + m_condition.parameter;
    }

    static Refusal refuse(const QString &place, const QString &text)
    {
        return {400, place + QStringLiteral(": ") + text};
    }

    BoundSql compare(const char *sqlOperator, const QVariant &value) const
    {
        return {m_column + QLatin1Char(' ') + QLatin1String(sqlOperator) + QLatin1Char(' ') + m_mark,
                {value}};
    }

    Result<BoundSql> nullTest() const
    {
        if (m_condition.op == FilterOperator::Equal)
            return BoundSql{m_column + QStringLiteral(" IS NULL"), {}};
        if (m_condition.op == FilterOperator::NotEqual)
            return BoundSql{m_column + QStringLiteral(" IS NOT NULL"), {}};
        return refuse(valuePlace(), QStringLiteral("null goes with == and != only"));
    }

    Result<BoundSql> plainTest(const QJsonValue &value) const
    {
        if (m_condition.op == FilterOperator::Like)
            return BoundSql{m_columns.dialect().like(m_column, m_columns.stored(m_condition.field)),
                            {likePattern(value)}};
        const Result<QVariant> bound = scalar(value);
        if (!bound.ok())
            return bound.refusal();
        if (m_condition.op == FilterOperator::And)
            return bothHold(bound.value());
        static const char *const sqlOperators[] = {">", ">=", "<", "<=", "=", "<>"};
        return compare(sqlOperators[static_cast<int>(m_condition.op)], bound.value());
    }

    /// A text is other than 0 whatever it says.
    BoundSql bothHold(const QVariant &value) const
    {
        const bool isText = value.userType() == QMetaType::QString;
        const bool isStoredText = m_columns.stored(m_condition.field) == StoredType::Text;
        const QString zero = isStoredText ? QStringLiteral("'0'") : QStringLiteral("0");
        return {QStringLiteral("(%1 <> %2 AND ? <> 0)").arg(m_column, zero), {isText ? QVariant(1) : value}};
    }

    /// A text without a wildcard is looked for anywhere in the field; one with "%" is the pattern itself.
    static QString likePattern(const QJsonValue &value)
    {
        QString text = value.toVariant().toString();
        const bool isPattern = text.contains(QLatin1Char('%'));
        text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
        if (isPattern)
            return text;
        text.replace(QLatin1Char('_'), QLatin1String("\\_"));
        return QLatin1Char('%') + text + QLatin1Char('%');
    }

    /// A value as the column compares it: SQLite, for one, finds the text '5' unequal to the number 5.
    Result<QVariant> scalar(const QJsonValue &value) const
    {
        const QVariant given = value.toVariant();
        if (m_kind == ValueKind::Text)
            return QVariant(unquoted(given.toString()));
        if (m_kind != ValueKind::Number)
            return value.isString() ? QVariant(unquoted(given.toString())) : given;
        bool isNumber = false;
        const double number =
            value.isString() ? given.toString().toDouble(&isNumber) : given.toDouble(&isNumber);
        if (!isNumber)
            return refuse(valuePlace(), QStringLiteral("\"%1\" is no number").arg(given.toString()));
        return boundNumber(number);
    }

    static QString unquoted(const QString &text)
    {
        const QLatin1Char quote('\'');
        return text.size() >= 2 && text.startsWith(quote) && text.endsWith(quote)
                   ? text.mid(1, text.size() - 2)
                   : text;
    }

    Result<WireDate> date(const QJsonValue &value) const
    {
        const QString text =
            value.isDouble() ? QString::number(static_cast<qint64>(value.toDouble())) : value.toString();
        if (const auto date = readWireDate(text))
            return *date;
        return refuse(valuePlace(), QStringLiteral("\"%1\" is no date").arg(text));
    }

    /// Dates stand as `yyyy-MM-dd` or `yyyy-MM-dd hh:mm:ss`, so a midnight has two spellings; the
    /// comparisons are chosen so that both are met by plain text order, and an index stays usable.
    Result<BoundSql> dateTest(const QJsonValue &value) const
    {
        const Result<WireDate> read = date(value);
        if (!read.ok())
            return read.refusal();
        const WireDate &date = read.value();
        const QString first = isoText(date.first);
        const QString last = fullText(date.last);
        switch (m_condition.op) {
        case FilterOperator::Greater:
            return compare(">", last);
        case FilterOperator::GreaterOrEqual:
            return compare(">=", first);
        case FilterOperator::Less:
            return compare("<", first);
        case FilterOperator::LessOrEqual:
            return compare("<=", last);
        case FilterOperator::Equal:
            return between("BETWEEN", first, last);
        default:
            return between("NOT BETWEEN", first, last);
        }
    }

    BoundSql between(const char *word, const QString &first, const QString &last) const
    {
        return {QStringLiteral("%1 %2 %3 AND %3").arg(m_column, QLatin1String(word), m_mark), {first, last}};
    }

    static QString fullText(const QDateTime &moment)
    {
        return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    }

    Result<BoundSql> membership(const QJsonValue &value) const
    {
        const QJsonArray items = value.isArray() ? value.toArray() : QJsonArray{value};
        if (items.size() > MaxListLength)
            return refuse(valuePlace(), QStringLiteral("more than %1 values").arg(MaxListLength));
        QVariantList bound;
        for (const QJsonValue &item : items) {
            if (item.isArray() || item.isObject() || item.isNull())
                return refuse(valuePlace(), QStringLiteral("a list holds texts and numbers only"));
            if (const auto refusal = appendMember(item, &bound))
                return *refusal;
        }
        BoundSql sql{m_column + (m_condition.op == FilterOperator::In ? QStringLiteral(" IN (")
                                                                      : QStringLiteral(" NOT IN (")),
                     {}};
        if (bound.isEmpty())
            return BoundSql{
                m_condition.op == FilterOperator::In ? QStringLiteral("1 = 0") : QStringLiteral("1 = 1"), {}};
        sql.append(boundList(bound, m_mark));
        sql.text += QLatin1Char(')');
        return sql;
    }

    std::optional<Refusal> appendMember(const QJsonValue &item, QVariantList *bound) const
    {
        if (m_kind == ValueKind::Date) {
            const Result<WireDate> read = date(item);
            if (!read.ok())
                return read.refusal();
            *bound << isoText(read.value().first) << fullText(read.value().first);
            return std::nullopt;
        }
        const Result<QVariant> value = scalar(item);
        if (!value.ok())
            return value.refusal();
        *bound << value.value();
        return std::nullopt;
    }

    const FilterCondition &m_condition;
    const QJsonObject &m_parameters;
    const Columns &m_columns;
    ValueKind m_kind = ValueKind::Any;
    QString m_column;
    QString m_mark; ///< place of a value beside the column
};

} // namespace

Result<BoundSql> filterCondition(const QString &filter, const QJsonObject &parameters, const Columns &columns,
                                 int depth)
{
    const FilterParse parse = parseFilter(filter, depth);
    if (!parse.fault.isEmpty())
        return Refusal{400, QStringLiteral("filter: position %1: %2").arg(parse.position).arg(parse.fault)};
    BoundSql whole;
    for (const FilterCondition &condition : parse.conditions) {
        const Result<BoundSql> sql = ConditionWriter(condition, parameters, columns).write();
        if (!sql.ok())
            return sql.refusal();
        if (!whole.text.isEmpty())
            whole.text += QStringLiteral(" AND ");
        whole.append(sql.value());
    }
    return whole;
}

} // namespace service
