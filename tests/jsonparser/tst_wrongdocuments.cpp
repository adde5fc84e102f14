#include "parserdocument.h"
#include "subjecttest.h"

#include "jsonparser/tfbasejsontable.h"
#include "jsonparser/tfjsonparser.h"
#include "jsonparser/tfjsontablefactory.h"
#include "mulittable/tfheaderdatastruct.h"
#include "net/tfjsp.h"
#include "net/tfviewproperties.h"

#include <QDir>

#include <functional>

namespace {
const QDir Data(TEST_DATA_DIR);

QByteArray contents(const QString &path)
{
    QFile file(Data.filePath(path));
    if (!file.open(QFile::ReadOnly))
        qFatal("no file %s", qPrintable(file.fileName()));
    return file.readAll();
}

/// What all readers make of one reply, in one line that ends in "apart" where they contradict each other.
QString readingOf(const QByteArray &reply)
{
    NtResponse response;
    const bool envelope = TFJSP::parseResponse(reply, response);
    QJsonArray nodes;
    const bool tree = TFJSP::parseNavTree(reply, nodes);
    TFTreeStruct header("");
    TFSubject::TFJsonParser parser;
    QStringList children;
    QObject::connect(&parser, &TFSubject::TFJsonParser::signalSubTableJsonData, &parser,
                     [&](qint64 id) { children.append(QString::number(id)); });
    bool isSound = parser.parseConfig(response.data, &header);
    const int configRows = parser.rowStore().rowCount();
    const bool page = parser.parseData(response.data);
    QList<QList<QVariant>> plain;
    const bool exported = parser.parseData(reply, &plain, &header);

    QStringList columns;
    for (const TFTreeStruct *leaf : header.leaves())
        columns.append(QString("%1 '%2'").arg(leaf->info().fieldName, leaf->displayCaption()));
    isSound = isSound && header.depth() >= 1 && parser.rowStore().rowCount() == parser.dataMaps().size();
    for (const RowData &row : parser.rows())
        isSound = isSound && row.size() >= columns.size();
    for (const QList<QVariant> &row : plain)
        isSound = isSound && row.size() == columns.size();
    return line("envelope", int(envelope), "state", response.state, "tree", int(tree), "columns",
                '[' + columns.join(", ") + ']', "rows", configRows, "page", int(page), "cells",
                parser.rowStore().cellCount(0), "filters", parser.filterData().size(), "children",
                '[' + children.join(' ') + ']', "total", parser.rowCount(), "export", int(exported),
                plain.size(), isSound ? "" : "apart")
        .trimmed();
}

const QJsonArray Faults =
    QJsonDocument::fromJson(
        R"([null, true, 1, -1e300, 0.5, "x", "[", "[{}]", "{}", [], {}, [[]], [{}], [null, 1]])")
        .array();

/// Visits every document that differs from \a value in one place: a member, an element or what a text holds
/// replaced by a fault, or left out.
void forEachFault(const QJsonValue &value, const std::function<void(const QJsonValue &)> &visit)
{
    for (const QJsonValue &fault : Faults)
        visit(fault);
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            QJsonObject changed = object;
            changed.remove(it.key());
            visit(changed);
            forEachFault(it.value(), [&](const QJsonValue &member) {
                changed.insert(it.key(), member);
                visit(changed);
            });
        }
    } else if (value.isArray()) {
        QJsonArray changed = value.toArray();
        for (int i = 0; i < changed.size(); ++i) {
            const QJsonValue element = changed.at(i);
            forEachFault(element, [&](const QJsonValue &other) {
                changed.replace(i, other);
                visit(changed);
            });
            changed.replace(i, element);
        }
    } else if (value.isString() && (value.toString().startsWith('[') || value.toString().startsWith('{'))) {
        const QJsonValue held = QJsonDocument::fromJson('[' + value.toString().toUtf8() + ']').array().at(0);
        forEachFault(held, [&](const QJsonValue &other) { visit(text(other)); });
    }
}
} // namespace

class TestWrongDocuments : public SubjectTest
{
    Q_OBJECT

private slots:
    void eachFileReadsAsExpected_data();
    void eachFileReadsAsExpected();
    void oneFaultAnywhereHarmsNothing();
    void hugeTextsAndDeepNestingEnd_data();
    void hugeTextsAndDeepNestingEnd();
    void longListsEnd();
};

void TestWrongDocuments::eachFileReadsAsExpected_data()
{
    QTest::addColumn<QString>("expected");
    const QStringList lines =
        QString::fromUtf8(contents("expected/wrong-documents.txt")).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(QDir(Data.filePath("wrong")).entryList({"*.json"}, QDir::Files).size(), lines.size());
    for (const QString &line : lines)
        testRow(qPrintable(line.section(": ", 0, 0)), line.section(": ", 1));
}

void TestWrongDocuments::eachFileReadsAsExpected()
{
    QFETCH(QString, expected);
    allowWarnings("^(cant find field name:|respone is not json obj:)");
    const QByteArray reply = contents(QString("wrong/") + QTest::currentDataTag());
    const QString reading = readingOf(reply);
    // A parser's complaint is part of what is expected; the same text from another reader is not repeated.
    QStringList said;
    for (const QString &line : debugLines() + warnings()) {
        if ((line.contains("Json parse error") || line.startsWith("respone") ||
             line.contains("can't found")) &&
            !said.contains(line))
            said.append(line);
    }
    QCOMPARE(reading + (said.isEmpty() ? "" : " | " + said.join(" | ")), expected);
}

void TestWrongDocuments::oneFaultAnywhereHarmsNothing()
{
    allowWarnings("^cant find field name:");
    QJsonObject reply = QJsonDocument::fromJson(contents("good/reply.json")).object();
    int documents = 0;
    forEachFault(reply.value("data"), [&](const QJsonValue &payload) {
        ++documents;
        reply.insert("data", payload);
        const QString reading = readingOf(QJsonDocument(reply).toJson());
        const bool isRead = !payload.toObject().isEmpty();
        if (!reading.startsWith("envelope 1 state 1") || reading.contains("page 1") != isRead ||
            reading.contains("export 1") != isRead || reading.endsWith("apart"))
            QTest::qFail(qPrintable(reading + text(payload)), __FILE__, __LINE__);
        TFUc::readViewProperties(payload.toArray());
        for (int id = 1; id <= 12; ++id) {
            if (const auto table = TFJsonTableFactory::create(id))
                table->initWith(payload);
        }
    });
    QVERIFY2(documents > 3000, qPrintable(QString::number(documents)));
}

void TestWrongDocuments::hugeTextsAndDeepNestingEnd_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("expression");
    constexpr int TenMegabytes = 10 * 1024 * 1024;
    testRow("10 MB caption", QString(TenMegabytes, 'x'), "1+1");
    testRow("10 MB of open braces", QString(TenMegabytes, '{'), "1+1");
    testRow("10 MB in braces", '{' + QString(TenMegabytes, '[') + '}', "1+1");
    testRow("a million pairs of braces", QString("{}").repeated(1000000), "1+1");
    testRow("10 MB formula", "c", QString("SUM[").repeated(TenMegabytes / 4));
    testRow("10 MB aggregate", "c", QString("SUM[").repeated(TenMegabytes / 4) + ']');
}

void TestWrongDocuments::hugeTextsAndDeepNestingEnd()
{
    QFETCH(QString, caption);
    QFETCH(QString, expression);
    const QJsonObject field = column("A", {{"Caption", caption}, {"UnboundExpression", expression}});
    const QJsonObject row{{"A", caption}, {expression.left(100), 1}};
    QElapsedTimer timer;
    timer.start();
    TFTreeStruct header("");
    TFSubject::TFJsonParser parser;
    QVERIFY(parser.parseConfig(document({field}, {row}), &header));
    QCOMPARE(parser.rowStore().rowCount(), 1);
    QCOMPARE(header.leaves().size(), 1);
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

void TestWrongDocuments::longListsEnd()
{
    QJsonArray columns;
    QJsonArray filters;
    QStringList terms;
    for (int i = 0; i < 10000; ++i) {
        const QString name = QString::number(i * 7919 % 10000);
        columns.append(column(name, {{"Caption", "{[" + name + "]}"}}));
        filters.append(QJsonObject{{"Caption", name}, {"DefualtValue", "=1"}});
        for (int k = 0; k < 30; ++k)
            terms.append(QString("%1.%2 DESC").arg(name).arg(k));
    }
    QElapsedTimer timer;
    timer.start();
    TFTreeStruct header("");
    TFSubject::TFJsonParser parser;
    const QJsonObject order{{"prop_name", "order"}, {"prop_val", terms.join(',')}};
    parser.parseConfig(document(columns, {}, {extension("filters", filters), order}), &header);
    QCOMPARE(header.leafCaptions().value(9999), QString("1"));
    QCOMPARE(parser.orderProperty().second.toJsonObject().size(), terms.size());
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

SUBJECT_TEST_MAIN(TestWrongDocuments)
#include "tst_wrongdocuments.moc"
