#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace service {

/// A statement as it goes to the database: text with "?" and the values in their order.
struct BoundSql
{
    QString text;
    QVariantList values;

    /// Appends \a piece and its values.
    void append(const BoundSql &piece);
};

/// "?,?,?" for \a values, and the values; "NULL" for none, so that `IN (...)` stays valid and holds nothing.
/// \a mark is the place of one value.
BoundSql boundList(const QVariantList &values, const QString &mark = QStringLiteral("?"));

/// \a number as it is bound: a whole number as an integer.
QVariant boundNumber(double number);

/// \a name as a quoted identifier.
QString quotedIdentifier(const QString &name);

/// One SELECT written by an author, with `:NAME` parameters.
///
/// Comments are taken out, so the text can stand in parentheses. Quoted texts and identifiers and casts
/// ("::") are left alone.
class SqlTemplate
{
public:
    /// Reads \a sql. On a fault the template stays empty and \a fault tells what and where.
    static SqlTemplate parse(const QString &sql, QString *fault);

    bool isEmpty() const { return m_pieces.isEmpty(); }

    /// Names of the parameters, each once, in order of appearance.
    QStringList parameterNames() const;

    /// The statement with a value for every parameter; a name without a value binds NULL, a list binds
    /// as many values as it has.
    BoundSql bind(const QHash<QString, QVariant> &values) const;

private:
    QStringList m_pieces; ///< texts around the parameters: always one more than there are names
    QStringList m_names;
};

} // namespace service
