// From the bytes of a reply to a model ready to paint, through the table widget, against parsing the same
// bytes as JSON and nothing else.

#include "comparison.h"
#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "net/tfjsp.h"
#include "replies.h"
#include "tfsubjecttablewidget.h"

#include <QApplication>
#include <QJsonDocument>

namespace {
constexpr int kRowsReply = 1;

void wholeRoad(TFSubjectTableWidget *table, const QByteArray &bytes, int rows)
{
    NtResponse response;
    const bool isGood =
        TFJSP::parseResponse(bytes, response) && table->handleReply(response.data, QString(), kRowsReply);
    if (!isGood || table->model()->rowCount() != rows)
        qFatal("the table did not take the reply");
}

void measure(TFSubjectTableWidget *table, int rows, double goal, int rounds)
{
    const QByteArray bytes = Bench::reply(rows);
    const auto parse = [&bytes] { return Bench::milliseconds([&bytes] { QJsonDocument::fromJson(bytes); }); };
    const auto road = [&] {
        const double time = Bench::milliseconds([&] { wholeRoad(table, bytes, rows); });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return time;
    };
    Bench::compareTimed({QStringLiteral("reply to a model ready to paint, %1 rows").arg(rows),
                         QStringLiteral("QJsonDocument::fromJson"), goal},
                        rounds, parse, road);
}
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    TFSubjectTableWidget table(nullptr, false);
    table.initLayout();
    table.setViewId(Bench::ViewId);
    table.resize(1400, 800);
    table.show();
    table.parseConfig(Bench::configuration(), true);
    measure(&table, 200, 0, 200);
    measure(&table, 100000, 1.7, 7);
    return 0;
}
