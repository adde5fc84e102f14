// Fixed flows whose instructions `bench/instructions` counts: instruction_flows NAME runs one of them, with
// all that it needs made beforehand, in the function that the count is switched on by.

#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "painting.h"
#include "replies.h"
#include "tfsubjecttablewidget.h"
#include "tftreemodel.h"
#include "trees.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>

#include <cstdio>
#include <functional>

extern "C" Q_DECL_EXPORT void countedFlow(const std::function<void()> &flow);
__attribute__((noinline)) void countedFlow(const std::function<void()> &flow)
{
    flow();
}

namespace {
constexpr int kRowsReply = 1;
constexpr int kScrollSteps = 40;

class Page
{
public:
    Page()
        : m_table(nullptr, false)
    {
        m_table.initLayout();
        m_table.setViewId(Bench::ViewId);
        m_table.resize(1400, 800);
        m_table.show();
        m_table.parseConfig(Bench::configuration(), true);
    }

    void take(const QByteArray &reply) { m_table.takeReply(reply, kRowsReply); }
    void waitForPaint() { Bench::waitForPaint(m_table.grid()->rowsWidget()); }
    void scroll()
    {
        QScrollBar *bar =
            qobject_cast<QAbstractScrollArea *>(m_table.grid()->rowsWidget())->verticalScrollBar();
        for (int step = 1; step <= kScrollSteps; ++step) {
            bar->setValue(bar->maximum() * step / kScrollSteps);
            waitForPaint();
        }
    }

private:
    TFSubjectTableWidget m_table;
};

void countReply()
{
    Page page;
    const QByteArray reply = Bench::reply(5000);
    countedFlow([&] { page.take(reply); });
}

/// The second page: the first one pays for fonts and styles.
void countPage()
{
    Page page;
    const QByteArray reply = Bench::reply(200);
    page.take(reply);
    page.waitForPaint();
    countedFlow([&] {
        page.take(reply);
        page.waitForPaint();
    });
}

void countScroll()
{
    Page page;
    page.take(Bench::reply(2000));
    page.waitForPaint();
    countedFlow([&] { page.scroll(); });
}

void countTree()
{
    const QJsonArray rows = Bench::navigation(20000);
    TFSubjectTreeModel model;
    countedFlow([&] { model.build(rows, Bench::NavigationRoot, false); });
}
} // namespace

int main(int argc, char *argv[])
{
    const QHash<QByteArray, void (*)()> flows{
        {"reply", countReply}, {"page", countPage}, {"scroll", countScroll}, {"tree", countTree}};
    const auto flow = flows.value(argc == 2 ? argv[1] : "");
    if (!flow) {
        std::fprintf(stderr, "usage: %s reply|page|scroll|tree\n", argv[0]);
        return 2;
    }
    Bench::prepareToolkit();
    QApplication application(argc, argv);
    flow();
    return 0;
}
