#include "subjecttest.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QImageReader>
#include <QLineEdit>
#include <QPrinter>
#include <QProcess>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebEngineView>

#include "chartjson.h"
#include "echarts/tfchartprint.h"
#include "echarts/tfmulticharts.h"
#include "pagescript.h"
#include "pageservice.h"
#include "testhost.h"
#include "tfcore/tfcore.h"

namespace {
constexpr int kStartMs = 60000; ///< the web engine's first page on a busy machine

const char kMixed[] =
    "{'XFieldName':'X','XValueType':'String','XDisplayDataPattern':1,'LegendPosition':3,'ChartDataConfigs':["
    "{'FieldName':'V','LegendLable':'成交量','ChartType':'Column','IsVisible':true},"
    "{'FieldName':'W','LegendLable':'w','ChartType':'Line','YShaftType':'Right','IsVisible':true},"
    "{'FieldName':'W','LegendLable':'hidden','ChartType':'Area'}]}";
const char kPie[] =
    "{'ChartType':'Pie','XFieldName':'X','XValueType':'String','XDisplayDataPattern':1,'LegendPosition':1,"
    "'ChartDataConfigs':[{'FieldName':'V','LegendLable':'v'},{'FieldName':'W','LegendLable':'w'}]}";
const char kRows[] = "[{'X':'a','V':1,'W':40},{'X':'b','V':2,'W':20},{'X':'c','V':3,'W':30}]";

/// The part of the picture of a chart without legend and axes.
QImage plot(const QImage &image)
{
    return image.copy(image.rect().adjusted(60, 20, -140, -40));
}

int colours(const QImage &image)
{
    QSet<QRgb> seen;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            seen.insert(image.pixel(x, y));
    }
    return seen.size();
}
} // namespace

class TestChartPage : public SubjectTest
{
    Q_OBJECT

public:
    /// Opens an address in place of the desktop.
    Q_INVOKABLE void openOutside(const QUrl &url) { m_opened = url.toString(); }

private slots:
    void init();
    void cleanup();
    void rowsBeforeThePageIsReadyAreDrawnThen();
    void pieHidesTheAxesForGood();
    void skinRecoloursThePage();
    void legendStandsWhereItIsTold();
    void menuOpensAtTheMouseAndAClickCopies();
    void pictureIsSavedByTheDialog();
    void printedPageShowsThePicture();
    void outsideLinkLeavesThePage();
    void crossViewAsksForTheWholeSet();

private:
    void showChart(const QString &chart);
    /// A chart is painted some frames after its message.
    void showPaintedChart()
    {
        showChart(kMixed);
        QTRY_VERIFY(colours(plot(m_chart->grab().toImage())) > 8);
    }
    QVariant ask(const QString &script) const;
    QString seriesTypes() const
    {
        return ask("tfCharts.getOption().series.map(s => s.type).join()").toString();
    }

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFMultiCharts> m_chart;
    QString m_opened;
};

void TestChartPage::init()
{
    beginMessages();
    allowWarnings(".*"); // the web engine's own
    m_service = std::make_unique<PageService>();
    m_host = std::make_unique<TestHost>(m_service.get());
    m_chart = std::make_unique<TFMultiCharts>();
    m_chart->resize(800, 400);
    m_chart->show();
}

void TestChartPage::cleanup()
{
    m_chart.reset();
    m_host.reset();
    m_service.reset();
    endMessages();
}

void TestChartPage::showChart(const QString &chart)
{
    QTRY_VERIFY_WITH_TIMEOUT(m_chart->isPageReady(), kStartMs);
    m_chart->parseConfig(ChartJson::document(chart), true);
    m_chart->setRows(ChartJson::rows(kRows));
    QTRY_COMPARE(seriesTypes(), QString(chart == kMixed ? "bar,line" : "pie,pie"));
}

QVariant TestChartPage::ask(const QString &script) const
{
    return askPage(m_chart->webView()->page(), script);
}

void TestChartPage::rowsBeforeThePageIsReadyAreDrawnThen()
{
    QVERIFY(!m_chart->isPageReady());
    m_chart->handleReply(ChartJson::document(kMixed, kRows), {}, 1);
    QTRY_VERIFY_WITH_TIMEOUT(m_chart->isPageReady(), kStartMs);

    QTRY_COMPARE(seriesTypes(), QString("bar,line"));
    QCOMPARE(ask("option.xAxis.data.join()").toString(), QString("a,b,c"));
    QCOMPARE(ask("option.yAxis.map(a => a.position).join()").toString(), QString("left,right"));
    QCOMPARE(ask("option.legend.data.map(l => l.name).join()").toString(), QString("成交量,w"));
    QCOMPARE(ask("JSON.stringify(option.series[1].data)").toString(), QString("[40,20,30]"));
    QCOMPARE(ask("option.xAxis.axisLabel.rotate").toInt(), 0);
    QCOMPARE(ask("mainContainer.clientWidth + 'x' + mainContainer.clientHeight").toString(),
             QString("%1x%2").arg(m_chart->webView()->width()).arg(m_chart->webView()->height()));

    m_chart->clear();
    QTRY_COMPARE(ask("tfCharts.getOption().series.length").toInt(), 0);
    QCOMPARE(ask("option.xAxis.data.length + option.legend.data.length").toInt(), 0);
    QCOMPARE(ask("option.yAxis[1].show"), QVariant(false));
}

void TestChartPage::pieHidesTheAxesForGood()
{
    const QString axes = "[option.xAxis.show, option.yAxis[0].show, option.title.length].join()";
    showChart(kPie);
    QCOMPARE(ask(axes).toString(), QString("false,false,2"));
    QCOMPARE(ask("option.series[1].center.join()").toString(), QString("66%,50%"));

    showChart(kMixed);
    QCOMPARE(ask(axes).toString(), QString("false,,2"));

    const QString pivot = QString(kPie).replace("'ChartType'", "'IsSwitchXAxis':true,'ChartType'");
    m_chart->handleReply(ChartJson::document(pivot, kRows), {}, 1);
    QTRY_COMPARE(ask("option.series.map(s => s.name + s.data.length).join()").toString(),
                 QString("a2,b2,c2"));
    QCOMPARE(ask("option.title.map(t => t.x).join()").toString(), QString("25%,50%,75%"));
}

void TestChartPage::skinRecoloursThePage()
{
    const QString white = "#FFFFFF #333333 menu_white toolBtn_white #ffffff";
    const QVector<QPair<QString, QString>> skins{
        {"black", "#080B10 #FFFFFF menu_black toolBtn_black #080b10"},     {"white", white},
        {"mid", "#080B10 #FFFFFF menu_black toolBtn_black none"},          {"Default", white},
        {"Black", "undefined undefined menu_black toolBtn_black #080b10"}, {"WHITE", white},
        {"pink", "undefined undefined menu_black toolBtn_black none"},     {"white", white},
    };
    showChart(kMixed);
    for (const auto &[skin, expected] : skins) {
        m_chart->slotChangeSkin(skin);
        const QColor background = m_chart->webView()->page()->backgroundColor();
        const QString widgetColour = background.isValid() ? background.name() : "none";
        QTRY_COMPARE(ask("[option.backgroundColor, option.legend.textStyle.color, menu.className, "
                         "document.getElementsByName('toolBtn')[2].className].map(String).join(' ')")
                             .toString() +
                         ' ' + widgetColour,
                     expected);
    }

    showChart(kPie); // titles keep the menu from the skin
    TFCore::instance()->setCurrentSkin("black");
    QTRY_COMPARE(ask("option.backgroundColor").toString(), QString("#080B10"));
    QCOMPARE(ask("tfCharts.getOption().title[0].textStyle.color").toString(), QString("#787878"));
    QCOMPARE(ask("menu.className").toString(), QString("menu_white"));
}

void TestChartPage::legendStandsWhereItIsTold()
{
    const QVector<QPair<int, QString>> positions{
        {3, "true right middle vertical 20 79 20 20"},    {2, "true left middles vertical 79 20 20 20"},
        {1, "true center bottom horizontal 20 20 20 30"}, {0, "false center bottom horizontal 20 20 20 30"},
        {4, "true center top horizontal 20 20 30 20"},    {5, "false center top horizontal 20 20 30 20"},
    };
    showChart(kMixed);
    for (const auto &[position, expected] : positions) {
        const QString chart =
            QString(kMixed).replace("'LegendPosition':3", QString("'LegendPosition':%1").arg(position));
        m_chart->handleReply(ChartJson::document(chart, kRows), {}, 1);
        QTRY_COMPARE(
            ask("[option.legend.show, option.legend.left, option.legend.top, option.legend.orient, "
                "option.grid.left, option.grid.right, option.grid.top, option.grid.bottom].join(' ')")
                .toString(),
            expected);
    }
}

void TestChartPage::menuOpensAtTheMouseAndAClickCopies()
{
    showPaintedChart();
    QApplication::clipboard()->clear();
    const QString open = "document.oncontextmenu({preventDefault: function () {}, clientX: %1, clientY: %2});"
                         "[menu.style.display, menu.offsetLeft, menu.offsetTop].join()";
    QCOMPARE(ask(open.arg(10).arg(20)).toString(), QString("block,10,20"));
    const QString corner = QString("block,%1,%2");
    QCOMPARE(ask(open.arg(790).arg(390)).toString(),
             corner.arg(790 - ask("menu.offsetWidth").toInt()).arg(390 - ask("menu.offsetHeight").toInt()));

    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("tmp"));
    qputenv("TMPDIR", QFile::encodeName(folder.filePath("tmp")));
    ask("document.body.click()");
    QTRY_VERIFY(!QApplication::clipboard()->image().isNull());
    QCOMPARE(ask("menu.style.display").toString(), QString("none"));
    const QImage image = QApplication::clipboard()->image();
    QVERIFY(colours(plot(image)) > 8);
    QCOMPARE(image.size(), m_chart->size() * m_chart->devicePixelRatioF());
    QCOMPARE(QDir(folder.path()).entryList({"tmp_*.png"}).size(), 1);
    qunsetenv("TMPDIR");
}

void TestChartPage::pictureIsSavedByTheDialog()
{
    showPaintedChart();
    QTemporaryDir folder;
    const QString path = folder.filePath("picture.jpg");
    const auto save = [this, path](bool isAccepted) {
        QTimer::singleShot(0, this, [path, isAccepted] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            auto *name = dialog->findChild<QLineEdit *>("fileNameEdit");
            QCOMPARE(dialog->windowTitle() + ' ' + name->text() + ' ' + dialog->nameFilters().join(' '),
                     QString("保存 甲-乙 Images (*.png) Images (*.jpg)"));
            name->setText(path);
            isAccepted ? static_cast<QDialog *>(dialog)->accept() : dialog->reject();
        });
        return m_chart->slotSaveImage(QString());
    };
    QCOMPARE(save(false), QString());
    QVERIFY(!QFile::exists(path));

    QCOMPARE(save(true), path);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), QByteArray("jpeg"));
    QVERIFY(colours(plot(reader.read())) > 8);
}

void TestChartPage::printedPageShowsThePicture()
{
    showPaintedChart();
    const QImage picture = m_chart->grab().toImage();
    QTemporaryDir folder;
    const QString file = folder.filePath("print.pdf");
    {
        QPrinter printer(QPrinter::ScreenResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        TFChartPrint::paint(printer, picture);
    }

    QCOMPARE(QProcess::execute("pdftoppm", {"-png", "-singlefile", file, folder.filePath("page")}), 0);

    const QImage page(folder.filePath("page.png"));
    const QRect upper(0, 0, page.width(), page.height() / 2);
    QVERIFY(colours(page.copy(upper)) > 8);
    QCOMPARE(colours(page.copy(upper.translated(0, upper.height()))), 1);
}

void TestChartPage::outsideLinkLeavesThePage()
{
    showChart(kMixed);
    QDesktopServices::setUrlHandler("http", this, "openOutside");
    const QUrl page = m_chart->webView()->url();
    ask("window.location.href = 'http://127.0.0.1:9/outside'; 0");
    QTRY_COMPARE(m_opened, QString("http://127.0.0.1:9/outside"));
    QCOMPARE(m_chart->webView()->url(), page);
    QCOMPARE(seriesTypes(), QString("bar,line"));
}

void TestChartPage::crossViewAsksForTheWholeSet()
{
    const QString rows = "[{'X':'a','A__V':1,'B__V':2}]";
    m_service->answer({{}, 2, 401}, PageService::data(QJsonObject{{"Data", ChartJson::parse(rows).array()}}));
    m_chart->setViewId(401);
    m_chart->parseConfig(ChartJson::document(kMixed, {}, {{"IsCross", "1"}}), true);
    m_chart->requestData();
    QTRY_COMPARE_WITH_TIMEOUT(ask("option.series.map(s => s.name).join()").toString(),
                              QString("A成交量,B成交量"), kStartMs);
}

SUBJECT_TEST_MAIN(TestChartPage)
#include "tst_chartpage.moc"
