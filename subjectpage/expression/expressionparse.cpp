#include "expressionparse.h"

#include "tfcustommath.h"
#include "tfgluednumber.h"
#include "tfscriptguard.h"

#include <QDateTime>
#include <QVector>

#include <optional>

namespace {
using Token = ElementReadFactory::Token;
using Tokens = QVector<Token>;

// A formula beyond these bounds is no formula; it must not cost unbounded memory or the script engine's
// stack.
constexpr int LongestFormula = 1 << 20;
constexpr int DeepestNesting = 1000;
constexpr int MostPlainFormulas = 1000;
constexpr int LongestPlainFormula = 10000;

const QString OpenBracket = QStringLiteral("(");
const QString CloseBracket = QStringLiteral(")");
const QString DateFormat = QStringLiteral("yyyy-MM-dd");

/// Nothing where the reader stands still at a character that starts no element.
std::optional<Tokens> readAll(ElementReadFactory &factory)
{
    Tokens tokens;
    const int length = factory.source().size();
    for (int position = 0; position < length;) {
        const Token token = factory.readToken(position);
        if (token.endPosition < position)
            return std::nullopt;
        tokens.append(token);
        position = token.endPosition + 1;
    }
    return tokens;
}

void substituteFields(Tokens &tokens, const ExpressionParse::FieldValue &fieldValue)
{
    for (Token &token : tokens) {
        if (token.type != TFElement::String)
            continue;
        const QVariant *value = fieldValue(token.text);
        if (!value)
            continue;
        token.text = TFGluedNumber::text(*value);
        token.type = TFElement::Number;
    }
}

/// Makes a call of each variable before a "(", with everything up to the first ")", however they nest.
Tokens mergeCalls(const Tokens &tokens)
{
    Tokens merged;
    merged.reserve(tokens.size());
    for (int i = 0; i < tokens.size(); ++i) {
        merged.append(tokens.at(i));
        Token &token = merged.last();
        if (token.type != TFElement::Variable || i + 1 == tokens.size() ||
            tokens.at(i + 1).text != OpenBracket)
            continue;
        token.type = TFElement::Function;
        token.text += tokens.at(++i).text;
        while (i + 1 < tokens.size()) {
            token.text += tokens.at(++i).text;
            if (tokens.at(i).text == CloseBracket)
                break;
        }
    }
    return merged;
}

bool nestsTooDeep(const QString &script)
{
    int depth = 0;
    for (const QChar c : script) {
        if (c == QLatin1Char('(') || c == QLatin1Char('[') || c == QLatin1Char('{'))
            ++depth;
        else if (c == QLatin1Char(')') || c == QLatin1Char(']') || c == QLatin1Char('}'))
            --depth;
        if (depth > DeepestNesting)
            return true;
    }
    return false;
}

/// The value of \a script if it is a finite number or reads as one, otherwise invalid.
QVariant evaluateNumber(QJSEngine &engine, const QString &script)
{
    if (nestsTooDeep(script))
        return QVariant();
    const TFScriptGuard guard(&engine);
    const QJSValue value = engine.evaluate(script, QString(), 1);
    // No object converts to a number; a variant of one may be large.
    if (value.isError() || value.isObject())
        return QVariant();
    const QVariant variant = value.toVariant();
    bool isNumber = false;
    variant.toDouble(&isNumber);
    const QString text = variant.toString();
    const bool finite =
        text != QLatin1String("nan") && text != QLatin1String("inf") && text != QLatin1String("-inf");
    return isNumber && finite ? variant : QVariant();
}

/// The pieces of the text that the formula is glued to. A call is left as it stands.
std::optional<TFPlainFormula> compilePlain(const QString &expression)
{
    if (expression.size() > LongestPlainFormula)
        return std::nullopt;
    ElementReadFactory factory;
    factory.setSource(expression);
    const std::optional<Tokens> tokens = readAll(factory);
    if (!tokens)
        return std::nullopt;
    QVector<TFPlainFormula::Piece> pieces;
    const Tokens merged = mergeCalls(*tokens);
    for (const Token &token : merged) {
        if (token.type == TFElement::Function)
            return std::nullopt;
        pieces.append({token.text, token.type == TFElement::String});
    }
    return TFPlainFormula::compile(pieces);
}

QStringView withoutDollar(QStringView text)
{
    return text.startsWith(QLatin1Char('$')) ? text.mid(1) : text;
}

/// One call, taken apart.
struct Call
{
    explicit Call(QStringView text)
    {
        const QStringView call = withoutDollar(text);
        const auto bracket = call.indexOf(QLatin1Char('('));
        name = withoutDollar(bracket < 0 ? call : call.left(bracket));
        argument = bracket < 0 ? QStringView() : call.mid(bracket + 1);
        argument.chop(argument.isEmpty() ? 0 : 1);
    }

    bool nests() const { return argument.contains(QLatin1Char('(')); }

    QStringView name;
    QStringView argument;
};

QString callByName(TFCustomMath *functions, QStringView name, const QString &argument)
{
    QList<QVariant> arguments;
    if (!argument.isEmpty())
        arguments.append(argument);
    QVariant result;
    functions->callFunction(name.toString(), arguments, result);
    return result.canConvert<QDateTime>() ? result.toDateTime().toString(DateFormat) : result.toString();
}
} // namespace

ExpressionParse::ExpressionParse(QObject *parent)
    : QObject(parent)
    , m_functions(TFCustomMath::instance())
{}

ExpressionParse::~ExpressionParse() = default;

void ExpressionParse::parse(const QString &expression, QVariant &result,
                            const QMap<QString, QVariant> &arguments)
{
    parseRow(expression, result, [&arguments](const QString &field) {
        const auto argument = arguments.constFind(field);
        return argument == arguments.constEnd() ? nullptr : &*argument;
    });
}

void ExpressionParse::parseRow(const QString &expression, QVariant &result, const FieldValue &fieldValue)
{
    const std::optional<TFPlainFormula> &plain = plainFormula(expression);
    if (plain && plain->evaluate(result, fieldValue))
        m_factory.skip(expression);
    else
        parseByScript(expression, result, fieldValue);
}

const std::optional<TFPlainFormula> &ExpressionParse::plainFormula(const QString &expression)
{
    const auto known = m_plainFormulas.constFind(expression);
    if (known != m_plainFormulas.constEnd())
        return *known;
    if (m_plainFormulas.size() >= MostPlainFormulas)
        m_plainFormulas.clear();
    return *m_plainFormulas.insert(expression, compilePlain(expression));
}

void ExpressionParse::parseByScript(const QString &expression, QVariant &result, const FieldValue &fieldValue)
{
    result = QVariant();
    if (expression.size() > LongestFormula)
        return;
    m_formula = expression;
    m_factory.setSource(m_formula);
    std::optional<Tokens> tokens = readAll(m_factory);
    if (!tokens)
        return;
    substituteFields(*tokens, fieldValue);

    QString script;
    const Tokens merged = mergeCalls(*tokens);
    for (const Token &token : merged)
        script += token.type == TFElement::Function ? evalFunction(token.text) : token.text;
    result = evaluateNumber(m_engine, script);
}

QString ExpressionParse::evalFunction(const QString &call)
{
    // Calls nest in their one argument, so the way in is a list of names and the way out a loop over it.
    Call innermost(call);
    QVector<QStringView> outer;
    while (innermost.nests()) {
        outer.append(innermost.name);
        innermost = Call(innermost.argument);
    }
    QString text = callByName(m_functions, innermost.name, innermost.argument.toString());
    while (!outer.isEmpty())
        text = callByName(m_functions, outer.takeLast(), text);
    return text;
}

void ExpressionParse::reset()
{
    m_factory.reset();
}
