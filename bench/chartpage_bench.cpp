// Chart views on the screen: the second one against the first, and the memory of all processes over changes
// between a page of charts and a page with a table. Needs an X display.

#include "comparison.h"
#include "echarts/tfmulticharts.h"
#include "net/tfjsp.h"
#include "replies.h"
#include "tfviewfactory.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {
constexpr int Rounds = 5;
constexpr double SecondViewGoal = 0.35;
constexpr int Charts = 5;
constexpr int WarmUp = 5;
constexpr int Changes = 50;
constexpr double MemoryGoal = 1.1;
constexpr int SettleMs = 5000; ///< until the last renderers have ended
constexpr int RowCount = 200;

bool isReady(const TFMultiCharts *chart)
{
    return chart->isPageReady();
}

void waitForPages(const QList<TFMultiCharts *> &charts)
{
    while (!std::all_of(charts.begin(), charts.end(), isReady))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Milliseconds from making a chart view to its page being ready to draw.
double openView(QWidget *window)
{
    QElapsedTimer clock;
    clock.start();
    auto *chart = new TFMultiCharts(window);
    window->layout()->addWidget(chart);
    waitForPages({chart});
    return double(clock.nsecsElapsed()) / 1e6;
}

/// In a process of its own: prints the times of the first and the second view.
int openTwo()
{
    QWidget window;
    new QVBoxLayout(&window);
    window.resize(900, 700);
    window.show();
    const double first = openView(&window);
    std::printf("%f %f\n", first, openView(&window));
    return 0;
}

void compareSecondView()
{
    double second = 0;
    Bench::compareTimed(
        {QStringLiteral("a second chart view, ready to draw"), QStringLiteral("the first one"),
         SecondViewGoal},
        Rounds,
        [&second] {
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("two")});
            process.waitForFinished(-1);
            const QList<QByteArray> times = process.readAllStandardOutput().simplified().split(' ');
            if (process.exitCode() != 0 || times.size() != 2)
                qFatal("the charts could not be opened");
            second = times.at(1).toDouble();
            return times.at(0).toDouble();
        },
        [&second] { return second; });
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Kilobytes that \a process and those that it started hold, shared ones counted once.
double groupMemory(const QString &process)
{
    const QString folder = QStringLiteral("/proc/") + process;
    double kilobytes = 0;
    const QList<QByteArray> lines = contents(folder + QStringLiteral("/smaps_rollup")).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("Pss:"))
            kilobytes += line.mid(4).simplified().split(' ').first().toDouble();
    }
    const QStringList threads =
        QDir(folder + QStringLiteral("/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads) {
        const QByteArray children =
            contents(folder + QStringLiteral("/task/") + thread + QStringLiteral("/children"));
        for (const QByteArray &child : children.simplified().split(' '))
            kilobytes += child.isEmpty() ? 0 : groupMemory(QString::fromLatin1(child));
    }
    return kilobytes;
}

double settledMegabytes()
{
    QEventLoop loop;
    QTimer::singleShot(SettleMs, &loop, &QEventLoop::quit);
    loop.exec();
    return groupMemory(QString::number(QCoreApplication::applicationPid())) / 1024;
}

QJsonObject chartDocument()
{
    const QString chart = QStringLiteral(
        R"({"XFieldName":"FIELD_NAME_01","XValueType":"String","XDisplayDataPattern":1,"ChartDataConfigs":[)"
        R"({"FieldName":"FIELD_NAME_11","LegendLable":"a","ChartType":"Line","IsVisible":true}]})");
    return {
        {"View_Config",
         QJsonArray{QJsonObject{{"prop_name", "ObjViewType"}, {"prop_val", "ViewDataChart"}},
                    QJsonObject{
                        {"prop_typ", "EXTEND"}, {"prop_name", "ChartViewConfig"}, {"ext_prop_val", chart}}}}};
}

QList<QVariantMap> chartRows()
{
    QList<QVariantMap> rows;
    for (int row = 0; row < RowCount; ++row)
        rows.append({{"FIELD_NAME_01", QString::number(row)}, {"FIELD_NAME_11", row % 17 * 1.5}});
    return rows;
}

/// Shows the page of charts in \a window until all have drawn, then in its place a page with a table.
void changePages(QWidget *window)
{
    const QJsonObject document = chartDocument();
    const QList<QVariantMap> rows = chartRows();
    QList<TFMultiCharts *> charts;
    for (int i = 0; i < Charts; ++i) {
        auto *chart = static_cast<TFMultiCharts *>(
            TFViewFactory::create(TFBaseView::ChartView, Bench::ViewId, document, window, false));
        window->layout()->addWidget(chart);
        chart->setRows(rows);
        charts.append(chart);
    }
    waitForPages(charts);
    qDeleteAll(charts);

    const std::unique_ptr<TFBaseView> table(
        TFViewFactory::create(TFBaseView::TableView, Bench::ViewId, Bench::configuration(), window, false));
    window->layout()->addWidget(table.get());
    NtResponse response;
    TFJSP::parseResponse(Bench::reply(RowCount), response);
    table->handleReply(response.data, QString(), 1);
    QCoreApplication::processEvents();
}

void compareMemory()
{
    QWidget window;
    new QVBoxLayout(&window);
    window.resize(900, 1200);
    window.show();
    const auto changeOften = [&window](int times) {
        for (int i = 0; i < times; ++i) {
            changePages(&window);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    };
    changeOften(WarmUp);
    const double before = settledMegabytes();
    changeOften(Changes);
    const double after = settledMegabytes();
    Bench::report(
        {QStringLiteral("memory after %1 changes of page, %2 charts and a table").arg(Changes).arg(Charts),
         QStringLiteral("before them"), MemoryGoal},
        {after, before, after / before, "MB"});
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QApplication application(argc, argv);
    if (argc > 1)
        return openTwo();
    compareSecondView();
    compareMemory();
    return 0;
}
