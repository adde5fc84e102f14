#include "subjecttest.h"

#include "jsonparser/tfdatajsontable.h"
#include "net/tfrowsreply.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace {
/// Writes replies as no service should: every kind of value, spaces, odd keys, and now and then a fault.
class Writer
{
public:
    Writer(unsigned seed, bool isFaulty, bool hasRepeats)
        : m_random(seed)
        , m_isFaulty(isFaulty)
        , m_hasRepeats(hasRepeats)
    {}

    QByteArray reply()
    {
        QByteArrayList members{member("state", "1"), member("msg", "\"\""), member("extend", value(1)),
                               member(odd() ? "d\\u0061ta" : "data", payload())};
        if (repeats())
            members.append(member("data", odd() ? payload() : "null"));
        std::shuffle(members.begin(), members.end(), m_random);
        return space() + '{' + members.join(',') + '}' + space() + (fault() ? "x" : "");
    }

private:
    unsigned pick(unsigned count) { return m_random() % count; }
    bool odd() { return pick(12) == 0; }
    bool repeats() { return m_hasRepeats && odd(); }
    bool fault() { return m_isFaulty && pick(40) == 0; }
    QByteArray space() { return pick(6) ? "" : QByteArray(" \t\r\n").mid(int(pick(4)), 2); }
    QByteArray one(const QByteArrayList &choices) { return choices.at(int(pick(unsigned(choices.size())))); }
    QByteArray member(const QByteArray &key, const QByteArray &value)
    {
        return space() + '"' + key + '"' + space() + ':' + space() + value + space();
    }

    QByteArray payload()
    {
        QByteArrayList members{member("Summary", value(1)), member("Data", odd() ? value(2) : rows())};
        if (repeats())
            members.append(member("Data", rows()));
        std::shuffle(members.begin(), members.end(), m_random);
        return odd() ? value(1) : '{' + members.join(',') + '}';
    }
    QByteArray rows()
    {
        QByteArrayList rows;
        for (unsigned i = pick(8); i > 0; --i)
            rows.append(space() + (pick(80) ? object(0) : value(1)) + space());
        return '[' + rows.join(',') + (fault() ? "," : "") + ']';
    }
    QByteArray object(int depth)
    {
        QByteArrayList members;
        for (const char *key :
             {"A", "SECU_ID", "元", "b\\u0041", m_hasRepeats ? "bA" : "bB", "", "z\\n", "\xf0\x9f\x98\x80"}) {
            if (pick(7))
                members.append(member(key, value(depth)));
        }
        if (repeats())
            members.append(member("A", value(depth)));
        return '{' + members.join(fault() ? ";" : ",") + '}';
    }
    QByteArray value(int depth)
    {
        switch (pick(depth > 2 ? 5 : 7)) {
        case 0:
            return one({"null", "true", "false", fault() ? "nul" : "null", fault() ? "True" : "true"});
        case 1:
        case 2:
            return number();
        case 3:
        case 4:
            return text();
        case 5:
            return object(depth + 1);
        default:
            return '[' + value(depth + 1) + (fault() ? "" : ",") + value(depth + 1) + (fault() ? "}" : "]");
        }
    }
    QByteArray number()
    {
        const auto digits = [this](unsigned most) {
            QByteArray digits;
            for (unsigned i = 1 + pick(most); i > 0; --i)
                digits += char('0' + pick(10));
            return digits;
        };
        if (fault())
            return one({"1e400", "-", "01", "+1", ".5", "1e", "NaN", "-Infinity", "0x10", "1 2", "1\"2"});
        QByteArray number = pick(3) ? "" : "-";
        number += pick(5) ? QByteArray::number(digits(19).toULongLong()) : one({"0", "9223372036854775808"});
        if (pick(2))
            number += '.' + digits(pick(2) ? 3 : 17);
        if (odd())
            number += '.' + QByteArray(int(pick(4)), '0');
        if (odd())
            number += one({"e", "E"}) + one({"", "+", "-"}) + digits(2);
        return number.count('.') > 1 && !fault() ? number.left(number.indexOf('.')) : number;
    }
    QByteArray text()
    {
        QByteArray text;
        for (unsigned i = pick(4); i > 0; --i) {
            text += pick(3) ? one({"abc", "股票", "é", "1.5", "{", "],"})
                            : one({"\\n", "\\\"", "\\\\", "\\/", "\\u4e2d", "\\ud83d\\ude00", "\\ud800",
                                   "\\u0000", "\xf0\x9f\x98\x80", "\x7f"});
            if (odd())
                text += one({"\xef\xbb\xbf", "\xef\xbf\xbf", "\\x", "\\u00e9"});
            if (fault())
                text += one({"\xff", "\xed\xa0\x80", "\xc0\x80", "\xe4\xb8", "\xf4\x90\x80\x80", "\t",
                             "\\u12", "\\u+123", "\"", "\\", QByteArray(1, '\0'), "\\\xe4\xb8\xad"});
        }
        return '"' + text + '"';
    }

    std::mt19937 m_random;
    bool m_isFaulty;
    bool m_hasRepeats; ///< some keys come twice
};

/// The toolkit's parser leaks the first value of a key that comes twice.
class RepeatsMayLeak
{
public:
    explicit RepeatsMayLeak(bool mayLeak)
        : m_mayLeak(mayLeak)
    {
#ifdef __SANITIZE_ADDRESS__
        if (m_mayLeak)
            __lsan_disable();
#endif
    }
    ~RepeatsMayLeak()
    {
#ifdef __SANITIZE_ADDRESS__
        if (m_mayLeak)
            __lsan_enable();
#endif
    }
    Q_DISABLE_COPY(RepeatsMayLeak)

private:
    const bool m_mayLeak;
};

QString written(const QList<QVariantMap> &rows)
{
    QString text;
    QDebug out(&text);
    for (const QVariantMap &row : rows) {
        for (auto it = row.begin(); it != row.end(); ++it) {
            out << it.key() << it.value() << it.value().isNull();
            if (it.value().userType() == QMetaType::Double)
                out << QByteArray::number(it.value().toDouble(), 'g', 17);
        }
        out << '\n';
    }
    return text;
}

QString written(const NtResponse &response)
{
    QString text;
    QDebug(&text) << response.state << response.msg << response.extend << response.data;
    return text;
}
} // namespace

class TestRowsReply : public SubjectTest
{
    Q_OBJECT

private slots:
    void readsWhatTheToolkitReads_data();
    void readsWhatTheToolkitReads();
    void longRowsAndDeepOnesAreReadToo();
    void valuesComeBackAsTheyWere();

private:
    /// Reads both ways; true when the rows came apart.
    bool compare(const QByteArray &json);
};

bool TestRowsReply::compare(const QByteArray &json)
{
    NtResponse plain;
    const bool isGood = TFJSP::parseResponse(json, plain);
    const QStringList said = debugLines() + warnings();
    TFRowsReply reply;
    const auto seen = QString::fromUtf8(json.toPercentEncoding(" {}[]:,\"\\"));
    if (TFRowsReply::read(json, reply) != isGood)
        QTest::qFail(qPrintable("another verdict: " + seen), __FILE__, __LINE__);
    if (!reply.rows) {
        if (written(reply.envelope) != written(plain))
            QTest::qFail(qPrintable("another envelope: " + seen), __FILE__, __LINE__);
        return false;
    }
    TFDataJsonTable table;
    table.initWith(plain.data.toObject().value("Data"));
    TFDataJsonTable apart;
    apart.setRows(reply.rows);
    QJsonObject rest = plain.data.toObject();
    rest["Data"] = QJsonArray();
    plain.data = rest;
    if (written(apart.rows()) != written(table.rows()) || written(reply.envelope) != written(plain))
        QTest::qFail(qPrintable("another reading: " + seen), __FILE__, __LINE__);
    return true;
}

void TestRowsReply::readsWhatTheToolkitReads_data()
{
    QTest::addColumn<bool>("isFaulty");
    QTest::addColumn<bool>("hasRepeats");
    QTest::addColumn<int>("fewestApart");
    QTest::newRow("good replies") << false << false << 1000;
    QTest::newRow("keys that come twice") << false << true << 1000;
    QTest::newRow("replies with faults") << true << false << 150;
}

void TestRowsReply::readsWhatTheToolkitReads()
{
    QFETCH(bool, isFaulty);
    QFETCH(bool, hasRepeats);
    QFETCH(int, fewestApart);
    const RepeatsMayLeak ignored(hasRepeats);
    allowWarnings("^respone is not json obj:");
    int apart = 0;
    for (unsigned seed = 0; seed < 2000 && !QTest::currentTestFailed(); ++seed)
        apart += compare(Writer(seed, isFaulty, hasRepeats).reply());
    QVERIFY2(apart > fewestApart, qPrintable(QString::number(apart)));
}

void TestRowsReply::longRowsAndDeepOnesAreReadToo()
{
    const auto reply = [](const QByteArray &rows) {
        return R"({"state":1,"msg":"","extend":null,"data":{"Data":[)" + rows + "]}}";
    };
    const auto nested = [](int depth) { return QByteArray(depth, '[') + QByteArray(depth, ']'); };
    allowWarnings("too deeply nested document");
    QVERIFY(compare(reply("{\"A\":\"" + QByteArray(1000000, 'x') + "\"},{\"A\":" + nested(300) + '}')));
    QVERIFY(!compare(reply("{\"A\":" + nested(900) + '}')));
    QVERIFY(!compare(reply("{\"A\":" + nested(100000) + '}')));
    QVERIFY(!compare(reply("{\"A\":" + QByteArray(1000000, '[') + '}')));
    QByteArrayList rows;
    for (int i = 0; i < 20000; ++i)
        rows.append("{\"A" + QByteArray::number(i) + "\":1,\"B\":\"" + QByteArray::number(i) + "\"}");
    QVERIFY(compare(reply(rows.join(','))));
}

void TestRowsReply::valuesComeBackAsTheyWere()
{
    const QVariantList values{QVariant(),
                              QVariant::fromValue(nullptr),
                              true,
                              -5,
                              5u,
                              qint64(1) << 60,
                              0.1,
                              qQNaN(),
                              QString(),
                              "",
                              QString(70000, 'x'),
                              QString(QChar(0xd800)),
                              QString(QChar(0xfeff)) + 'a',
                              QString("a").append(QChar()),
                              QDate(2020, 1, 31),
                              QVariantList{1, "x"}};
    TFValueList list;
    for (const QVariant &value : values)
        list.append(value);
    for (int i = 0; i < values.size(); ++i) {
        const QVariant back = list.at(size_t(i));
        QCOMPARE(back.userType(), values.at(i).userType());
        QCOMPARE(back.isNull(), values.at(i).isNull());
        QVERIFY(back == values.at(i) || i == 7);
        QCOMPARE(list.number(size_t(i)), values.at(i).toDouble());
    }
}

SUBJECT_TEST_MAIN(TestRowsReply)
#include "tst_rowsreply.moc"
