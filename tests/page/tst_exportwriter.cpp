#include "subjecttest.h"
#include "tst_exportworkbook.h"

#include "mulittable/tfheaderdatastruct.h"
#include "tfexcelwritter.h"
#include "workbook/tfstreamsheet.h"

#include <QBuffer>

#include <cmath>
#include <random>

using Header = std::shared_ptr<TFTreeStruct>;
using Rows = QList<QList<QVariant>>;
Q_DECLARE_METATYPE(Header)

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

Header header(const QList<TFTreeStruct *> &nodes)
{
    return Header(node(QString(), nodes));
}

/// Makes tables that no service should deliver.
class TableMaker
{
public:
    explicit TableMaker(unsigned seed)
        : m_random(seed)
    {}

    QList<TFTreeStruct *> nodes(int depth = 0)
    {
        QList<TFTreeStruct *> made;
        for (unsigned i = pick(4) + 1; i > 0; --i)
            made.append(node(text(), pick(3) || depth > 3 ? made.mid(0, 0) : nodes(depth + 1), pick(5)));
        return made;
    }
    Rows rows()
    {
        Rows rows;
        for (unsigned i = pick(12); i > 0; --i) {
            rows.append(QList<QVariant>());
            for (unsigned cell = pick(9); cell > 0; --cell)
                rows.last().append(pick(3) ? other() : text());
        }
        return rows;
    }

private:
    unsigned pick(unsigned count) { return m_random() % count; }
    QString text()
    {
        QStringList pieces =
            QString("abc|股票|\r\n|\r\r|\r|\\u|\\|=1+1| |\n|<b>|&amp;|\x01|\t|http://a.b|12").split('|');
        pieces << QChar(0xd842) << QChar(0xdfb7) << QChar(0xffff) << QString(20000, 'x');
        QString text = pick(9) ? "" : QString();
        for (unsigned i = pick(4); i > 0; --i)
            text += pieces.at(int(pick(unsigned(pieces.size()))));
        return text;
    }
    QVariant other()
    {
        const auto large = qint64(quint64(m_random()) << 32 | m_random());
        const QDateTime time = QDateTime::fromSecsSinceEpoch(qint64(m_random()));
        const QVariantMap map{{"a", 1}};
        QVariantList values{std::ldexp(double(large), int(pick(300)) - 150), int(large), uint(large), large};
        values << quint64(large) << 1.5f << true << time << time.toUTC() << time.date() << time.time()
               << qQNaN() << -qInf() << QVariant() << QVariant::fromValue(nullptr) << QVariant(QVariant::Int)
               << map << QVariant(map.values());
        return values.at(int(pick(unsigned(values.size()))));
    }

    std::mt19937 m_random;
};

/// The sheet as exports write it, read back.
ExportedWorkbook write(const Header &header, const Rows &rows)
{
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    TFStreamSheet sheet(file);
    TFSheetTable::writeHeader(sheet, header.get());
    TFSheetTable::writeRows(sheet, header.get(), rows, {});
    sheet.finish();
    file.seek(0);
    return ExportedWorkbook(&file);
}

/// The same by the workbook library.
ExportedWorkbook writePlainly(const Header &header, const Rows &rows)
{
    QXlsx::Document document;
    TFExcelWritter::writeHeader(document, header.get());
    TFExcelWritter::writeData(document, header.get(), rows);
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    document.saveAs(&file);
    file.open(QIODevice::ReadOnly); // the library has closed it
    return ExportedWorkbook(&file);
}
} // namespace

/// The sheet of a table, as it reads back.
class ExportWriterTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void tableStandsAsOnTheScreen_data();
    void tableStandsAsOnTheScreen();
    void textIsCleanedAndStaysText();
    void bothWaysWriteTheSame();
    void numberReadsBackToItsLastBit();
    void moreThanASheetHoldsIsLeftOut();
};

void ExportWriterTest::tableStandsAsOnTheScreen_data()
{
    QTest::addColumn<Header>("header");
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<QString>("sheet");
    const Rows zero{{0}};
    testRow("nothing", header({}), Rows(), "");
    testRow("flat", header({node("a"), node("b"), node("c")}), zero,
            "A1 'a'* | B1 'b'* | C1 'c'*\nA2 0 i\n1:25");
    testRow("band over two", header({node("B", {node("a"), node("b")})}), zero,
            "A1 'B'* | B1 -*\nA2 'a'* | B2 'b'*\nA3 0 i\nA1:B1\n1:25");
    testRow("low column under tall neighbours",
            header({node("x"), node("B", {node("C", {node("a"), node("b")}), node("d")}), node("y")}), zero,
            "B1 'B'* | C1 -* | D1 -*\nB2 'C'* | C2 -*\nA3 'x'* | B3 'a'* | C3 'b'* | D3 'd'* | E3 'y'*\n"
            "A4 0 i\nB1:D1 B2:C2\n1:25");
    testRow("band over one", header({node("B", {node("a")}), node("b")}), Rows(),
            "A1 'B'*\nA2 'a'* | B2 'b'*");
    testRow(
        "hidden nodes keep their room",
        header({node("B", {hidden("a"), node("b")}), node("C", {node("c"), node("d")}, false), node("e")}),
        zero, "A1 'B'* | B1 -*\nB2 'b'* | E2 'e'*\nA1:B1");
    testRow("values of hidden columns close up", header({node("a"), hidden("b"), node("c"), hidden("d")}),
            Rows{{5}, {1, 2.5, "x", 4}}, "A1 'a'* | C1 'c'*\nA2 5 i\nA3 1 i | B3 'x' i\n1:25 2:25");
    testRow("caption that no sheet can hold", header({node(QString("a\x01z")), node("=1+1")}), Rows(),
            "A1 'az'* | B1 '=1+1'*");
    const qint64 large = 123456789012345;
    testRow("values hand their format on", header({node("a")}),
            Rows{{"t", large, 1234.5, large},
                 {" ", 3, large, QDate(1900, 3, 1)},
                 {"u", QDateTime(QDate(2020, 1, 2), QTime(12, 0)), true, -0.5},
                 {QVariant(), "v", 7, QVariant()}},
            "A1 'a'*\nA2 't' | B2 123456789012345 | C2 1234.5 d | D2 123456789012345 d\n"
            "A3 ' ' d | B3 3 i | C3 123456789012345 i | D3 61 t\nA4 'u' t | B4 43832.5 t | C4 true t | D4 "
            "-0.5 d\n"
            "A5 - d | B5 'v' d | C5 7 i | D5 - i\n1:25 2:25 3:25 4:25");
}

void ExportWriterTest::tableStandsAsOnTheScreen()
{
    QFETCH(Header, header);
    QFETCH(Rows, rows);
    QTEST(write(header, rows).text(), "sheet");
}

void ExportWriterTest::textIsCleanedAndStaysText()
{
    const QList<QPair<QString, QString>> texts{{"a\r\nb\r\n", "ab"},
                                               {"a\r\rb", "ab"},
                                               {"a\r\r\n\rb", "ab"},
                                               {"\\u4e2d \\U", "4e2d \\U"},
                                               {"a\nb", "a\nb"},
                                               {"=1+1", "=1+1"},
                                               {"000001", "000001"},
                                               {"<a> & \"b\"", "<a> & \"b\""},
                                               {"𠮷", "𠮷"},
                                               {"a\x02\xef\xbf\xbf", "a"},
                                               {QString(QChar(0xd842)), ""},
                                               {"http://a b", "http://a b"}};
    for (const auto &[text, written] : texts)
        QCOMPARE(write(header({node("a")}), {{text}}).rows().at(1), "A2 '" + written + '\'');
}

void ExportWriterTest::bothWaysWriteTheSame()
{
    allowWarnings("a cell holds");
    for (unsigned seed = 0; seed < 300; ++seed) {
        TableMaker maker(seed);
        const Header columns = header(maker.nodes());
        const Rows rows = maker.rows();
        const QString place = QString("seed %1: ").arg(seed);
        QCOMPARE(place + write(columns, rows).text(), place + writePlainly(columns, rows).text());
    }
}

void ExportWriterTest::numberReadsBackToItsLastBit()
{
    std::mt19937_64 random(1);
    QList<QVariant> values{0.1 + 0.2, 5e-324, 9007199254740992.0, 1e21, -0.0};
    while (values.size() < 1000)
        values.append(std::ldexp(double(qint64(random())), int(random() % 1900) - 1060));
    const ExportedWorkbook workbook = write(header({node("a")}), {values});
    for (int i = 0; i < values.size(); ++i)
        QCOMPARE(QByteArray::number(workbook.number(2, i + 1), 'g', 17),
                 QByteArray::number(values.at(i).toDouble(), 'g', 17));
}

void ExportWriterTest::moreThanASheetHoldsIsLeftOut()
{
    QList<TFTreeStruct *> leaves;
    QList<QVariant> values{QString(32766, 'x') + "𠮷"};
    for (int i = 1; i <= 16386; ++i) {
        leaves.append(node(QString::number(i)));
        values.append(i);
    }
    expectWarning("^a sheet holds 16384 columns, left out: 3$");
    expectWarning("^a cell holds 32767 characters, texts cut: 1$");

    const ExportedWorkbook workbook = write(header({node("B", leaves)}), {values});

    QCOMPARE(workbook.merges, QString("A1:XFD1"));
    QCOMPARE(workbook.rows().at(1).section(" | ", -1), QString("XFD2 '16384'*"));
    QCOMPARE(workbook.rows().at(2).section(" | ", -1), QString("XFD3 16383 i"));
    QCOMPARE(workbook.rows().at(2).section(" | ", 0, 0), "A3 '" + QString(32766, 'x') + '\'');
}

SUBJECT_TEST_MAIN(ExportWriterTest)
#include "tst_exportwriter.moc"
