#include "tfcellstyle.h"

#include "expression/tfscriptguard.h"
#include "records/tfcategories.h"
#include "records/tfrowstore.h"
#include "tfcore/tfcore.h"

#include <QColor>
#include <QCoreApplication>
#include <QJSEngine>
#include <QPointer>
#include <QRegularExpression>

#include <algorithm>

namespace {
const char kSkinProperty[] = "$skin";
const char kDefaultColor[] = "$use_default_color";

QPointer<QJSEngine> &sharedEngine()
{
    static QPointer<QJSEngine> engine;
    return engine;
}

/// Whether a ")" closes more than the expression has opened, so that it ends the parentheses around it.
bool leavesItsParentheses(const QString &expression)
{
    int depth = 0;
    return std::any_of(expression.begin(), expression.end(), [&depth](QChar c) {
        depth += c == QLatin1Char('(') ? 1 : c == QLatin1Char(')') ? -1 : 0;
        return depth < 0;
    });
}

/// Whether a script can reach a variable without spelling its name, or can see that it is in a function.
bool needsGlobals(const QString &expression)
{
    static const QRegularExpression signs(QStringLiteral(
        "\\b(this|eval|Function|constructor|globalThis|with|arguments)\\b|\\bnew\\s*\\.|\\\\u"));
    return expression.contains(signs) || leavesItsParentheses(expression);
}

QStringList namesIn(const QString &expression)
{
    static const QRegularExpression name(QStringLiteral("\\$[\\w\\p{M}\\p{Pc}\\x{200c}\\x{200d}$]*"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    QStringList names;
    auto matches = name.globalMatch(expression);
    while (matches.hasNext())
        names.append(matches.next().captured());
    names.removeDuplicates();
    return names;
}
} // namespace

QJSEngine *TFStyleEngine::engine()
{
    QPointer<QJSEngine> &engine = sharedEngine();
    if (!engine) {
        engine = new QJSEngine(QCoreApplication::instance());
        publishSkin(TFCore::instance()->getCurrentSkinId());
    }
    return engine;
}

void TFStyleEngine::publishSkin(const QString &skinId)
{
    if (QJSEngine *engine = sharedEngine())
        engine->globalObject().setProperty(QLatin1String(kSkinProperty), skinId);
}

TFCellStyle::TFCellStyle(const QString &expression, const QVector<QString> &fieldNames)
    : m_expression(expression)
    , m_fieldNames(fieldNames)
    , m_needsGlobals(needsGlobals(expression))
{}

QVariant TFCellStyle::colour(const TFRowStore &rows, int row)
{
    if (m_endless)
        return {};
    const QJSValue result = evaluate(rows, row);
    if (result.isError() || !result.isString())
        return {};
    const QString name = result.toString();
    if (name.isEmpty() || name == QLatin1String(kDefaultColor))
        return {};
    return QColor(name);
}

QJSValue TFCellStyle::evaluate(const TFRowStore &rows, int row)
{
    const TFScriptGuard guard(TFStyleEngine::engine());
    QJSValue result = m_needsGlobals ? evaluateAnew(rows, row) : call(rows, row);
    if (result.isCallable())
        result = result.call();
    if (guard.interrupted()) {
        m_endless = true;
        qCWarning(lcTable) << "style expression does not end, ignored from now on:" << m_expression;
        return {};
    }
    return result;
}

QJSValue TFCellStyle::call(const TFRowStore &rows, int row)
{
    Compiled &script = compiled(rows.cellCount(row));
    QJSValueList arguments;
    for (const int cell : qAsConst(script.cells))
        arguments.append(rows.value(row, cell).toString());
    return script.function.isCallable() ? script.function.call(arguments) : script.function;
}

QJSValue TFCellStyle::evaluateAnew(const TFRowStore &rows, int row) const
{
    QJSEngine *engine = TFStyleEngine::engine();
    QJSValue global = engine->globalObject();
    const QHash<QString, int> cells = published(rows.cellCount(row));
    for (auto cell = cells.begin(); cell != cells.end(); ++cell)
        global.setProperty(cell.key(), rows.value(row, cell.value()).toString());
    return engine->evaluate(QStringLiteral("(%1)").arg(m_expression), QString(), 1);
}

TFCellStyle::Compiled &TFCellStyle::compiled(int cellCount)
{
    auto found = m_compiled.find(cellCount);
    if (found == m_compiled.end())
        found = m_compiled.insert(cellCount, compile(cellCount));
    return *found;
}

TFCellStyle::Compiled TFCellStyle::compile(int cellCount) const
{
    Compiled script;
    QStringList parameters;
    const QHash<QString, int> cells = published(cellCount);
    const QStringList names = namesIn(m_expression);
    for (const QString &name : names) {
        if (!cells.contains(name))
            continue;
        parameters.append(name);
        script.cells.append(cells.value(name));
    }
    const QString source = QStringLiteral("(function(%1){return (").arg(parameters.join(QLatin1Char(','))) +
                           m_expression + QStringLiteral(")})");
    script.function = TFStyleEngine::engine()->evaluate(source, QString(), 1);
    return script;
}

QHash<QString, int> TFCellStyle::published(int cellCount) const
{
    // The last cell stays out of sight, and cells without a column share the bare "$".
    QHash<QString, int> cells;
    for (int i = 0; i < cellCount - 1; ++i)
        cells.insert(QLatin1Char('$') + m_fieldNames.value(i), i);
    return cells;
}
