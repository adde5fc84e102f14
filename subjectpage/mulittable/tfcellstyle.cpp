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

namespace {
const char kSkinProperty[] = "$skin";
const char kDefaultColor[] = "$use_default_color";

QPointer<QJSEngine> &sharedEngine()
{
    static QPointer<QJSEngine> engine;
    return engine;
}

/// Whether a script can reach a variable without spelling its name.
bool readsByName(const QString &expression)
{
    static const QRegularExpression words(QStringLiteral("\\b(this|eval|Function|globalThis|with)\\b"));
    return expression.contains(words);
}

QStringList namesIn(const QString &expression)
{
    static const QRegularExpression name(QStringLiteral("\\$[\\w$]*"),
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
    , m_seesAll(readsByName(expression))
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
    TFScriptGuard guard(TFStyleEngine::engine());
    if (m_seesAll)
        publishAll(rows, row);
    Compiled &script = compiled(rows.cellCount(row));
    QJSValueList arguments;
    for (int cell : script.cells)
        arguments.append(rows.value(row, cell).toString());
    QJSValue result = script.function.isCallable() ? script.function.call(arguments) : script.function;
    if (result.isCallable())
        result = result.call();
    if (guard.interrupted()) {
        m_endless = true;
        qCWarning(lcTable) << "style expression does not end, ignored from now on:" << m_expression;
        return {};
    }
    return result;
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
    if (!m_seesAll) {
        const QHash<QString, int> cells = published(cellCount);
        const QStringList names = namesIn(m_expression);
        for (const QString &name : names) {
            if (!cells.contains(name))
                continue;
            parameters.append(name);
            script.cells.append(cells.value(name));
        }
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

void TFCellStyle::publishAll(const TFRowStore &rows, int row) const
{
    QJSValue global = TFStyleEngine::engine()->globalObject();
    const QHash<QString, int> cells = published(rows.cellCount(row));
    for (auto cell = cells.begin(); cell != cells.end(); ++cell)
        global.setProperty(cell.key(), rows.value(row, cell.value()).toString());
}
