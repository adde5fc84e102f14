#include "renderprogram.h"

#include "../page/tst_exportworkbook.h"
#include "subjecttest.h"
#include "testservice.h"

#include <QDir>
#include <QImage>

namespace {
QString address(const QString &query)
{
    return "view://subjectpage?" + query;
}

QJsonArray rowsOf(const QJsonObject &page)
{
    return page.value("main").toObject().value("rows").toArray();
}

QJsonArray column(const QJsonObject &page, int column)
{
    QJsonArray texts;
    for (const QJsonValue &row : rowsOf(page))
        texts.append(row.toObject().value("texts").toArray().at(column));
    return texts;
}

/// The conditions that the last request carried, "FIELD op value;value, ...".
QString conditions(const QJsonObject &page)
{
    QStringList conditions;
    const QJsonObject sent = page.value("main").toObject().value("final").toObject();
    for (const QJsonValue &value : sent.value("filters").toArray()) {
        const QJsonObject filter = value.toObject();
        conditions.append(filter.value("fieldName").toString() + ' ' + filter.value("op").toString() + ' ' +
                          filter.value("values").toVariant().toStringList().join(';'));
    }
    return conditions.join(", ");
}

/// Whether a cell of a workbook ("A3 'text'", "B3 1.5 d") and a text of the screen say the same: figures to
/// the digits that are shown.
bool isSame(const QString &cell, const QJsonValue &shown)
{
    const QString text = shown.toString();
    bool isNumber = false;
    const double number = QLocale(QLocale::English).toDouble(text, &isNumber);
    const QString content = cell.section(' ', 1);
    if (content.section(' ', 0, 0) == "-") // a cell without a value
        return text.isEmpty();
    if (!isNumber || content.startsWith('\''))
        return content.mid(1, content.lastIndexOf('\'') - 1).trimmed() == text;
    const int dot = text.indexOf('.');
    const int digits = dot < 0 ? 0 : text.size() - dot - 1;
    return qAbs(content.section(' ', 0, 0).toDouble() - number) <= 0.501 * std::pow(10.0, -digits);
}
} // namespace

/// Pages drawn and told into files, against the demonstration's service.
class RenderTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(DemoData::isThere(), "tools/demo-data makes the demonstration database"); }

    void pagesAreToldAsTheyAreShown()
    {
        const QStringList names{"bands-children", "cross", "groups", "blocks", "vertical"};
        RenderProgram program;
        const int status = program.run(
            RenderProgram::demonstration() +
            QStringList{"--size", "1100x700", "--render", address("pnodecode=2&nodecode=2002&title=Big"),
                        address("pnodecode=2&nodecode=2023"), address("pnodecode=50&nodecode=5004"),
                        address("pnodecode=2&nodecode=2003"), address("pnodecode=190&nodecode=19002")});
        QVERIFY2(status == 0, qPrintable(program.errors));
        for (int i = 0; i < names.size(); ++i) {
            const QString folder = QString::number(i + 1);
            const QString difference = program.difference(folder + "/page.json", names.at(i));
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
            QCOMPARE(QImage(program.path(folder + "/page.png")).size(), QSize(1100, 700));
        }
    }

    void scriptWorksThePageAsAUserWould()
    {
        RenderProgram program;
        const int status = program.run(RenderProgram::demonstration() +
                                       QStringList{"--select-row", "1", "--script",
                                                   TEST_DATA_DIR "/good/render/all-steps.json", "--render",
                                                   address("pnodecode=2&objvwid=260")});
        QVERIFY2(status == 0, qPrintable(program.errors));

        // The chosen row has come down to the children.
        const QJsonObject chosen = program.page("chosen.json");
        for (const QJsonValue &child : chosen.value("children").toArray()) {
            if (child.toObject().value("viewId") == 2601)
                QCOMPARE(child.toObject().value("final").toObject().value("parameters").toArray().first(),
                         QJsonValue(QJsonObject{{"key", "SYMBOL"}, {"value", column(chosen, 0).at(1)}}));
        }

        // Keyword and blocks filter, the column sorts, the unit stands in the caption.
        const QJsonObject worked = program.page("worked.json");
        QCOMPARE(worked.value("tree").toObject().value("selected"),
                 QJsonValue(QJsonArray{"行情与财务", "全球2000强公司"}));
        QVERIFY(rowsOf(worked).size() > 2 && rowsOf(worked).size() < 200);
        for (const QJsonValue &name : column(worked, 1))
            QVERIFY2(name.toString().contains("bank", Qt::CaseInsensitive), qPrintable(name.toString()));
        QVERIFY(!column(worked, 3).contains(QJsonValue("银行")));
        QStringList names;
        for (const QJsonValue &name : column(worked, 1))
            names.append(name.toString());
        QVERIFY(std::is_sorted(names.rbegin(), names.rend()));
        QVERIFY(QJsonDocument(worked.value("main").toObject().value("columns").toArray())
                    .toJson()
                    .contains("(百万元)"));
        QVERIFY(QFile::exists(program.path("股票专题_行情与财务.xlsx")));

        const QJsonObject paged = program.page("paged.json");
        const QJsonObject paging = paged.value("main").toObject().value("paging").toObject();
        QCOMPARE(paging.value("page").toInt(), 2);
        QCOMPARE(paging.value("size").toInt(), 500);
        QCOMPARE(rowsOf(paged).size(), 500);

        // The search has opened the first leaf; the last step followed a link into another page.
        const QJsonObject searched = program.page("searched.json");
        QCOMPARE(searched.value("main").toObject().value("viewId").toInt(), 267);
        QVERIFY(QImage(program.path("searched.png")).pixelColor(600, 5).lightness() < 60);
        const QJsonObject last = program.page();
        QCOMPARE(last.value("main").toObject().value("viewId").toInt(), 1641);
        QVERIFY(last.value("url").toString().contains("secuid="));
    }

    void filterStepSetsControlsOfEveryForm()
    {
        RenderProgram program;
        const int status =
            program.run(RenderProgram::demonstration() +
                        QStringList{"--script", TEST_DATA_DIR "/good/render/filter-controls.json", "--render",
                                    address("pnodecode=4808&nodecode=480802")});
        QVERIFY2(status == 0, qPrintable(program.errors));
        QCOMPARE(conditions(program.page("holdings.json")),
                 QString("YEAR == 1996, SP500 in 是, INSTITUTIONS >= 20, INSTITUTIONS <= 60"));
        QCOMPARE(rowsOf(program.page("bonds.json")).size(), 12);
        QCOMPARE(conditions(program.page("states.json")), QString("PROVINCE == 佐治亚, YEAR in 1986;1984"));
        const QJsonArray controls = program.page().value("main").toObject().value("controls").toArray();
        QCOMPARE(controls.first().toObject().value("text").toString(), QString("2019年 年度"));
    }

    void stepThatCannotBeDoneEndsTheScriptWithItsNumber_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("reason");
        testRow("row", QByteArray(R"([{"do": "query"}, {"do": "row", "index": 100000}])"),
                "step 2 (row): there is no row 100000");
        testRow("entry", QByteArray(R"([{"do": "filter", "caption": "行业大类", "value": "无"}])"),
                "step 1 (filter): \"无\" is not one of: 全部");
        testRow("no data",
                QByteArray(R"([{"do": "filter", "caption": "关键字", "value": "zzzz"}, {"do": "query"}])"),
                "the page has no data");
    }

    void stepThatCannotBeDoneEndsTheScriptWithItsNumber()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, reason);
        RenderProgram program;
        QDir().mkpath(program.folder());
        QFile file(program.path("script.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.close();

        const int status =
            program.run(RenderProgram::demonstration() + QStringList{"--script", file.fileName(), "--render",
                                                                     address("pnodecode=2&objvwid=260")});

        QCOMPARE(status, 1);
        QVERIFY2(program.errors.contains(reason), qPrintable(program.errors));
        QVERIFY(!program.page().isEmpty());
    }

    void workbookHoldsWhatThePageShows()
    {
        RenderProgram program;
        const int status =
            program.run(RenderProgram::demonstration() +
                        QStringList{"--xlsx", "--render", address("pnodecode=311&nodecode=31011")});
        QVERIFY2(status == 0, qPrintable(program.errors));
        const QStringList books = QDir(program.folder()).entryList({"*.xlsx"});
        QCOMPARE(books.size(), 1);
        const QStringList lines = ExportedWorkbook(program.path(books.first())).rows();
        const QJsonArray rows = rowsOf(program.page());
        QVERIFY(rows.size() > 20);
        const int header = lines.size() - rows.size();
        QVERIFY(header >= 1);
        for (int row = 0; row < rows.size(); ++row) {
            const QJsonArray texts = rows.at(row).toObject().value("texts").toArray();
            QMap<QChar, QString> cells; // by the letter of the column
            for (const QString &cell : lines.at(header + row).split(" | "))
                cells.insert(cell.at(0), cell);
            for (int i = 0; i < texts.size(); ++i) {
                const QString cell = cells.value(QChar('A' + i), "A1 ''");
                QVERIFY2(isSame(cell, texts.at(i)), qPrintable(cell + " / " + texts.at(i).toString()));
            }
        }
    }

    void serviceThatIsNotThereIsAFailedPage()
    {
        RenderProgram program;
        const int status =
            program.run({"--service", "http://127.0.0.1:1", "--render", address("pnodecode=2&objvwid=260")});
        QCOMPARE(status, 1);
        QVERIFY2(program.errors.contains("a request failed: /bas/ds/data"), qPrintable(program.errors));
        QCOMPARE(program.page().value("state").toString(), QString("failed"));
        QVERIFY(!QImage(program.path("page.png")).isNull());
    }

    void pageThatLoadsTooLongIsWrittenAllTheSame()
    {
        TestService service;
        service.setRule([](const TestService::Request &) {
            TestService::Answer answer;
            answer.isHeld = true;
            return answer;
        });
        RenderProgram program;
        program.start({"--service", service.url().toString(), "--timeout", "1", "--render",
                       address("pnodecode=2&objvwid=260")});
        QTRY_COMPARE_WITH_TIMEOUT(program.process().state(), QProcess::NotRunning, RenderProgram::PatienceMs);
        QCOMPARE(program.process().exitCode(), 3);
        QCOMPARE(program.page().value("state").toString(), QString("timeout"));
        QVERIFY(!QImage(program.path("page.png")).isNull());
    }

    void wrongUsageOpensNothing()
    {
        RenderProgram program;
        QDir().mkpath(program.folder());
        const int status = program.run({"--script", TEST_DATA_DIR "/wrong/render/unknown-step.json",
                                        "--render", address("objvwid=260")});
        QCOMPARE(status, 2);
        QVERIFY2(program.errors.contains("unknown-step.json: step 2:"), qPrintable(program.errors));
        QVERIFY(QDir(program.folder()).isEmpty());
        QCOMPARE(program.run({"--skin", "pink", "--render", address("objvwid=260")}), 2);
        QVERIFY2(program.errors.contains("pink"), qPrintable(program.errors));
    }
};

SUBJECT_TEST_MAIN(RenderTest)
#include "tst_render.moc"
