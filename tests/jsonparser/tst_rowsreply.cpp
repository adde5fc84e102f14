#include "subjecttest.h"

#include "jsonparser/tfdatajsontable.h"
#include "jsonparser/tfexportvalue.h"
#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfheaderdatastruct.h"
#include "net/tfrowsreply.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
/// The toolkit's parser leaks the first value of a key that comes twice.
using RepeatsMayLeak = __lsan::ScopedDisabler;
#else
struct RepeatsMayLeak
{
    RepeatsMayLeak() {}
};
#endif

namespace {
/// The pieces of \a text between spaces; "%" and two digits stand for any byte.
QByteArrayList pieces(const char *text)
{
    QByteArrayList pieces = QByteArray(text).split(' ');
    for (QByteArray &piece : pieces)
        piece = QByteArray::fromPercentEncoding(piece);
    return pieces;
}

const QByteArrayList Keys = pieces(R"(A SECU_ID 元 b\u0041 bB  z\n 😀)");
const QByteArrayList Values =
    pieces(R"(null true false 0 -0 -7 1.0 -2.50 9223372036854775808 1e3 2.5E-7 "" "abc" "股票" "1.5")"
           R"( "],{" "\n\"\\\/" "\u4e2d\ud83d\ude00" "\ud800" "\u0000" "%7f" "%ef%bb%bf" "%ef%bf%bf" "\x")"
           R"( "é\u00e9" "😀" [%201%20,"x",{"k"%20:[2.5,null]}] {"k":[true],"A":{}} [%20] {})");
const QByteArrayList Faults = pieces(
    R"( nul True 1e400 1e-400 - 01 +1 .5 1. 1e NaN -Infinity 0x10 1%202 1"2 , : ] { [1} [1%202] {"k"} {1:2})"
    R"( " "\" "%ff" "%ed%a0%80" "%c0%80" "%e4%b8" "%f4%90%80%80" "%09" "\u12" "\u+123" "%00" "\中")");

/// Writes replies as no service should: every kind of value, spaces and odd keys; an odd one also has keys
/// that come twice, and faults.
class Writer
{
public:
    Writer(unsigned seed, bool isOdd)
        : m_random(seed)
        , m_isOdd(isOdd)
    {}

    QByteArray reply()
    {
        QByteArrayList members{member("state", "1"), member("msg", "\"\""), member("extend", value()),
                               member(seldom() ? "d\\u0061ta" : "data", payload())};
        if (repeats())
            members.append(member("data", seldom() ? payload() : "null"));
        const QByteArray reply = space() + object(members) + space();
        return m_isOdd && pick(2) ? edited(reply) : reply;
    }

private:
    unsigned pick(unsigned count) { return m_random() % count; }
    bool seldom() { return pick(12) == 0; }
    bool repeats() { return m_isOdd && seldom(); }
    QByteArray one(const QByteArrayList &choices) { return choices.at(int(pick(unsigned(choices.size())))); }
    QByteArray space() { return pick(6) ? "" : QByteArray(" \t\r\n").mid(int(pick(4)), 2); }
    QByteArray member(const QByteArray &key, const QByteArray &value)
    {
        return space() + '"' + key + '"' + space() + ':' + space() + value + space();
    }
    QByteArray object(QByteArrayList members)
    {
        std::shuffle(members.begin(), members.end(), m_random);
        return '{' + members.join(',') + '}';
    }
    QByteArray payload()
    {
        QByteArrayList members{member("Summary", value()), member("Data", seldom() ? value() : rows())};
        if (repeats())
            members.append(member("Data", rows()));
        return seldom() ? value() : object(members);
    }
    QByteArray rows()
    {
        QByteArrayList rows;
        for (unsigned i = pick(8); i > 0; --i)
            rows.append(space() + (pick(80) ? row() : value()) + space());
        return '[' + rows.join(',') + ']';
    }
    QByteArray row()
    {
        QByteArrayList members;
        for (const QByteArray &key : Keys) {
            if (pick(7))
                members.append(member(key, value()));
        }
        if (repeats())
            members.append(member(one({"A", "bA"}), value()));
        return pick(3) ? '{' + members.join(',') + '}' : object(members);
    }
    QByteArray value()
    {
        if (m_isOdd && pick(40) == 0)
            return one(Faults);
        return pick(3) ? one(Values) : decimal();
    }
    QByteArray decimal()
    {
        const quint64 digits = (quint64(m_random()) << 32 | m_random()) >> pick(64);
        QByteArray decimal =
            QByteArray::number(digits) + '.' + QByteArray::number(quint64(m_random() >> pick(32)));
        if (seldom())
            decimal += one({"e", "E"}) + one({"", "+", "-"}) + QByteArray::number(pick(30));
        return (pick(3) ? "" : "-") + (pick(2) ? decimal : QByteArray::number(digits));
    }
    QByteArray edited(QByteArray reply)
    {
        const int place = int(pick(unsigned(reply.size())));
        switch (pick(4)) {
        case 0:
            return reply.left(place);
        case 1:
            return reply.remove(place, 1 + int(pick(4)));
        case 2:
            return reply.insert(place, one(Faults));
        default:
            return reply.replace(place, 1, QByteArray(1, char(m_random())));
        }
    }

    std::mt19937 m_random;
    const bool m_isOdd;
};

/// The values with their exact types.
template <typename... T> QByteArray bytes(const T &...values)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    (void(out << values), ...);
    return bytes;
}

QByteArray bytes(const NtResponse &response)
{
    return bytes(response.state, response.msg, response.extend, response.data);
}

using Rows = QList<QList<QVariant>>;

/// Leaves of each type for some fields of the replies.
void fillHeader(TFTreeStruct &header)
{
    for (const char *type : {"Decimal", "String", "DateTime", "Int32"}) {
        for (const char *field : {"A", "元", "bA", "no such"}) {
            HeaderFieldInfo info;
            info.fieldName = field;
            info.valueType = type;
            header.addChild(new TFTreeStruct(info));
        }
    }
}

/// What the export makes of the reply, by way of the toolkit's parser.
bool exportPlainly(const QByteArray &json, Rows &rows, TFTreeStruct &header)
{
    const QJsonObject reply = QJsonDocument::fromJson(json).object();
    const QJsonObject payload = reply.value("data").toObject();
    if (reply.value("state").toInt() != 1 || payload.isEmpty())
        return false;
    for (const QJsonValue &row : payload.value("Data").toArray()) {
        const QVariantMap map = row.toObject().toVariantMap();
        rows.append(QList<QVariant>());
        for (const TFTreeStruct *leaf : header.leaves()) {
            TFTableModelData::tagCellValue cell;
            cell.valueType = leaf->info().valueType;
            rows.last().append(TFExportValue::convert(cell, map.value(leaf->info().fieldName)));
        }
    }
    return true;
}

bool isExportedAlike(const QByteArray &json)
{
    TFTreeStruct header{QString()};
    fillHeader(header);
    Rows rows, plain;
    const bool isRead = TFSubject::TFJsonParser().parseData(json, &rows, &header);
    return isRead == exportPlainly(json, plain, header) && bytes(rows) == bytes(plain);
}

/// Reads both ways; true when the rows came apart.
bool compare(const QByteArray &json)
{
    NtResponse plain;
    TFRowsReply reply;
    const bool isGood = TFJSP::parseResponse(json, plain);
    const bool isRead = TFRowsReply::read(json, reply);
    QList<QVariantMap> rows;
    TFDataJsonTable apart;
    if (reply.rows) {
        apart.setRows(reply.rows);
        QJsonObject payload = plain.data.toObject();
        for (const QJsonValue &row : payload.value("Data").toArray())
            rows.append(row.toObject().toVariantMap());
        payload["Data"] = QJsonArray();
        plain.data = payload;
    }
    if (isRead != isGood || bytes(apart.rows()) != bytes(rows) || bytes(reply.envelope) != bytes(plain))
        QTest::qFail(json.toPercentEncoding(" {}[]:,\"\\"), __FILE__, __LINE__);
    if (!isExportedAlike(json))
        QTest::qFail("exported: " + json.toPercentEncoding(" {}[]:,\"\\"), __FILE__, __LINE__);
    return bool(reply.rows);
}
} // namespace

class TestRowsReply : public SubjectTest
{
    Q_OBJECT

private slots:
    void readsWhatTheToolkitReads();
    void longRowsAndDeepOnesAreReadToo();
};

void TestRowsReply::readsWhatTheToolkitReads()
{
    allowWarnings("^respone is not json obj:");
    int apart = 0;
    for (unsigned seed = 0; seed < 2000 && !QTest::currentTestFailed(); ++seed)
        apart += compare(Writer(seed, false).reply());
    QVERIFY2(apart > 1300, qPrintable(QString::number(apart)));

    const RepeatsMayLeak ignored;
    apart = 0;
    for (unsigned seed = 0; seed < 6000 && !QTest::currentTestFailed(); ++seed)
        apart += compare(Writer(seed, true).reply());
    QVERIFY2(apart > 500, qPrintable(QString::number(apart)));
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

SUBJECT_TEST_MAIN(TestRowsReply)
#include "tst_rowsreply.moc"
