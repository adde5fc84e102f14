#include "subjecttest.h"

#include "expression/expressionparse.h"
#include "expression/tfelementreaders.h"
#include "expression/tfscriptguard.h"
#include "expression/tfstringmath.h"
#include "records/tfclock.h"

#include <cmath>
#include <cstring>
#include <memory>
#include <random>

namespace {
/// The elements of a formula as "type:text@end", one behind the other.
QString elementsOf(ElementReadFactory &factory, const QString &formula)
{
    QStringList elements;
    factory.setSource(formula);
    for (int position = 0; position < formula.size();) {
        const std::unique_ptr<TFElement> element(factory.readElement(position));
        elements.append(
            QString("%1:%2@%3").arg(element->type()).arg(element->text()).arg(element->endPosition()));
        position = qMax(position, element->endPosition()) + 1;
    }
    return elements.join(' ');
}

/// Type and bits of a result.
QString exactly(const QVariant &result)
{
    const double number = result.toDouble();
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return QString("%1 %2 %3").arg(result.userType()).arg(result.toString()).arg(bits, 0, 16);
}

using Random = std::mt19937;

/// Mostly well-formed arithmetic, with the odd thing that is not.
QString randomFormula(Random &random, int depth = 0)
{
    static const QStringList operators = QString("+|-|*|/|%|-|*| - |- |* -|--|//|,").split('|');
    static const QStringList operands =
        QString("[A]|[B]|[C]|[A]|[B]|1|0|100|2.5| 3|0.10|012|[MISSING]|-[A]|+[B]|1.|.5|1e3|"
                "99999999999999999999|[A][B]|today()|- - [C]")
            .split('|');
    const unsigned kind = random() % 40;
    if (depth < 4 && kind < 10)
        return "(" + randomFormula(random, depth + 1) + ")";
    if (depth < 4 && kind < 25)
        return randomFormula(random, depth + 1) + operators.at(int(random() % (random() % 8 ? 9 : 13))) +
               randomFormula(random, depth + 1);
    return operands.at(int(random() % (random() % 8 ? 9 : 22)));
}

QVariant randomNumber(Random &random)
{
    static const QStringList texts = {
        "",      "0",      "-0",          "-0.0",      "=5",   "=-1.25",     "1,000.5", "1.5e20",
        "-1.e3", "1.e400", ".5",          "nan",       "inf.", "-0.0000001", "abc",     "2147483648",
        "- 1",   "+3.5",   "-2147483648", "0.0078125", "1e5",  " 7 ",        "1.0.0"};
    const double sign = random() % 3 ? 1 : -1;
    switch (random() % 12) {
    case 0:
        return texts.at(int(random() % unsigned(texts.size())));
    case 1:
        return int(random()) >> (random() % 31);
    case 2:
        return qlonglong(random()) * qlonglong(random() % 5);
    case 3: // halves at the sixth decimal
        return sign * (random() % 100000) / 128.0 / (1 << random() % 8);
    case 4:
        return sign * std::ldexp(double(random()), int(random() % 200) - 120);
    case 5: // whole numbers with many zeros
        return sign * (random() % 30) * std::pow(10, random() % 22);
    case 6:
        return QString::number(sign * random() / 1e5, 'f', int(random() % 9));
    case 7:
        return QList<QVariant>{QVariant(), true, -0.0, qInf(), qQNaN(), uint(random()), QDateTime(), 'x'}.at(
            int(random() % 8));
    default:
        return sign * (random() % 1000000) / std::pow(10, random() % 5);
    }
}

QString resultOf(const QVariant &result)
{
    return result.isValid() ? QString("%1 %2").arg(result.typeName(), result.toString()) : "invalid";
}
} // namespace

class TestExpression : public SubjectTest
{
    Q_OBJECT

private slots:
    void readerTakesAFormulaApart_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<QString>("elements");
        testRow("fields and operator", "[A]+2.5", "1:A@2 9:+@3 6:2.5@6");
        testRow("more than one point", "1.2.3", "6:1.2.3@4");
        testRow("word at the start is a call to its parenthesis", "f(a(b))*2", "10:f(a(b))@6 9:*@7 6:2@8");
        testRow("word behind a splitter too", "(g(1)", "11:(@0 10:g(1)@4");
        testRow("word without parenthesis runs to the end", "abc+1", "10:abc+1@4");
        testRow("one closing parenthesis too many runs to the end", "a)+(b)", "10:a)+(b)@5");
        testRow("word behind an operator is a variable", "2*f(1)", "6:2@0 9:*@1 8:f@2 11:(@3 6:1@4 11:)@5");
        testRow("open bracket runs to the end", "[abc", "1:abc@3");
        testRow("stop character gives an empty variable before it", "1<2", "6:1@0 8:@0 6:2@2");
    }
    void readerTakesAFormulaApart()
    {
        QFETCH(QString, formula);
        ElementReadFactory factory;
        QTEST(elementsOf(factory, formula), "elements");
    }

    void elementOutsideTheSourceIsNull()
    {
        ElementReadFactory factory;
        factory.setSource("1");
        QVERIFY(!factory.readElement(-1));
        QVERIFY(!factory.readElement(1));
        QCOMPARE(OperatorTypeReader("%", 0).operatorIndex(), 4);
        QCOMPARE(OperatorTypeReader("", 0).operatorIndex(), -1);
    }

    void formulaEvaluatesOverARow_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<QString>("result");
        testRow("sum of texts", "[ONE]+[TWOHALF]", "double 3.5");
        testRow("precedence is the engine's", "1+2*3%4", "int 3");
        testRow("division by zero", "[ONE]/[ZERO]", "invalid");
        testRow("equals sign before the number", "[EQUALS]", "int 5");
        testRow("comma in the number converts to 0", "[COMMA]+1", "int 1");
        testRow("more than 32 bits convert to 0", "[LARGE]", "int 0");
        testRow("six decimals of a small number", "[SMALL]*1000000", "int 1");
        testRow("negative numbers glue into a bad text", "3-[NEGATIVE]", "invalid");
        testRow("negative number behind another operator", "3*[NEGATIVE]", "int -12");
        testRow("unknown field is a bare word", "[NONE]+1", "invalid");
        testRow("missing value counts as 0", "[MISSING]+1", "int 1");
        testRow("merged call becomes a subtraction of date parts", "2*addyears(1)", "int 4033");
        testRow("unknown function is empty", "round(1.5)", "invalid");
        testRow("number function over a field at the start keeps the brackets", "todecimal([ONE])", "int 0");
        testRow("function between operators takes the field", "1+todecimal([ONE])", "int 2");
        testRow("a merged call ends at its first parenthesis", "1+todecimal((2)", "int 1");
        testRow("comparison is a stray stop character", "[ONE]>0", "invalid");
        testRow("boolean in brackets", "[true]", "bool true");
        testRow("list is no number", "[Array(3)]", "invalid");
        testRow("bad syntax", "1+*2", "invalid");
        testRow("nothing", "", "invalid");
    }
    void formulaEvaluatesOverARow()
    {
        QFETCH(QString, formula);
        TFClock::setNow([] { return QDateTime(QDate(2026, 10, 11), QTime(12, 0)); });
        const QVariantMap row = {{"ONE", "1"},           {"TWOHALF", 2.5},   {"ZERO", 0},
                                 {"EQUALS", "=5"},       {"COMMA", "1,000"}, {"LARGE", 3000000000LL},
                                 {"SMALL", "0.0000012"}, {"NEGATIVE", -4},   {"MISSING", QVariant()}};
        ExpressionParse parser;
        QVariant value = "left over";
        parser.parse(formula, value, row);
        QTEST(resultOf(value), "result");
    }

    void plainFormulaEqualsTheScriptEngine()
    {
        Random random(7);
        ExpressionParse parser;
        ExpressionParse script;
        constexpr int Rounds = 30000;
        int valid = 0;
        for (int round = 0; round < Rounds; ++round) {
            const QString formula = randomFormula(random);
            const QVariantMap row = {
                {"A", randomNumber(random)}, {"B", randomNumber(random)}, {"C", randomNumber(random)}};
            const auto field = [&row](const QString &name) {
                const auto found = row.find(name);
                return found == row.end() ? nullptr : &*found;
            };
            QVariant computed = "left over";
            QVariant told;
            parser.parse(formula, computed, row);
            script.parseByScript(formula, told, field);
            QVERIFY2(exactly(computed) == exactly(told),
                     qPrintable(QString("%1: %2 for %3, %4, %5, %6")
                                    .arg(formula, exactly(computed), exactly(told), row["A"].toString(),
                                         row["B"].toString(), row["C"].toString())));
            valid += computed.isValid() ? 1 : 0;
        }
        QVERIFY2(valid > Rounds / 2, qPrintable(QString::number(valid)));
    }

    void wordAtTheStartIsJudgedByTheFormulaBefore()
    {
        ExpressionParse parser;
        QVariant first;
        QVariant second;

        parser.parse("todecimal(2)+1", first, {});
        parser.parse("todecimal((2))+1", second, {});
        QCOMPARE(resultOf(first), "int 3");
        QCOMPARE(resultOf(second), "invalid");

        parser.reset();
        parser.parse("todecimal((2))+1", second, {});
        QCOMPARE(resultOf(second), "int 1");
    }

    void callsNestInTheirOneArgument_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<QString>("text");
        testRow("date", "$today()", "2026-05-01");
        testRow("without dollar and parentheses", "today", "2026-05-01");
        testRow("two dollars", "$$adddays(1)", "2026-05-02");
        testRow("number", "todecimal(1.50)", "1.5");
        testRow("date-time of the third table", "$fndgetlatestquarterlyreport()", "2026-03-31");
        testRow("nested", "$ofyear($adddays(-200))", "2025");
        testRow("nested twice", "todecimal(ofyear(adddays(-200)))", "2025");
        testRow("a list does not survive", "$ofbetweenyear()", "");
        testRow("arguments are not split", "addyears(1,2)", "");
        testRow("unknown", "$none(1)", "");
        testRow("empty", "", "");
    }
    void callsNestInTheirOneArgument()
    {
        QFETCH(QString, call);
        TFClock::setNow([] { return QDateTime(QDate(2026, 5, 1), QTime(23, 59)); });
        ExpressionParse parser;
        QTEST(parser.evalFunction(call), "text");
    }

    void hugeFormulaEndsSoonAndInvalid_data()
    {
        QTest::addColumn<QString>("formula");
        testRow("1 MB of parentheses around a number",
                QString(1 << 19, '(') + "1" + QString((1 << 19) - 1, ')'));
        testRow("brackets inside a bare word", "[" + QString(100000, '[') + "]");
        testRow("100,000 nested calls", QString("f(").repeated(100000) + "1" + QString(100000, ')'));
        testRow("100,000 nested calls behind an operator",
                "1+" + QString("f(").repeated(100000) + "1" + QString(100000, ')'));
        testRow("100,000 unary signs", QString("-").repeated(100000) + "1");
        testRow("300,000 terms that end badly", QString("1+").repeated(300000));
        testRow("longer than any formula", "1" + QString("+1").repeated(1 << 20));
    }
    void hugeFormulaEndsSoonAndInvalid()
    {
        QFETCH(QString, formula);
        ExpressionParse parser;
        QVariant result = 1;
        QElapsedTimer timer;
        timer.start();
        parser.parse(formula, result, {});
        QCOMPARE(resultOf(result), "invalid");
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    }

    void endlessScriptIsInterrupted()
    {
        ExpressionParse parser;
        QVariant result = 1;
        parser.parse("[for(;;);]", result, {});
        QCOMPARE(resultOf(result), "invalid");
        parser.parse("1+1", result, {});
        QCOMPARE(resultOf(result), "int 2");

        QJSEngine engine;
        {
            const TFScriptGuard guard(&engine, std::chrono::milliseconds(1));
            QVERIFY(engine.evaluate("while(true);").isError());
            QVERIFY(guard.interrupted());
        }
        QCOMPARE(engine.evaluate("6*7").toInt(), 42);
    }

    void stringOperationsKeepTheirSentinel_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("result");
        testRow("sum", "1.5 + 2", "3.5");
        testRow("general format", "1000 * 12345", "1.2345e+07");
        testRow("quotient", "1 / 4", "0.25");
        testRow("divisor that is no whole number", "1 / 0.5", "-99999999");
        testRow("remainder", "7 % 4", "3");
        testRow("remainder by a fraction", "7 % 4.5", "-99999999");
        testRow("smallest number", "-2147483648 % -1", "0");
        testRow("no operator", "1 ^ 2", "");
    }
    void stringOperationsKeepTheirSentinel()
    {
        QFETCH(QString, operation);
        const QStringList parts = operation.split(' ');
        QTEST(TFStringMath::calculate(parts.at(1), parts.at(0), parts.at(2)), "result");
    }
};

SUBJECT_TEST_MAIN(TestExpression)
#include "tst_expression.moc"
