#pragma once

#include <QJsonValue>
#include <QString>
#include <QVector>

namespace service {

/// What a condition compares its field with.
enum class FilterOperator {
    Greater,
    GreaterOrEqual,
    Less,
    LessOrEqual,
    Equal,
    NotEqual,
    Like,
    In,
    NotIn,
    And
};

/// One condition of a filter: `field operator :parameter`, or a literal in the parameter's place.
struct FilterCondition
{
    QString field;
    FilterOperator op = FilterOperator::Equal;
    QString parameter;  ///< name without the colon; empty for a literal
    QJsonValue literal; ///< number or text; a date keeps its brackets
    int fieldPosition = 0;
    int operandPosition = 0;
};

/// The conditions of a filter, all of which must hold; or a fault with its place.
struct FilterParse
{
    QVector<FilterCondition> conditions;
    int position = 0; ///< 1-based character of the fault
    QString fault;    ///< empty when the text was understood
};

/// Parses a filter text such as `(F >= :F_0) && (G like :G_0)`.
///
/// The grammar, with parentheses at will around conditions and groups of them:
///
///     filter    = [ term { "&&" term } ]
///     term      = "(" filter ")" | condition
///     condition = field operator ( ":" name | number | 'text' | [date] )
///     operator  = ">" | ">=" | "<" | "<=" | "==" | "!=" | "like" | "in" | "nin" | "&&"
///
/// An empty text has no conditions. Length, nesting (to \a depth parentheses) and count are limited, so any
/// text is answered in short time.
FilterParse parseFilter(const QString &text, int depth);

/// The operator as it is written in a filter.
QString operatorText(FilterOperator op);

} // namespace service
