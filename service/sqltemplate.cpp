#include "sqltemplate.h"

#include <cmath>

namespace service {

namespace {

bool isNameCharacter(QChar c)
{
    return c == QLatin1Char('_') || (c.unicode() < 128 && c.isLetterOrNumber());
}

/// Walks over the text of a statement, skipping what holds no parameters.
class Scanner
{
public:
    explicit Scanner(const QString &sql)
        : m_sql(sql)
    {}

    bool run()
    {
        while (m_at < m_sql.size() && fault.isEmpty())
            step();
        pieces << m_piece;
        return fault.isEmpty();
    }

    QStringList pieces;
    QStringList names;
    QString fault;

private:
    void step()
    {
        const QChar c = m_sql.at(m_at);
        if (c == QLatin1Char('\'') || c == QLatin1Char('"') || c == QLatin1Char('`'))
            copyQuoted(c);
        else if (startsWith("--"))
            skipTo(QStringLiteral("\n"), 0);
        else if (startsWith("/*"))
            skipTo(QStringLiteral("*/"), 2);
        else if (startsWith("::"))
            copy(2);
        else if (c == QLatin1Char(':') && m_at + 1 < m_sql.size() && isNameCharacter(m_sql.at(m_at + 1)))
            takeParameter();
        else if (c == QLatin1Char(';') || c == QLatin1Char('?'))
            fault = QStringLiteral("position %1: \"%2\" is not allowed").arg(m_at + 1).arg(c);
        else
            copy(1);
    }

    bool startsWith(const char *text) const { return m_sql.midRef(m_at, 2) == QLatin1String(text); }

    void copy(int count)
    {
        m_piece += m_sql.midRef(m_at, count);
        m_at += count;
    }

    void copyQuoted(QChar quote)
    {
        const int end = m_sql.indexOf(quote, m_at + 1);
        if (end < 0)
            fault = QStringLiteral("position %1: the quote %2 has no end").arg(m_at + 1).arg(quote);
        else
            copy(end + 1 - m_at);
    }

    void skipTo(const QString &mark, int markLength)
    {
        const int end = m_sql.indexOf(mark, m_at + 2);
        m_at = end < 0 ? m_sql.size() : end + markLength;
        m_piece += QLatin1Char(' ');
    }

    void takeParameter()
    {
        int end = m_at + 1;
        while (end < m_sql.size() && isNameCharacter(m_sql.at(end)))
            ++end;
        names << m_sql.mid(m_at + 1, end - m_at - 1);
        pieces << m_piece;
        m_piece.clear();
        m_at = end;
    }

    const QString &m_sql;
    int m_at = 0;
    QString m_piece;
};

bool isSelect(const QString &text)
{
    const QString start = text.trimmed().left(7).toUpper();
    return start.startsWith(QLatin1String("SELECT")) || start.startsWith(QLatin1String("WITH"));
}

} // namespace

void BoundSql::append(const BoundSql &piece)
{
    text += piece.text;
    values += piece.values;
}

BoundSql boundList(const QVariantList &values, const QString &mark)
{
    if (values.isEmpty())
        return {QStringLiteral("NULL"), {}};
    return {(mark + QLatin1Char(',')).repeated(values.size() - 1) + mark, values};
}

QVariant boundNumber(double number)
{
    const double largestExact = 9007199254740992.0;
    if (std::floor(number) == number && std::fabs(number) <= largestExact)
        return static_cast<qlonglong>(number);
    return number;
}

QString quotedIdentifier(const QString &name)
{
    QString text = name;
    text.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

SqlTemplate SqlTemplate::parse(const QString &sql, QString *fault)
{
    SqlTemplate result;
    Scanner scanner(sql);
    if (!scanner.run()) {
        *fault = scanner.fault;
    } else if (!isSelect(scanner.pieces.first())) {
        *fault = QStringLiteral("the statement has to begin with SELECT or WITH");
    } else {
        result.m_pieces = scanner.pieces;
        result.m_names = scanner.names;
    }
    return result;
}

QStringList SqlTemplate::parameterNames() const
{
    QStringList names = m_names;
    names.removeDuplicates();
    return names;
}

BoundSql SqlTemplate::bind(const QHash<QString, QVariant> &values) const
{
    BoundSql result;
    for (int i = 0; i < m_names.size(); ++i) {
        result.text += m_pieces.at(i);
        const QVariant value = values.value(m_names.at(i));
        if (value.userType() == QMetaType::QVariantList)
            result.append(boundList(value.toList()));
        else
            result.append({QStringLiteral("?"), {value}});
    }
    result.text += m_pieces.value(m_names.size());
    return result;
}

} // namespace service
