#include "subjecttest.h"
#include "tst_exportworkbook.h"

#include "mulittable/tfheaderdatastruct.h"
#include "tfexcelwritter.h"
#include "workbook/tfstreamsheet.h"

#include <QBuffer>

#include <cfloat>
#include <memory>
#include <random>

namespace {
TFTreeStruct *node(const QString &caption, const QList<TFTreeStruct *> &children = {}, bool isVisible = true)
{
    HeaderFieldInfo info;
    info.fieldName = info.caption = caption;
    info.visible = isVisible;
    auto *made = new TFTreeStruct(info);
    for (TFTreeStruct *child : children)
        made->addChild(child);
    return made;
}

TFTreeStruct *hidden(const QString &caption)
{
    return node(caption, {}, false);
}

std::shared_ptr<TFTreeStruct> header(const QList<TFTreeStruct *> &nodes)
{
    auto root = std::make_shared<TFTreeStruct>(QString());
    for (TFTreeStruct *child : nodes)
        root->addChild(child);
    return root;
}

/// Makes tables that no service should deliver.
class TableMaker
{
public:
    explicit TableMaker(unsigned seed)
        : m_random(seed)
    {}

    QList<TFTreeStruct *> nodes(int depth)
    {
        QList<TFTreeStruct *> nodes;
        for (unsigned i = pick(4) + 1; i > 0; --i)
            nodes.append(node(text(), pick(3) || depth > 3 ? QList<TFTreeStruct *>() : this->nodes(depth + 1),
                              pick(5)));
        return nodes;
    }
    QList<QList<QVariant>> rows()
    {
        QList<QList<QVariant>> rows;
        for (unsigned i = pick(12); i > 0; --i) {
            rows.append(QList<QVariant>());
            for (unsigned cell = pick(9); cell > 0; --cell)
                rows.last().append(value());
        }
        return rows;
    }

private:
    unsigned pick(unsigned count) { return m_random() % count; }

    QString text()
    {
        static const QStringList pieces{
            "abc",  "股票",       "\r\n", "\r\r",        "\r",          "\\u",         "\\",
            "=1+1", " ",          "\n",   "<b>",         "&amp;",       "\x01",        "\t",
            "𠮷",   "http://a.b", "12",   QChar(0xd842), QChar(0xdfb7), QChar(0xffff), QString(20000, 'x')};
        QString text = pick(9) ? "" : QString();
        for (unsigned i = pick(4); i > 0; --i)
            text += pieces.at(int(pick(unsigned(pieces.size()))));
        return text;
    }
    double number() { return double(int(m_random())) * std::pow(10.0, int(pick(40)) - 20); }
    QVariant value()
    {
        const auto large = qint64(quint64(m_random()) << 32 | m_random());
        const QDateTime time = QDateTime::fromSecsSinceEpoch(qint64(m_random()));
        const QVariantMap map{{"a", 1}};
        QVariantList values{number(), int(m_random()), uint(m_random()), large, quint64(large), 1.5f};
        values << (pick(2) == 0) << time << time.toUTC() << time.date() << time.time() << qQNaN() << qInf();
        values << -qInf() << QVariant() << QVariant::fromValue(nullptr) << QVariant(QVariant::Int) << map
               << QVariant(map.values());
        return pick(3) ? values.at(int(pick(unsigned(values.size())))) : text();
    }

    std::mt19937 m_random;
};

/// Keeps how far a table goes.
class SheetEnds : public TFSheet
{
public:
    void writeText(int row, int col, const QString &text, Style) override
    {
        longestText = qMax(longestText, text.size());
        writeBlank(row, col, Plain);
    }
    void writeNumber(int row, int col, double, Style) override { writeBlank(row, col, Plain); }
    void writeBool(int row, int col, bool, Style) override { writeBlank(row, col, Plain); }
    void writeBlank(int row, int col, Style) override
    {
        lastRow = qMax(lastRow, row);
        lastColumn = qMax(lastColumn, col);
    }
    void merge(int, int, int last) override { lastMerged = last; }
    void beginData(int, int, int, double) override {}

    int lastRow = 0;
    int lastColumn = 0;
    int lastMerged = 0;
    int longestText = 0;
};

/// Takes that many bytes and no more.
class FullDevice : public QBuffer
{
public:
    explicit FullDevice(qint64 room)
        : m_room(room)
    {
        open(QIODevice::ReadWrite);
    }

protected:
    qint64 writeData(const char *data, qint64 length) override
    {
        return pos() + length > m_room ? -1 : QBuffer::writeData(data, length);
    }

private:
    const qint64 m_room;
};
} // namespace

using Header = std::shared_ptr<TFTreeStruct>;
using Rows = QList<QList<QVariant>>;
Q_DECLARE_METATYPE(Header)

/// The sheet of a table, as it reads back.
class ExportWriterTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void headerStandsAsOnTheScreen_data();
    void headerStandsAsOnTheScreen();
    void valueTakesItsFormatAndHandsItOn();
    void textIsCleanedAndStaysText_data();
    void textIsCleanedAndStaysText();
    void hiddenColumnsCloseUpUnderTheHeader();
    void bothWaysWriteTheSame();
    void numberReadsBackToItsLastBit();
    void sheetEndsWhereTheDeviceIsFull();
    void moreThanASheetHoldsIsLeftOut();
};

namespace {
std::unique_ptr<ExportedWorkbook> writeDocument(const Header &header, const Rows &rows)
{
    QXlsx::Document document;
    TFExcelWritter::writeHeader(document, header.get());
    TFExcelWritter::writeData(document, header.get(), rows);
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    document.saveAs(&file);
    file.open(QIODevice::ReadOnly); // the library has closed it
    return std::make_unique<ExportedWorkbook>(&file);
}

bool stream(QIODevice &file, const Header &header, const Rows &rows)
{
    TFStreamSheet sheet(file);
    TFSheetTable::writeHeader(sheet, header.get());
    return TFSheetTable::writeRows(sheet, header.get(), rows, {}) && sheet.finish();
}

std::unique_ptr<ExportedWorkbook> write(const Header &header, const Rows &rows)
{
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    stream(file, header, rows);
    file.seek(0);
    return std::make_unique<ExportedWorkbook>(&file);
}
} // namespace

void ExportWriterTest::headerStandsAsOnTheScreen_data()
{
    QTest::addColumn<Header>("header");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("merges");
    testRow("flat", header({node("a"), node("b"), node("c")}),
            QStringList{"A1 'a'* | B1 'b'* | C1 'c'*", "A2 0 i"}, "");
    testRow("band over two", header({node("B", {node("a"), node("b")})}),
            QStringList{"A1 'B'* | B1 -*", "A2 'a'* | B2 'b'*", "A3 0 i"}, "A1:B1");
    testRow("low column under tall neighbours",
            header({node("x"), node("B", {node("C", {node("a"), node("b")}), node("d")}), node("y")}),
            QStringList{"B1 'B'* | C1 -* | D1 -*", "B2 'C'* | C2 -*",
                        "A3 'x'* | B3 'a'* | C3 'b'* | D3 'd'* | E3 'y'*", "A4 0 i"},
            "B1:D1 B2:C2");
    testRow("band over one", header({node("B", {node("a")}), node("b")}),
            QStringList{"A1 'B'*", "A2 'a'* | B2 'b'*", "A3 0 i"}, "");
    testRow(
        "hidden nodes keep their room",
        header({node("B", {hidden("a"), node("b")}), node("C", {node("c"), node("d")}, false), node("e")}),
        QStringList{"A1 'B'* | B1 -*", "B2 'b'* | E2 'e'*"}, "A1:B1");
    testRow("caption that no sheet can hold", header({node(QString("a\x01z")), node("=1+1")}),
            QStringList{"A1 'az'* | B1 '=1+1'*", "A2 0 i"}, "");
    testRow("nothing", header({}), QStringList{"A1 0 i"}, "");
}

void ExportWriterTest::headerStandsAsOnTheScreen()
{
    QFETCH(Header, header);
    QFETCH(QStringList, rows);
    QFETCH(QString, merges);

    const auto workbook = write(header, {{0}});

    QCOMPARE(workbook->rows().join('\n'), rows.join('\n'));
    QCOMPARE(workbook->merges, merges);
}

void ExportWriterTest::valueTakesItsFormatAndHandsItOn()
{
    const Header columns = header({node("a"), node("b"), node("c"), node("d")});
    const qint64 large = 123456789012345;

    const auto workbook = write(columns, {{"t", large, 1234.5, large},
                                          {" ", 3, large, QDate(1900, 3, 1)},
                                          {"u", QDateTime(QDate(2020, 1, 2), QTime(12, 0)), true, -0.5},
                                          {QVariant(), "v", 7, QVariant()}});

    QCOMPARE(workbook->rows().mid(1).join('\n'),
             QStringList({"A2 't' | B2 123456789012345 | C2 1234.5 d | D2 123456789012345 d",
                          "A3 ' ' d | B3 3 i | C3 123456789012345 i | D3 61 t",
                          "A4 'u' t | B4 43832.5 t | C4 true t | D4 -0.5 d",
                          "A5 - d | B5 'v' d | C5 7 i | D5 - i"})
                 .join('\n'));
}

void ExportWriterTest::textIsCleanedAndStaysText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    testRow("line break", "a\r\nb\r\n", "ab");
    testRow("two returns", "a\r\rb", "ab");
    testRow("break between returns", "a\r\r\n\rb", "ab");
    testRow("escape mark", "\\u4e2d \\U", "4e2d \\U");
    testRow("lone newline stays", "a\nb", "a\nb");
    testRow("looks like a formula", "=1+1", "=1+1");
    testRow("looks like a number", "000001", "000001");
    testRow("mark-up", "<a> & \"b\"", "<a> & \"b\"");
    testRow("no character of XML", QString("a\x02") + QChar(0xffff) + "b", "ab");
    testRow("beyond the first plane", "𠮷", "𠮷");
}

void ExportWriterTest::textIsCleanedAndStaysText()
{
    QFETCH(QString, text);
    QFETCH(QString, written);
    QCOMPARE(write(header({node("a")}), {{text}})->rows().value(1), QString("A2 '%1'").arg(written));
}

void ExportWriterTest::hiddenColumnsCloseUpUnderTheHeader()
{
    const auto workbook =
        write(header({node("a"), hidden("b"), node("c"), hidden("d")}), {{5}, {1, 2.5, "x", 4}});

    QCOMPARE(workbook->rows().join('\n'), QString("A1 'a'* | C1 'c'*\nA2 5 i\nA3 1 i | B3 'x' i"));
    QCOMPARE(workbook->widths, QString("1:25 2:25"));
}

void ExportWriterTest::bothWaysWriteTheSame()
{
    allowWarnings("a cell holds");
    for (unsigned seed = 0; seed < 300; ++seed) {
        TableMaker maker(seed);
        const Header columns = header(maker.nodes(0));
        const Rows rows = maker.rows();

        const auto streamed = write(columns, rows);
        const auto plain = writeDocument(columns, rows);

        const QString place = QString("seed %1: ").arg(seed);
        QCOMPARE(place + streamed->rows().join('\n'), place + plain->rows().join('\n'));
        QCOMPARE(place + streamed->merges + streamed->widths, place + plain->merges + plain->widths);
    }
}

void ExportWriterTest::numberReadsBackToItsLastBit()
{
    std::mt19937_64 random(1);
    QList<QVariant> values{0.1 + 0.2, DBL_MAX, -DBL_MIN, 5e-324, 9007199254740993.0, 1e21, -0.0};
    while (values.size() < 2000) {
        const quint64 bits = random();
        double value;
        memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value))
            values.append(value);
    }
    const auto workbook = write(header({node("a")}), {values});
    for (int i = 0; i < values.size(); ++i)
        QCOMPARE(QByteArray::number(workbook->number(2, i + 1), 'g', 17),
                 QByteArray::number(values.at(i).toDouble(), 'g', 17));
}

void ExportWriterTest::sheetEndsWhereTheDeviceIsFull()
{
    Rows rows;
    for (int i = 0; i < 20000; ++i)
        rows.append({QString::number(i * 7919 % 104729)});
    const Header columns = header({node("a")});
    QBuffer whole;
    whole.open(QIODevice::ReadWrite);
    QVERIFY(stream(whole, columns, rows));

    for (qint64 room : {qint64(0), qint64(1000), whole.size() / 2, whole.size() - 1}) {
        FullDevice device(room);
        QVERIFY2(!stream(device, columns, rows), qPrintable(QString::number(room)));
    }
    FullDevice device(whole.size());
    QVERIFY(stream(device, columns, rows));
}

void ExportWriterTest::moreThanASheetHoldsIsLeftOut()
{
    QList<TFTreeStruct *> leaves;
    QList<QVariant> values;
    for (int i = 1; i <= 16386; ++i) {
        leaves.append(node(QString::number(i)));
        values.append(i);
    }
    values[0] = QString(32766, 'x') + "𠮷";
    Rows rows{values};
    while (rows.size() < 1048576)
        rows.append(QList<QVariant>());
    rows[1048573] = {7};
    rows[1048574] = {8};
    const Header columns = header({node("B", leaves)});
    expectWarning("^a sheet holds 1048576 rows, left out: 2$");
    expectWarning("^a sheet holds 16384 columns, left out: 2$");
    expectWarning("^a cell holds 32767 characters, texts cut: 1$");
    SheetEnds ends;

    TFSheetTable::writeHeader(ends, columns.get());
    TFSheetTable::writeRows(ends, columns.get(), rows, {});

    QCOMPARE(ends.lastMerged, 16384);
    QCOMPARE(ends.lastColumn, 16384);
    QCOMPARE(ends.lastRow, 1048576);
    QCOMPARE(ends.longestText, 32766);
}

SUBJECT_TEST_MAIN(ExportWriterTest)
#include "tst_exportwriter.moc"
