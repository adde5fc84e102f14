#include "tfsujecttableview.h"

#include "records/tfcategories.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfglobalcss.h"
#include "tfheaderdatastruct.h"
#include "tflinktemplate.h"
#include "tfmessagebox.h"
#include "tfsubjecttablemodel.h"

#include <gridcontrol/grid.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

namespace {
constexpr int kCentre = Qt::AlignHCenter | Qt::AlignVCenter;
constexpr int kBandedDepth = 3; ///< from this depth on the header has bands
constexpr int kMeasureCaption = -9;
constexpr int kCaptionPadding = 45;
constexpr int kDefaultWidth = 104;
constexpr int kTitleCharacters = 6;
constexpr int kFontSize = 10;
const char kTopLevel[] = "0";
const char kFieldName[] = "fieldName";
const char kPaletteClass[] = "Qtitan::Grid";

bool isSame(const QString &text, const char *word)
{
    return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

void setTipsColour(QPalette *palette, QPalette::ColorRole role, int index)
{
    const QColor colour = TFGlobalCss::getTipsColorByIndex(index);
    if (colour.isValid())
        palette->setColor(QPalette::All, role, colour);
}
} // namespace

TFSujectTableView::TFSujectTableView(QWidget *parent)
    : QFrame(parent)
    , m_corner(new QToolButton(this))
    , m_grid(new Qtitan::Grid(this))
{
    setObjectName(QStringLiteral("tfTableView"));
    m_corner->setObjectName(QStringLiteral("CornerWidget"));
    m_corner->hide();
    m_grid->setObjectName(QStringLiteral("tfGridView"));
    m_grid->setMouseTracking(true);
    Qtitan::Grid::loadTranslation(QString());

    auto *side = new QVBoxLayout;
    side->setContentsMargins(0, 0, 0, 0);
    side->setSpacing(0);
    side->addWidget(m_corner);
    side->addStretch();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(side);
    layout->addWidget(m_grid);
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &TFSujectTableView::applyTheme);
}

TFSujectTableView::~TFSujectTableView() = default;

void TFSujectTableView::setModel(TFSubjectTableModel *model, bool rebind)
{
    Q_UNUSED(rebind)
    m_header = model->header();
    m_depth = m_header ? m_header->depth() : 1;
    m_grid->setViewType(m_depth < kBandedDepth ? Qtitan::PlainTableView : Qtitan::BandedTableView);
    m_view = qobject_cast<Qtitan::GridTableView *>(m_grid->rootView());
    m_view->setObjectName(objectName());
    if (m_depth >= kBandedDepth)
        makeBands();
    m_view->setModel(model, QModelIndex());
    bindBander();
    applyLeafSettings();
    int hidden = 0;
    hideColumn(hidden);
    setOptions();
    applyTheme();
    m_view->options().setColumnFont(font());
    connectModel(model);
}

TFSubjectTableModel *TFSujectTableView::model() const
{
    return m_view ? qobject_cast<TFSubjectTableModel *>(m_view->model()) : nullptr;
}

void TFSujectTableView::makeBands()
{
    const int levels = m_depth - 2;
    for (int level = 1; level <= levels; ++level) {
        const QList<TFTreeStruct *> nodes = m_header->nodesAtLevel(level);
        for (const TFTreeStruct *node : nodes)
            makeBand(node);
    }
}

void TFSujectTableView::makeBand(const TFTreeStruct *node)
{
    auto *view = qobject_cast<Qtitan::GridBandedTableView *>(m_view);
    Qtitan::GridTableBand *band = view->addBand(node->hasChildren() ? node->displayCaption() : QString());
    band->setTextAlignment(kCentre);
    if (node->info().ownerBand != QLatin1String(kTopLevel)) {
        // Looked up before the new band has its name, or a band could be found as its own owner.
        if (const Qtitan::GridTableBand *owner = bandOfField(node->info().ownerBand))
            band->setBandIndex(owner->index());
    }
    band->setProperty(kFieldName, node->info().fieldName);
}

Qtitan::GridTableBand *TFSujectTableView::bandOfField(const QString &fieldName) const
{
    auto *view = qobject_cast<Qtitan::GridBandedTableView *>(m_view);
    if (!view || fieldName.isEmpty())
        return nullptr;
    for (int i = 0; i < view->bandCount(); ++i) {
        if (view->getBand(i)->property(kFieldName).toString() == fieldName)
            return view->getBand(i);
    }
    return nullptr;
}

void TFSujectTableView::bindBander()
{
    if (m_depth < kBandedDepth)
        return;
    const QList<TFTreeStruct *> leaves = m_header->leaves();
    for (int i = 0; i < leaves.size(); ++i) {
        const HeaderFieldInfo &info = leaves.at(i)->info();
        const bool isTop = info.ownerBand.isEmpty() || info.ownerBand == QLatin1String(kTopLevel);
        auto *column = qobject_cast<Qtitan::GridBandedTableColumn *>(m_view->getColumn(i));
        if (!column) {
            qCWarning(lcTable) << "column is not found index:" << i;
            continue;
        }
        if (const Qtitan::GridTableBand *band = bandOfField(isTop ? info.fieldName : info.ownerBand))
            column->setBandIndex(band->index());
    }
}

void TFSujectTableView::applyLeafSettings()
{
    const QList<HeaderFieldInfo *> records = m_header ? m_header->leafRecords() : QList<HeaderFieldInfo *>();
    applyColumnSettings(records);
    qDeleteAll(records);
}

void TFSujectTableView::applyColumnSettings(const QList<HeaderFieldInfo *> &records)
{
    for (int i = 0; m_view && i < records.size(); ++i) {
        const HeaderFieldInfo &record = *records.at(i);
        auto *column = record.visible ? m_view->getColumn(i) : nullptr;
        if (!column)
            continue;
        column->setWidth(columnWidth(record));
        column->setSortEnabled(!record.noSort);
        applyEditor(column, record.columnType);
    }
}

int TFSujectTableView::columnWidth(const HeaderFieldInfo &record) const
{
    if (record.width != kMeasureCaption)
        return record.width > 0 ? record.width : kDefaultWidth;
    const QFontMetrics metrics = fontMetrics();
    int width = metrics.horizontalAdvance(record.caption) + kCaptionPadding;
    if (!record.showUnit.isEmpty())
        width += metrics.horizontalAdvance(QStringLiteral("( ") + record.showUnit + QStringLiteral(" )"));
    return width;
}

void TFSujectTableView::applyEditor(Qtitan::GridColumn *column, const QString &columnType)
{
    if (isSame(columnType, "MemoExEdit")) {
        if (column->buttonCount() > 0)
            return;
        column->addButton(Qtitan::EllipsisButtonIcon, Qtitan::ButtonRight, Qtitan::ShowButtonAlways,
                          QString(), QString(), -1);
        connect(column, &Qtitan::GridColumn::buttonClicked, this, &TFSujectTableView::showCell);
    } else if (isSame(columnType, "HyperLinkEdit") && column->editorType() != Qtitan::StringEditor) {
        column->setEditorType(Qtitan::StringEditor);
        if (auto *text = qobject_cast<Qtitan::GridStringEditorRepository *>(column->editorRepository()))
            text->setHLink(true);
    }
}

void TFSujectTableView::hideColumn(int &hidden)
{
    hidden = 0;
    const QList<int> indexes = m_header ? m_header->hiddenLeafIndexes() : QList<int>();
    for (int index : indexes) {
        qCDebug(lcTable) << "hidden column:" << index;
        Qtitan::GridColumn *column = m_view->getColumn(index);
        if (!column)
            continue;
        column->setVisible(false);
        ++hidden;
        hideEmptyBands(column->parentBand());
    }
}

void TFSujectTableView::hideEmptyBands(Qtitan::GridTableBand *band)
{
    for (; band; band = band->parentBand()) {
        if (!hasVisibleContent(band))
            band->setVisible(false);
    }
}

bool TFSujectTableView::hasVisibleContent(const Qtitan::GridTableBand *band) const
{
    const auto *view = qobject_cast<Qtitan::GridBandedTableView *>(m_view);
    for (int i = 0; i < view->bandCount(); ++i) {
        if (view->getBand(i)->isDescendant(band) && view->getBand(i)->isVisible())
            return true;
    }
    for (int i = 0; i < view->getColumnCount(); ++i) {
        if (view->getColumn(i)->parentBand() == band && view->getColumn(i)->isVisible())
            return true;
    }
    return false;
}

void TFSujectTableView::setOptions()
{
    Qtitan::GridViewOptions &options = m_view->options();
    options.setBorderWidth(1);
    options.setGroupingEnabled(true);
    options.setTransparentBackground(true);
    options.setAlternatingRowColors(true);
    options.setGridLines(Qtitan::SoftGridLines);
    options.setGroupsHeader(false);
    options.setRubberBandSelection(true);
    options.setColumnHidingOnGroupingEnabled(true);
    options.setZoomIndicatorActive(false);
    options.setZoomEnabled(false);
    options.setZoomFactor(1.0);
    options.setFilterEnabled(false);
    options.setMainMenuDisabled(true);
    options.setCellButtonAutoRaise(true);
}

void TFSujectTableView::connectModel(TFSubjectTableModel *model)
{
    connect(m_view, &Qtitan::GridViewBase::focusRowChanged, this, [this](int, int row) {
        if (row >= 0)
            emit clicked(row);
    });
    connect(m_view, &Qtitan::GridViewBase::editorLinkActivated, this,
            &TFSujectTableView::editorLinkActivated);
    connect(model, &QAbstractItemModel::modelReset, this, &TFSujectTableView::handleReset,
            Qt::UniqueConnection);
    connect(model, &QAbstractItemModel::headerDataChanged, this, &TFSujectTableView::handleHeader,
            Qt::UniqueConnection);
}

int TFSujectTableView::leafCount() const
{
    return m_header && m_view ? m_header->leaves().size() : 0;
}

void TFSujectTableView::setFrozenCount(int count)
{
    qCDebug(lcTable) << "frozenCount:" << count;
    if (!m_view || !model() || count > model()->columnCount())
        return;
    for (int i = 0; i < count; ++i) {
        if (Qtitan::GridColumn *column = m_view->getColumn(i))
            column->setFixedKind(Qtitan::FixedLeft);
    }
}

void TFSujectTableView::setGroupColumn(int column)
{
    const int last = leafCount() - 1;
    Qtitan::GridColumn *groups =
        m_view ? m_view->getColumn(column < 0 || column > last ? last : column) : nullptr;
    if (!groups)
        return;
    groups->setGroupIndex(0);
    QPalette palette = m_view->options().groupPalette(0);
    palette.setColor(QPalette::All, QPalette::BrightText, QColor(QStringLiteral("#0060E3")));
    palette.setColor(QPalette::All, QPalette::Dark, QColor(QStringLiteral("#F0F0F0")));
    palette.setColor(QPalette::All, QPalette::Shadow, QColor(QStringLiteral("#CCCCCC")));
    m_view->options().setGroupPalette(palette, 0);
}

void TFSujectTableView::expandAll()
{
    if (m_view)
        m_view->expandAll();
}

void TFSujectTableView::deselectAll()
{
    if (m_view)
        m_view->deselectAll();
}

void TFSujectTableView::setColumnsAlignment(int alignment)
{
    if (!m_view)
        return;
    for (int i = 0; i < leafCount(); ++i) {
        Qtitan::GridColumn *column = m_view->getColumn(i);
        if (!column)
            continue;
        column->dataBinding()->setSortRole(TFSubjectTableModel::SortValueRole);
        column->setSortLocaleAware(true);
        column->setTextAlignment(alignment);
    }
    m_view->options().setColumnFont(font());
}

void TFSujectTableView::setVGridHeader(const QString &fieldName)
{
    if (fieldName.isEmpty() || !m_view)
        return;
    if (m_grid->viewType() == Qtitan::BandedTableView)
        setModel(model(), true);
    const TFTreeStruct *node = m_header ? m_header->findField(fieldName) : nullptr;
    Qtitan::GridColumn *column = node ? m_view->getColumnByCaption(node->displayCaption()) : nullptr;
    if (column) {
        column->setFixedKind(Qtitan::FixedLeft);
        m_view->options().setGridLines(Qtitan::BothGridLines);
    }
    m_view->options().setAlternatingRowColors(false);
    m_view->deselectAll();
    m_view->options().setSelectionPolicy(Qtitan::CellSelection);
}

void TFSujectTableView::focusRows()
{
    if (QWidget *rows = rowsWidget())
        rows->setFocus(Qt::OtherFocusReason);
}

QWidget *TFSujectTableView::rowsWidget() const
{
    return m_view ? m_view->itemView() : nullptr;
}

void TFSujectTableView::setEmptyText(const QString &text)
{
    if (m_view)
        m_view->options().setEmptyText(text);
}

void TFSujectTableView::handleReset()
{
    if (!model() || model()->rowCount() == 0)
        return;
    applyLeafSettings();
    setColumnsAlignment(kCentre);
}

void TFSujectTableView::handleHeader()
{
    const QList<TFTreeStruct *> leaves = m_header && m_view ? m_header->leaves() : QList<TFTreeStruct *>();
    for (int i = 0; i < leaves.size(); ++i) {
        if (Qtitan::GridColumn *column = m_view->getColumn(i))
            column->setCaption(leaves.at(i)->displayCaption());
    }
    m_grid->update();
}

void TFSujectTableView::showCell(Qtitan::CellButtonClickEventArgs *args)
{
    const int row = args->row().rowIndex();
    const int column = args->column()->index();
    const QString text = model()->index(row, column).data().toString();
    const QString title = model()->index(row, 0).data().toString().left(kTitleCharacters);
    TFMessageBox::showMsg(title + QLatin1Char('-') + args->column()->caption(), text);
}

void TFSujectTableView::editorLinkActivated(Qtitan::EditorLinkEventArgs *args)
{
    if (!args) {
        qCWarning(lcTable) << "this args is not vaild!!!";
        return;
    }
    QVariant value;
    const bool found = args->dataBinding()->getValue(args->row(), TFSubjectTableModel::LinkRole, value);
    const QString link = value.toString();
    if (!found || link.isEmpty()) {
        emit linkActivated(args->anchor());
        return;
    }
    qCDebug(lcTable) << "editroLinkActivated:" << link;
    const QVariant row = args->row().cell(0).modelIndex().data(TFSubjectTableModel::RowDataRole);
    emit linkActivated(TFLinkTemplate::fill(link, row.value<RowData>()));
}

void TFSujectTableView::applyTheme()
{
    if (!m_view)
        return;
    QPalette palette = QApplication::palette(kPaletteClass);
    setTipsColour(&palette, QPalette::Link, 1);
    setTipsColour(&palette, QPalette::LinkVisited, 2);
    QApplication::setPalette(palette, kPaletteClass);
    m_grid->setFont(QFont(QApplication::font().family(), kFontSize));
    m_view->options().setZoomFactor(1.0);
    m_grid->themeManager()->setShadePalette(QPalette(m_grid->themeManager()->shadePalette()));
}

bool TFSujectTableView::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    return event->type() == QEvent::Wheel;
}
