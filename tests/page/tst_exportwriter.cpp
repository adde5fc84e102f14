#include "subjecttest.h"
#include "tst_exportworkbook.h"

#include "mulittable/tfheaderdatastruct.h"
#include "tfexcelwritter.h"

#include <QTemporaryDir>

#include <xlsxdocument.h>

#include <memory>

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
} // namespace

using Header = std::shared_ptr<TFTreeStruct>;
using Rows = QList<QList<QVariant>>;
Q_DECLARE_METATYPE(Header)

/// The sheet that the writer makes, as another reader sees it.
class ExportWriterTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void headerStandsAsOnTheScreen_data();
    void headerStandsAsOnTheScreen();
    void wideTableGoesOnAfterCZ();
    void valueTakesItsFormatAndHandsItOn();
    void textIsCleanedAndStaysText_data();
    void textIsCleanedAndStaysText();
    void hiddenColumnsCloseUpUnderTheHeader();
    void columnsOfTheWidestRowAreWide();
    void writerStopsWhenTold();

private:
    std::unique_ptr<ExportedWorkbook> write(const Header &header, const Rows &rows);

    QTemporaryDir m_folder;
};

std::unique_ptr<ExportedWorkbook> ExportWriterTest::write(const Header &header, const Rows &rows)
{
    const QString path = m_folder.filePath("sheet.xlsx");
    QXlsx::Document document;
    TFExcelWritter::writeHeader(document, header.get());
    TFExcelWritter::writeData(document, header.get(), rows);
    document.saveAs(path);
    return std::make_unique<ExportedWorkbook>(path);
}

void ExportWriterTest::headerStandsAsOnTheScreen_data()
{
    QTest::addColumn<Header>("header");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("merges");
    testRow("flat", header({node("a"), node("b"), node("c")}),
            QStringList{"A1 'a'* | B1 'b'* | C1 'c'*", "A2 0 i"}, "");
    testRow("band over two", header({node("B", {node("a"), node("b")})}),
            QStringList{"A1 'B'*", "A2 'a'* | B2 'b'*", "A3 0 i"}, "A1:B1");
    testRow("low column under tall neighbours",
            header({node("x"), node("B", {node("C", {node("a"), node("b")}), node("d")}), node("y")}),
            QStringList{"B1 'B'*", "B2 'C'*", "A3 'x'* | B3 'a'* | C3 'b'* | D3 'd'* | E3 'y'*", "A4 0 i"},
            "B1:D1 B2:C2");
    testRow("band over one", header({node("B", {node("a")}), node("b")}),
            QStringList{"A1 'B'*", "A2 'a'* | B2 'b'*", "A3 0 i"}, "");
    testRow(
        "hidden nodes keep their room",
        header({node("B", {hidden("a"), node("b")}), node("C", {node("c"), node("d")}, false), node("e")}),
        QStringList{"A1 'B'*", "B2 'b'* | E2 'e'*"}, "A1:B1");
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
    QCOMPARE(workbook->merges.join(' '), merges);
    QVERIFY(workbook->isCentred);
}

void ExportWriterTest::wideTableGoesOnAfterCZ()
{
    QList<TFTreeStruct *> leaves;
    QList<QVariant> values;
    for (int i = 1; i <= 800; ++i) {
        leaves.append(node(QString::number(i)));
        values.append(i);
    }

    const auto workbook = write(header({node("B", leaves)}), {values});

    QCOMPARE(workbook->merges.join(' '), QString("A1:ADT1"));
    QStringList cells = workbook->rows().at(1).split(" | ");
    QCOMPARE(cells.size(), 800);
    QCOMPARE(cells.at(103) + ' ' + cells.at(104), QString("CZ2 '104'* DA2 '105'*"));
    QCOMPARE(workbook->rows().at(2).split(" | ").last(), QString("ADT3 800 i"));
    QStringList names;
    for (int column : {0, 1, 26, 27, 104, 105, 702, 703})
        names.append(TFExcelWritter::cellName(7, column));
    QCOMPARE(names.join(' '), QString("7 A7 Z7 AA7 CZ7 DA7 ZZ7 AAA7"));
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
                          "A4 'u' t | B4 43832.5 t | C4 1 t | D4 -0.5 d", "B5 'v' d | C5 7 i"})
                 .join('\n'));
    QVERIFY(workbook->isCentred);
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
        write(header({node("a"), hidden("b"), node("c"), hidden("d")}), {{1, 2.5, "x", 4}, {5}});

    QCOMPARE(workbook->rows().join('\n'), QString("A1 'a'* | C1 'c'*\nA2 1 i | B2 'x' i\nA3 5 i"));
    QCOMPARE(workbook->widths, QString("1-2:25"));
}

void ExportWriterTest::columnsOfTheWidestRowAreWide()
{
    const Header columns = header({node("a"), node("b"), node("c")});
    QCOMPARE(write(columns, {{1}, {1, 2}, {1}})->widths, QString("1-2:25"));
    QCOMPARE(write(columns, {})->widths, QString());
}

void ExportWriterTest::writerStopsWhenTold()
{
    Rows rows;
    for (int i = 0; i < 2000; ++i)
        rows.append({i});
    QXlsx::Document document;
    QList<int> told;

    const bool isWritten =
        TFExcelWritter::writeData(document, header({node("a")}).get(), rows, [&](int count) {
            told.append(count);
            return told.size() < 3;
        });

    QVERIFY(!isWritten);
    QCOMPARE(told.size(), 3);
    QCOMPARE(document.dimension().lastRow(), told.last() + 1);
}

SUBJECT_TEST_MAIN(ExportWriterTest)
#include "tst_exportwriter.moc"
