// Compares the grid (three levels of bands, two fixed columns, links, buttons) with the toolkit's own table
// view on the same model, viewport, row height and font, in one run, interleaved. Ratios are medians over the
// rounds. Paints with a font of TrueType outlines and with one of CFF outlines, or with the fonts that the
// command line names.

#include <comparison.h>
#include <demoview.h>
#include <quotemodel.h>

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QFontDatabase>
#include <QHeaderView>
#include <QMouseEvent>
#include <QRawFont>
#include <QScrollBar>
#include <QTableView>
#include <QTextStream>

#include <algorithm>
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

// Letters of CFF outlines take the rasterizer several times as long, whoever draws them.
bool isCff(const QFont &font)
{
    return !QRawFont::fromFont(font, QFontDatabase::SimplifiedChinese).fontTable("CFF ").isEmpty();
}

/// Compares works of one font, which the table names.
class Comparison
{
public:
    explicit Comparison(const QFont &font)
        : m_font(font.family())
        , m_cff(isCff(font))
    {
        QApplication::setFont(font);
        QApplication::setFont(font, "QAbstractItemView");
    }

    double pageGoal() const { return m_cff ? 0.70 : 0.50; }

    // Median of the ratios of a round's work to the same round's base.
    void compare(const char *work, const char *base, double goal, const std::function<void()> &runBase,
                 const std::function<void()> &run, int times) const
    {
        const QString name = QStringLiteral("%1, %2 (%3)")
                                 .arg(QLatin1String(work), m_font, QLatin1String(m_cff ? "CFF" : "TrueType"));
        Bench::compare({name, QString::fromLatin1(base), goal}, rounds, runBase, run, times);
    }

private:
    QString m_font;
    bool m_cff;
};

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

void comparePaint(const Comparison &font)
{
    QuoteModel model(1000000, 200);
    const auto table = makeTable(model);
    const auto grid = makeGrid(model);
    QAbstractItemView *view = grid->rootView()->itemView();
    paintedOnce(*table);
    paintedOnce(*grid);

    const auto repaintTable = [&] { table->viewport()->repaint(); };
    const auto repaintGrid = [&] { view->viewport()->repaint(); };
    font.compare("full page", "QTableView", font.pageGoal(), repaintTable, repaintGrid, 10);
    grid->rootView()->selectAll();
    font.compare("full page, all selected", "QTableView", font.pageGoal(), repaintTable, repaintGrid, 10);
    grid->rootView()->deselectAll();

    const auto scrollGrid = [&] {
        QScrollBar *bar = view->verticalScrollBar();
        bar->setValue(bar->value() + 24);
        paintPending(*grid);
    };
    font.compare("scroll by a row", "QTableView's page", 0.15, repaintTable, scrollGrid, 10);
    font.compare("scroll by a row", "the grid's page", 0.15, repaintGrid, scrollGrid, 10);
    const auto hoverGrid = [&, line = 0]() mutable {
        const QPoint over(200, (line++ % 20) * 24 + 12);
        QMouseEvent move(QEvent::MouseMove, over, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);
        paintPending(*grid);
    };
    font.compare("hover to the next row", "the grid's page", 0.15, repaintGrid, hoverGrid, 10);
}

void compareNumbersOfRows(const Comparison &font)
{
    QuoteModel few(200, 200);
    QuoteModel many(1000000, 200);
    font.compare(
        "first paint, a million rows", "200 rows", 1.30, [&] { paintedOnce(*makeGrid(few)); },
        [&] { paintedOnce(*makeGrid(many)); }, 1);

    const auto small = makeGrid(few);
    const auto large = makeGrid(many);
    paintedOnce(*small);
    paintedOnce(*large);
    const auto selectAll = [](Grid &shown) {
        shown.rootView()->selectAll();
        paintPending(shown);
        shown.rootView()->deselectAll();
        paintPending(shown);
    };
    font.compare(
        "select all and none, a million rows", "200 rows", 1.30, [&] { selectAll(*small); },
        [&] { selectAll(*large); }, 3);
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

// False where the machine has no such font.
bool compareWith(const QString &family)
{
    if (!QFontDatabase().families().contains(family)) {
        out() << "grid_bench: there is no font \"" << family << "\"; nothing is compared with it\n";
        return false;
    }
    QFont font(family);
    font.setPixelSize(12);
    const Comparison comparison(font);
    comparePaint(comparison);
    compareNumbersOfRows(comparison);
    return true;
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList families = QApplication::arguments().mid(1);
    if (families.isEmpty())
        families = QStringList{QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("Noto Sans CJK SC")};
    out() << "viewport " << page.width() << "x" << page.height() << ", rows of 24\n";
    const auto missing = std::count_if(families.begin(), families.end(),
                                       [](const QString &family) { return !compareWith(family); });
    measureMemory();
    measureArranging();
    return missing ? 1 : 0;
}
