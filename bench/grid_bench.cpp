// Compares the grid (three levels of bands, two fixed columns, links, buttons) with the toolkit's own table
// view on the same model, viewport, row height and font, in one run, interleaved. Ratios are medians over the
// rounds.

#include <comparison.h>
#include <demoview.h>
#include <quotemodel.h>

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTextStream>

#include <functional>
#include <memory>

using namespace Qtitan;

namespace {
constexpr int rounds = 15;
constexpr QSize page(1400, 800);

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

// Median of the ratios of a round's work to the same round's base.
void compare(const char *what, double goal, const std::function<void()> &base,
             const std::function<void()> &work, int times)
{
    Bench::compare({QString::fromLatin1(what), QStringLiteral("as named"), goal}, rounds, base, work, times);
}

std::unique_ptr<QTableView> makeTable(QuoteModel &model)
{
    auto table = std::make_unique<QTableView>();
    table->verticalHeader()->setMinimumSectionSize(24);
    table->verticalHeader()->setDefaultSectionSize(24);
    table->verticalHeader()->hide();
    table->setWordWrap(false);
    table->setAlternatingRowColors(true);
    table->setModel(&model);
    for (int i = 0; i < model.columnCount(); ++i)
        table->setColumnWidth(i, i == 0 ? 72 : i < QuoteModel::FirstFigure ? 96 : 112);
    table->resize(page);
    return table;
}

std::unique_ptr<Grid> makeGrid(QuoteModel &model)
{
    auto grid = std::make_unique<Grid>();
    showBanded(*grid, model);
    grid->resize(page);
    return grid;
}

void paintedOnce(QWidget &view)
{
    view.show();
    QApplication::processEvents();
    view.grab();
}

// Paints now what is to be painted; left to itself the toolkit waits for the next frame.
void paintPending(QWidget &view)
{
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(view.window(), &request);
}

void comparePaint()
{
    QuoteModel model(1000000, 200);
    const auto table = makeTable(model);
    const auto grid = makeGrid(model);
    QAbstractItemView *view = grid->rootView()->itemView();
    paintedOnce(*table);
    paintedOnce(*grid);

    const auto repaintTable = [&] { table->viewport()->repaint(); };
    const auto repaintGrid = [&] { view->viewport()->repaint(); };
    const bool outlines = QFontInfo(QApplication::font()).family().contains(QLatin1String("Noto Sans CJK"));
    compare("full page, grid to QTableView", outlines ? 0.70 : 0.50, repaintTable, repaintGrid, 10);
    grid->rootView()->selectAll();
    compare("full page with all rows selected", outlines ? 0.70 : 0.50, repaintTable, repaintGrid, 10);
    grid->rootView()->deselectAll();

    const auto scrollGrid = [&] {
        QScrollBar *bar = view->verticalScrollBar();
        bar->setValue(bar->value() + 24);
        paintPending(*grid);
    };
    // Moving the pixels of the page in memory alone takes some 0.09 of the grid's own page.
    compare("scroll by one row to QTableView's full page", 0.15, repaintTable, scrollGrid, 10);
    compare("scroll by one row to the grid's own full page", 0.15, repaintGrid, scrollGrid, 10);
    const auto selectAll = [](Grid &shown) {
        shown.rootView()->selectAll();
        paintPending(shown);
        shown.rootView()->deselectAll();
        paintPending(shown);
    };
    QuoteModel few(200, 200);
    const auto small = makeGrid(few);
    paintedOnce(*small);
    compare(
        "select all and none, a million rows to 200", 1.3, [&] { selectAll(*small); },
        [&] { selectAll(*grid); }, 3);
}

void compareFirstPaint()
{
    QuoteModel few(200, 200);
    QuoteModel many(1000000, 200);
    compare(
        "first paint, a million rows to 200", 1.30, [&] { paintedOnce(*makeGrid(few)); },
        [&] { paintedOnce(*makeGrid(many)); }, 1);
}

void measureMemory()
{
    constexpr int rows = 1000000;
    QuoteModel model(rows, 8);
    const auto grid = makeGrid(model);
    paintedOnce(*grid);
    GridViewBase *view = grid->rootView();
    const size_t before = Bench::allocatedBytes();
    const auto report = [&](const char *what) {
        const double bytes = double(Bench::allocatedBytes() - before) / rows;
        Bench::report({QString::fromLatin1(what), QStringLiteral("16 bytes a row"), 1},
                      {bytes, 16, bytes / 16, "B"});
    };
    view->selectAll();
    report("memory, as delivered, all selected");
    view->deselectAll();
    view->sortByColumn(view->getColumn(QuoteModel::FirstFigure), SortDown);
    report("memory, sorted");
    view->getColumn(QuoteModel::Board)->setGroupIndex(0);
    view->expandAll();
    report("memory, sorted and grouped");
}

void measureArranging()
{
    QuoteModel model(100000, 8);
    const auto grid = makeGrid(model);
    paintedOnce(*grid);
    GridViewBase *view = grid->rootView();
    const auto report = [&](const char *what, const std::function<void()> &work) {
        out() << QString::asprintf("%-46s %8.1f ms", what, Bench::milliseconds(work)) << '\n';
    };
    report("sort 100,000 numbers", [&] { view->sortByColumn(view->getColumn(4), SortUp); });
    report("sort 100,000 texts by collation",
           [&] { view->sortByColumn(view->getColumn(QuoteModel::Note), SortUp); });
    view->sortByColumn(nullptr, AsDelivered);
    report("group 100,000 rows", [&] { view->getColumn(QuoteModel::Board)->setGroupIndex(0); });
    report("open all groups", [&] { view->expandAll(); });
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString family = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("WenQuanYi Micro Hei");
    if (!QFontDatabase().families().contains(family)) {
        out() << "grid_bench: there is no font \"" << family << "\"\n";
        return 2;
    }
    QFont font(family);
    font.setPixelSize(12);
    QApplication::setFont(font);
    QApplication::setFont(font, "QAbstractItemView");
    out() << "font " << family << ", viewport " << page.width() << "x" << page.height() << ", rows of 24\n";
    comparePaint();
    compareFirstPaint();
    measureMemory();
    measureArranging();
    return 0;
}
