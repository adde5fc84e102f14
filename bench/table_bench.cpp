// From the bytes of a reply to a model ready to paint and to the painted page, through the table widget,
// against parsing the same bytes as JSON and nothing else; and the memory that a page holds.

#include "comparison.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "painting.h"
#include "replies.h"
#include "tfsubjecttablewidget.h"

#include <QApplication>

namespace {
constexpr int kRowsReply = 1;
constexpr QSize kSize(1400, 800);

void take(TFSubjectTableWidget *table, const QByteArray &bytes, int rows)
{
    if (!table->takeReply(bytes, kRowsReply) || table->model()->rowCount() != rows)
        qFatal("the table did not take the reply");
}

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void measureModel(TFSubjectTableWidget *table, int rows, double goal, int rounds)
{
    const QByteArray bytes = Bench::reply(rows);
    Bench::compareTimed(
        {QStringLiteral("reply to a model ready to paint, %1 rows").arg(rows),
         QStringLiteral("QJsonDocument::fromJson"), goal},
        rounds, [&] { return Bench::parseTime(bytes); },
        [&] {
            const double time = Bench::milliseconds([&] { take(table, bytes, rows); });
            settle();
            return time;
        });
}

double paintTime(TFSubjectTableWidget *table, const QByteArray &bytes, int rows)
{
    const double time = Bench::milliseconds([&] {
        take(table, bytes, rows);
        Bench::waitForPaint(table->grid()->rowsWidget());
    });
    settle();
    return time;
}

void measurePainted(TFSubjectTableWidget *table, int rows, double goal, int rounds)
{
    const QByteArray bytes = Bench::reply(rows);
    Bench::compareTimed(
        {QStringLiteral("reply to the first painted page, %1 rows").arg(rows),
         QStringLiteral("QJsonDocument::fromJson"), goal},
        rounds, [&] { return Bench::parseTime(bytes); }, [&] { return paintTime(table, bytes, rows); });
}

void measurePage(TFSubjectTableWidget *table, int rows, double goal, int rounds)
{
    const QByteArray bytes = Bench::reply(rows);
    Bench::compareTimed(
        {QStringLiteral("reply to the first painted page, %1 rows").arg(rows),
         QStringLiteral("empty QTableView made and shown"), goal},
        rounds, [] { return Bench::emptyTableTime(kSize, Bench::Columns); },
        [&] { return paintTime(table, bytes, rows); });
}

void measureMemory(TFSubjectTableWidget *table, int rows)
{
    const auto report = [rows](const char *work, double goal, double held, double reply) {
        Bench::report({QString::fromLatin1(work).arg(rows), QStringLiteral("bytes of the reply"), goal},
                      {held / 1e6, reply / 1e6, held / reply, "MB"});
    };
    take(table, Bench::reply(1), 1);
    settle();
    const double before = double(Bench::allocatedBytes());
    QByteArray bytes = Bench::reply(rows);
    const double size = bytes.size();
    const double peak = size + double(Bench::peakBytes([&] { take(table, bytes, rows); }));
    bytes.clear();
    settle();
    report("memory of a page of %1 rows", 1, double(Bench::allocatedBytes()) - before, size);
    report("memory at its peak while %1 rows are read", 4, peak, size);
}
} // namespace

int main(int argc, char *argv[])
{
    Bench::prepareToolkit();
    QApplication application(argc, argv);
    TFSubjectTableWidget table(nullptr, false);
    table.initLayout();
    table.setViewId(Bench::ViewId);
    table.resize(kSize);
    table.show();
    table.parseConfig(Bench::configuration(), true);
    measureMemory(&table, 100000);
    measureModel(&table, 200, 0, 200);
    measureModel(&table, 100000, 1.7, 7);
    measurePainted(&table, 10000, 2, 11);
    measurePage(&table, 200, 4, 50);
    return 0;
}
