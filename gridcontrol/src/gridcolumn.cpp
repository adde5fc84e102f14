#include <gridcontrol/gridcolumn.h>

#include <gridcontrol/gridband.h>
#include <gridcontrol/gridbandedview.h>

#include "celltext.h"

namespace Qtitan {

namespace {
constexpr int minimumWidth = 24;
constexpr int maximumWidth = 4000;
} // namespace

GridColumnBase::GridColumnBase(GridViewBase *view, int index)
    : QObject(view)
    , m_view(view)
    , m_index(index)
{}

GridColumnBase::~GridColumnBase() = default;

void GridColumnBase::setCaption(const QString &caption)
{
    if (m_caption == caption)
        return;
    m_caption = caption;
    emit captionChanged();
}

void GridColumnBase::setWidth(int pixels)
{
    pixels = qBound(minimumWidth, pixels, maximumWidth);
    if (m_width == pixels)
        return;
    m_width = pixels;
    emit widthChanged();
}

void GridColumnBase::setTextAlignment(int alignment)
{
    if (m_alignment == alignment)
        return;
    m_alignment = alignment;
    emit alignmentChanged();
}

void GridColumnBase::setVisible(bool visible)
{
    if (m_visible == visible)
        return;
    m_visible = visible;
    emit placeChanged();
}

void GridColumnBase::setFixedKind(int kind)
{
    if (m_fixedKind == kind)
        return;
    m_fixedKind = kind;
    emit placeChanged();
}

void GridColumnBase::setParentBand(GridTableBand *band)
{
    if (m_parentBand == band)
        return;
    m_parentBand = band;
    emit placeChanged();
}

GridColumn::GridColumn(GridViewBase *view, int index)
    : GridColumnBase(view, index)
    , m_binding(std::make_unique<GridModelDataBinding>(this))
{
    connect(m_binding.get(), &GridModelDataBinding::sortRoleChanged, this, &GridColumn::sortingChanged);
}

GridColumn::~GridColumn() = default;

QString GridColumn::caption() const
{
    const QString own = GridColumnBase::caption();
    if (!own.isNull() || !view()->model())
        return own;
    return view()->model()->headerData(index(), Qt::Horizontal).toString();
}

int GridColumn::editorType() const
{
    return m_repository ? m_repository->editorType() : NoEditor;
}

void GridColumn::setEditorType(int type)
{
    if (editorType() == type)
        return;
    m_repository.reset();
    if (type == StringEditor) {
        m_repository = std::make_unique<GridStringEditorRepository>();
        connect(m_repository.get(), &GridEditorRepository::changed, this, &GridColumn::cellsChanged);
    }
    emit cellsChanged();
}

bool GridColumn::isLink() const
{
    return editorType() == StringEditor &&
           static_cast<GridStringEditorRepository *>(m_repository.get())->hLink();
}

int GridColumn::addButton(int icon, int position, int activation, const QString &iconPath,
                          const QString &toolTip, int index)
{
    const int place = index < 0 || index > m_buttons.size() ? m_buttons.size() : index;
    m_buttons.insert(place, {icon, position, activation, iconPath, toolTip});
    emit cellsChanged();
    return place;
}

void GridColumn::setSortLocaleAware(bool on)
{
    if (m_sortLocaleAware == on)
        return;
    m_sortLocaleAware = on;
    emit sortingChanged();
}

void GridColumn::setSortEnabled(bool on)
{
    m_sortEnabled = on;
}

void GridColumn::setGroupIndex(int level)
{
    level = qMax(level, -1);
    if (m_groupIndex == level)
        return;
    m_groupIndex = level;
    emit groupIndexChanged();
}

Qt::Alignment GridColumn::cellAlignment() const
{
    const QAbstractItemModel *model = view()->model();
    const QModelIndex first = model ? model->index(0, index(), view()->rootIndex()) : QModelIndex();
    return alignmentOfCell(first, *this, first.isValid() ? first.data() : QVariant());
}

void GridBandedTableColumn::setBandIndex(int band)
{
    setParentBand(static_cast<GridBandedTableView *>(view())->getBand(band));
}

} // namespace Qtitan
