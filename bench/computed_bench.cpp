// What one computed cell costs: a formula, an aggregate and a style expression, each against the same work
// done as it is told, anew for every cell.

#include "comparison.h"
#include "expression/expressionparse.h"
#include "expression/tfgluednumber.h"
#include "jsonparser/tfunboundexpression.h"
#include "mulittable/tfcellstyle.h"
#include "records/tfrowstore.h"
#include "replies.h"

#include <QApplication>
#include <QColor>
#include <QJSEngine>
#include <QRegularExpression>

namespace {
constexpr int RowCount = 1000;
constexpr int Rounds = 15;
constexpr double FormulaGoal = 0.04;
constexpr double AggregateGoal = 0.1;
constexpr double StyleGoal = 0.05;

using Row = QVector<QVariant>;

QVector<Row> makeRows()
{
    QVector<Row> rows;
    for (int row = 1; row <= RowCount; ++row) {
        Row values;
        for (int column = 0; column < Bench::Columns; ++column) {
            if (column < 10)
                values.append(QStringLiteral("text %1").arg(row * column));
            else
                values.append(row * 1.37 + column);
        }
        rows.append(values);
    }
    return rows;
}

QVector<QString> makeNames()
{
    QVector<QString> names;
    for (int column = 0; column < Bench::Columns; ++column)
        names.append(Bench::fieldName(column));
    return names;
}

void compareFormula(const QVector<Row> &rows, const QVector<QString> &names)
{
    QStringList glued;
    for (const Row &row : rows)
        glued.append(TFGluedNumber::text(row.at(11)) + '/' + TFGluedNumber::text(row.at(12)) + "*100");
    QHash<QString, int> columns;
    for (const QString &name : names)
        columns.insert(name, columns.size());
    const QString formula = QStringLiteral("[FIELD_NAME_11]/[FIELD_NAME_12]*100");
    QJSEngine engine;
    ExpressionParse parser;
    Bench::compare(
        {QStringLiteral("1,000 cells of a formula"), QStringLiteral("QJSEngine::evaluate of the glued text"),
         FormulaGoal},
        Rounds,
        [&] {
            for (const QString &text : qAsConst(glued))
                engine.evaluate(text).toVariant();
        },
        [&] {
            QVariant result;
            for (const Row &row : rows)
                parser.parseRow(formula, result, [&](const QString &name) {
                    const int column = columns.value(name, -1);
                    return column < 0 ? nullptr : &row.at(column);
                });
        });
}

QVariant aggregateAnew(const QString &text, const QVariantMap &row)
{
    const QRegularExpression pattern(
        QStringLiteral("(.*)(SUM|AVERAGE|GEOMEAN|MAX)(\\(?)\\[(.*)\\](\\)?)(.*)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(text);
    const QString suffix = match.captured(4);
    QVector<double> numbers;
    const QStringList keys = row.keys();
    for (const QString &key : keys) {
        if (key.contains(QLatin1String("__") + suffix) || key.compare(suffix, Qt::CaseInsensitive) != 0)
            numbers.append(row.value(key).toDouble());
    }
    return TFAggregate::compute(match.captured(2), numbers);
}

void compareAggregate(const QVector<Row> &rows, const QVector<QString> &names)
{
    const QString text = QStringLiteral("SUM([FIELD_NAME_11])");
    QVector<QVariantMap> maps;
    for (const Row &row : rows) {
        QVariantMap map;
        for (int column = 0; column < names.size(); ++column)
            map.insert(names.at(column), row.at(column));
        maps.append(map);
    }
    const TFUnboundExpression expression(text);
    QVector<int> counted;
    for (int column = 0; column < names.size(); ++column) {
        if (expression.counts(names.at(column)))
            counted.append(column);
    }
    Bench::compare(
        {QStringLiteral("1,000 cells of an aggregate"), QStringLiteral("pattern and key list anew"),
         AggregateGoal},
        Rounds,
        [&] {
            for (const QVariantMap &map : qAsConst(maps))
                aggregateAnew(text, map);
        },
        [&] {
            for (const Row &row : rows) {
                QVector<double> numbers;
                for (const int column : qAsConst(counted))
                    numbers.append(row.at(column).toDouble());
                expression.aggregate(numbers);
            }
        });
}

TFRowStore storeOf(const QVector<Row> &rows, const QVector<QString> &names)
{
    QList<RowData> cells;
    for (const Row &row : rows) {
        RowData line;
        for (int column = 0; column < names.size(); ++column) {
            TFTableModelData::tagCellValue cell;
            cell.fieldName = names.at(column);
            cell.value = row.at(column);
            line.append(cell);
        }
        cells.append(line);
    }
    return TFRowStore::fromRows(cells);
}

void compareStyle(const QVector<Row> &rows, const QVector<QString> &names)
{
    const QString expression = QStringLiteral("$FIELD_NAME_11 > 700 ? '#ff0000' : '#008000'");
    const TFRowStore store = storeOf(rows, names);
    TFCellStyle style(expression, names);
    QJSEngine engine;
    Bench::compare(
        {QStringLiteral("1,000 rows of 30 fields under a style expression"),
         QStringLiteral("30 globals set and evaluate"), StyleGoal},
        Rounds,
        [&] {
            QJSValue global = engine.globalObject();
            for (const Row &row : rows) {
                for (int column = 0; column < names.size() - 1; ++column)
                    global.setProperty(QLatin1Char('$') + names.at(column), row.at(column).toString());
                QColor(engine.evaluate('(' + expression + ')', QString(), 1).toString());
            }
        },
        [&] {
            for (int row = 0; row < RowCount; ++row)
                style.colour(store, row);
        });
}
} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QVector<Row> rows = makeRows();
    const QVector<QString> names = makeNames();
    compareFormula(rows, names);
    compareAggregate(rows, names);
    compareStyle(rows, names);
    return 0;
}
