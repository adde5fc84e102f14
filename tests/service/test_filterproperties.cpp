#include "filtersql.h"
#include "rowselect.h"
#include "servicefixture.h"
#include "subjecttest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <functional>
#include <random>

using namespace service;

namespace {

const int RowCount = 60;
const int Rounds = 500;

/// A row as the test knows it. What is null in the database has no value here.
struct Row
{
    std::optional<QString> text;
    std::optional<double> number;
    std::optional<QDateTime> moment;
};

using Test = std::function<bool(const Row &)>;

/// A filter with its parameters, and what it means said in another way.
struct Sample
{
    QString filter;
    QJsonObject parameters;
    QVector<Test> tests;
};

template <typename Value> bool compare(const QString &op, const Value &a, const Value &b)
{
    return op == ">"    ? b < a
           : op == ">=" ? !(a < b)
           : op == "<"  ? a < b
           : op == "<=" ? !(b < a)
           : op == "==" ? !(a < b) && !(b < a)
                        : (a < b) || (b < a);
}

QString lowerAscii(QString text)
{
    for (QChar &c : text) {
        if (c.unicode() < 128)
            c = c.toLower();
    }
    return text;
}

bool isLike(const QString &text, const QString &pattern)
{
    if (!pattern.contains('%'))
        return lowerAscii(text).contains(lowerAscii(pattern));
    QString expression;
    for (const QChar c : lowerAscii(pattern))
        expression += c == '%' ? ".*" : c == '_' ? "." : QRegularExpression::escape(c);
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::DotMatchesEverythingOption)
        .match(lowerAscii(text))
        .hasMatch();
}

/// Makes rows and filters from one seed.
class Generator
{
public:
    explicit Generator(unsigned seed)
        : m_random(seed)
    {}

    Row row()
    {
        Row row;
        if (!oneOf(8))
            row.text = text();
        if (!oneOf(8))
            row.number = number();
        if (!oneOf(8))
            row.moment = moment();
        return row;
    }

    Sample sample()
    {
        Sample sample;
        const int conditions = below(4);
        for (int i = 0; i < conditions; ++i)
            sample.filter += (i > 0 ? " && " : QString()) + wrapped(condition(&sample));
        return sample;
    }

private:
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    bool oneOf(int count) { return below(count) == 0; }
    template <typename List> auto pick(const List &list) { return list.at(below(int(list.size()))); }

    QString text()
    {
        static const QStringList pieces{"a", "B",  "b", "é",  "É", "名", "%",
                                        "_", "\\", "'", "\"", " ", "-1", "\t"};
        QString text;
        for (int length = below(4); length > 0; --length)
            text += pick(pieces);
        return text;
    }

    double number() { return pick(QVector<double>{-2, -1.5, 0, 0.1, 1, 2, 2.5, 1e6, 123456789012}); }

    QDateTime moment()
    {
        const QDate day(2019 + below(3), 1 + below(3), 1 + below(28));
        return QDateTime(day, oneOf(2) ? QTime(0, 0) : QTime(below(24), 30 * below(2), 59 * below(2)));
    }

    QString wrapped(QString condition)
    {
        for (int i = below(3); i > 0; --i)
            condition = '(' + condition + ')';
        return condition;
    }

    /// \a value as a parameter of its own.
    QString parameter(Sample *sample, const QJsonValue &value)
    {
        const QString name = QString("P_%1").arg(sample->parameters.size());
        sample->parameters.insert(name, value);
        return ':' + name;
    }

    QString condition(Sample *sample)
    {
        static const QStringList comparisons{">", ">=", "<", "<=", "==", "!="};
        const QString op = pick(comparisons);
        switch (below(6)) {
        case 0:
            return nullTest(sample);
        case 1:
            return like(sample);
        case 2:
            return membership(sample);
        case 3:
            return ofText(sample, op);
        case 4:
            return ofNumber(sample, op);
        default:
            return ofMoment(sample, op);
        }
    }

    QString nullTest(Sample *sample)
    {
        const bool isNull = oneOf(2);
        sample->tests << [isNull](const Row &row) { return row.number.has_value() != isNull; };
        return QString("N %1 ").arg(isNull ? "==" : "!=") + parameter(sample, QJsonValue());
    }

    QString like(Sample *sample)
    {
        const QString pattern = text();
        sample->tests << [pattern](const Row &row) { return row.text && isLike(*row.text, pattern); };
        return "T like " + parameter(sample, pattern);
    }

    QString membership(Sample *sample)
    {
        QVector<double> numbers;
        QJsonArray list;
        for (int i = below(4); i > 0; --i) {
            numbers << number();
            list << (oneOf(2) ? QJsonValue(numbers.last())
                              : QJsonValue(QString::number(numbers.last(), 'g', 15)));
        }
        const bool isIn = oneOf(2);
        // Nothing is in an empty list, and a row without a value is outside it too.
        sample->tests << [numbers, isIn](const Row &row) {
            return numbers.isEmpty() ? !isIn : row.number && numbers.contains(*row.number) == isIn;
        };
        return QString("N %1 ").arg(isIn ? "in" : "nin") + parameter(sample, list);
    }

    QString ofText(Sample *sample, const QString &op)
    {
        const QString value = text();
        sample->tests << [op, value](const Row &row) {
            return row.text && compare(op, row.text->toUtf8(), value.toUtf8());
        };
        const bool isLiteral = oneOf(2) && !value.contains('\'');
        return QString("T %1 ").arg(op) +
               (isLiteral ? '\'' + value + '\'' : parameter(sample, '\'' + value + '\''));
    }

    QString ofNumber(Sample *sample, const QString &op)
    {
        const double value = number();
        if (oneOf(6)) {
            sample->tests << [value](const Row &row) { return row.number && *row.number != 0 && value != 0; };
            return "N && " + parameter(sample, value);
        }
        sample->tests <<
            [op, value](const Row &row) { return row.number && compare(op, *row.number, value); };
        return QString("N %1 ").arg(op) +
               (oneOf(2) ? QString::number(value, 'g', 15) : parameter(sample, value));
    }

    /// A day or moment, a month, or a year, in one of the ways to write it.
    QString ofMoment(Sample *sample, const QString &op)
    {
        QDateTime first = moment();
        QDateTime last = first;
        const bool isPlainDay = first.time() == QTime(0, 0) && oneOf(2);
        QJsonValue value = first.toString(isPlainDay ? "[yyyy-MM-dd]" : "[yyyy-MM-dd HH:mm:ss]");
        switch (below(4)) {
        case 0:
            first = QDateTime(QDate(first.date().year(), first.date().month(), 1), QTime(0, 0));
            last = first.addMonths(1).addSecs(-1);
            value = first.toString(oneOf(2) ? "yyyy-MM" : "yyyyMM");
            break;
        case 1:
            first = QDateTime(QDate(first.date().year(), 1, 1), QTime(0, 0));
            last = first.addYears(1).addSecs(-1);
            value = first.toString("yyyy");
            break;
        case 2:
            value = first.toMSecsSinceEpoch();
            break;
        default:
            break;
        }
        sample->tests << [op, first, last](const Row &row) {
            const bool isWithin = row.moment && first <= *row.moment && *row.moment <= last;
            if (!row.moment || op == "==")
                return isWithin;
            return op == "!=" ? !isWithin : compare(op, *row.moment, op == ">" || op == "<=" ? last : first);
        };
        return QString("D %1 ").arg(op) + parameter(sample, value);
    }

    std::mt19937 m_random;
};

QString quoted(QString text)
{
    return '\'' + text.replace('\'', "''") + '\'';
}

/// A row as SQL writes it; midnights stand in both spellings.
QString literals(const Row &row, int id)
{
    const bool isShort = row.moment && row.moment->time() == QTime(0, 0) && id % 2;
    const QString form = isShort ? "yyyy-MM-dd" : "yyyy-MM-dd HH:mm:ss";
    const QString none("NULL");
    return QString("(%1, %2, %3, %4)")
        .arg(id)
        .arg(row.text ? quoted(*row.text) : none, row.number ? QString::number(*row.number, 'g', 15) : none,
             row.moment ? quoted(row.moment->toString(form)) : none);
}

} // namespace

/// What the database answers to a filter is what the filter means, row by row. The seeds are the same in
/// every run; SUBJECT_TEST_SEED sets another first one.
class TestFilterProperties : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        beginMessages();
        if (qEnvironmentVariableIsSet("SUBJECT_TEST_SEED"))
            m_seed = static_cast<unsigned>(qEnvironmentVariableIntValue("SUBJECT_TEST_SEED"));
        Generator generator(m_seed);
        QStringList values;
        for (int id = 0; id < RowCount; ++id) {
            m_rows << generator.row();
            values << literals(m_rows.last(), id);
        }
        m_fixture.change({"CREATE TABLE sample (ID INTEGER, T TEXT, N DOUBLE PRECISION, D TEXT)",
                          "INSERT INTO sample VALUES " + values.join(", ")});
        m_database = m_fixture.openDatabase();
    }

    void theDatabaseAnswersAsTheFilterMeans()
    {
        const BoundSql base{"SELECT ID, T, N, D FROM sample", {}};
        const Columns columns(m_database->select(base).value().columns(),
                              {{"T", ValueKind::Text}, {"N", ValueKind::Number}, {"D", ValueKind::Date}},
                              m_database->dialect());
        int found = 0;
        for (unsigned seed = m_seed; seed < m_seed + Rounds; ++seed) {
            const Sample sample = Generator(seed).sample();
            const QByteArray what = "seed " + QByteArray::number(seed) + ": " + sample.filter.toUtf8() + ' ' +
                                    QJsonDocument(sample.parameters).toJson(QJsonDocument::Compact);
            const Result<BoundSql> condition = filterCondition(sample.filter, sample.parameters, columns);
            QVERIFY2(condition.ok(),
                     (what + (condition.ok() ? "" : condition.refusal().message.toUtf8())).constData());
            Result<Cursor> cursor = m_database->select(restricted(base, {condition.value()}));
            QVERIFY2(cursor.ok(), what.constData());
            QSet<int> answered, meant;
            while (cursor.value().next())
                answered << cursor.value().value(0).toInt();
            for (int id = 0; id < m_rows.size(); ++id) {
                if (std::all_of(sample.tests.begin(), sample.tests.end(),
                                [&](const Test &test) { return test(m_rows.at(id)); }))
                    meant << id;
            }
            for (const int id : (answered - meant) + (meant - answered))
                QFAIL((what + (meant.contains(id) ? " misses " : " finds ") +
                       literals(m_rows.at(id), id).toUtf8())
                          .constData());
            found += answered.size();
        }
        QVERIFY(found > Rounds);
    }

private:
    ServiceFixture m_fixture;
    std::unique_ptr<Database> m_database;
    QVector<Row> m_rows;
    unsigned m_seed = 1;
};

SUBJECT_TEST_MAIN(TestFilterProperties)
#include "test_filterproperties.moc"
