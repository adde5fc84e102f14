#include "demoview.h"

#include "quotemodel.h"

#include <gridcontrol/grid.h>

using namespace Qtitan;

namespace {
void setUpColumns(GridViewBase &view)
{
    for (int i = 0; i < view.getColumnCount(); ++i) {
        GridColumn *column = view.getColumn(i);
        column->dataBinding()->setSortRole(QuoteModel::valueRole);
        column->setSortLocaleAware(true);
        column->setWidth(i == QuoteModel::Code ? 72 : i < QuoteModel::FirstFigure ? 96 : 112);
    }
    view.getColumn(QuoteModel::Code)->setFixedKind(FixedLeft);
    view.getColumn(QuoteModel::Name)->setFixedKind(FixedLeft);
    GridColumn *name = view.getColumn(QuoteModel::Name);
    name->setEditorType(StringEditor);
    static_cast<GridStringEditorRepository *>(name->editorRepository())->setHLink(true);
    GridColumn *note = view.getColumn(QuoteModel::Note);
    note->setWidth(150);
    note->addButton(EllipsisButtonIcon, ButtonRight, ShowButtonAlways);
}

// Three figures a report, two reports a year, under the years.
void addBands(GridBandedTableView &view)
{
    const auto place = [&view](int column, const GridTableBand *band) {
        static_cast<GridBandedTableColumn *>(view.getColumn(column))->setBandIndex(band->index());
    };
    const GridTableBand *security = view.addBand(QStringLiteral("证券"));
    place(QuoteModel::Code, security);
    place(QuoteModel::Name, security);
    place(QuoteModel::Board, security);
    GridTableBand *year = nullptr;
    GridTableBand *report = nullptr;
    for (int i = QuoteModel::FirstFigure; i < view.getColumnCount(); ++i) {
        const int figure = i - QuoteModel::FirstFigure;
        if (figure % 6 == 0)
            year = view.addBand(QStringLiteral("%1年度").arg(2024 - figure / 6 % 40));
        if (figure % 3 == 0) {
            report = view.addBand(figure % 6 ? QStringLiteral("半年报") : QStringLiteral("年报"));
            report->setBandIndex(year->index());
        }
        place(i, report);
    }
}
} // namespace

void showBanded(Grid &grid, QuoteModel &model)
{
    grid.setViewType(BandedTableView);
    auto &view = static_cast<GridBandedTableView &>(*grid.rootView());
    view.setModel(&model);
    setUpColumns(view);
    addBands(view);
}

void showPlain(Grid &grid, QuoteModel &model)
{
    grid.setViewType(PlainTableView);
    grid.rootView()->setModel(&model);
    setUpColumns(*grid.rootView());
}

const char *lightSheet()
{
    return "QWidget { background: #F3F5F8; color: #1F2733; }"
           "QScrollBar { background: #F3F5F8; }"
           "QScrollBar:vertical { width: 12px; } QScrollBar:horizontal { height: 12px; }"
           "QScrollBar::handle { background: #B8C2CF; border-radius: 4px; margin: 2px;"
           " min-width: 24px; min-height: 24px; }"
           "QAbstractScrollArea::corner { border: none; }"
           "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
           "Qtitan--Grid { qproperty-panelColor: #FFFFFF; qproperty-textColor: #1F2733; }";
}

const char *darkSheet()
{
    return "QWidget { background: #080B10; color: #D7DEE8; }"
           "QScrollBar { background: #080B10; }"
           "QScrollBar:vertical { width: 12px; } QScrollBar:horizontal { height: 12px; }"
           "QScrollBar::handle { background: #33425A; border-radius: 4px; margin: 2px;"
           " min-width: 24px; min-height: 24px; }"
           "QAbstractScrollArea::corner { border: none; }"
           "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
           "Qtitan--Grid { qproperty-panelColor: #0E131B; qproperty-textColor: #D7DEE8;"
           " qproperty-headerBackground: #131A24; qproperty-headerText: #D7DEE8;"
           " qproperty-lineColor: #1E2733; qproperty-strongLineColor: #33425A;"
           " qproperty-alternateColor: #0B1017; qproperty-hoverColor: #152030;"
           " qproperty-selectionColor: #173A6B; qproperty-selectionText: #FFFFFF;"
           " qproperty-linkColor: #6AA8FF; qproperty-mutedColor: #8894A5;"
           " qproperty-accentColor: #4C95FF; qproperty-focusColor: #4C95FF; }";
}
