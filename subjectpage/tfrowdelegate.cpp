#include "tfrowdelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QImageReader>
#include <QPainter>
#include <QToolTip>

#include "tfcore/tfcore.h"
#include "tftreeitem.h"
#include "tftreemodel.h"

namespace {
constexpr int rowHeight = 26;
constexpr int markerIndent = 14; // from the left edge of the row's rectangle to the left
constexpr int accentBarWidth = 3;
} // namespace

TFRowDelegate::TFRowDelegate(bool isBlock, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_isBlock(isBlock)
    , m_accentColor(Qt::transparent)
{
    loadMarkers();
}

void TFRowDelegate::loadMarkers()
{
    const auto load = [](const QString &name) {
        const QString path = TFCore::instance()->getCurrentSkinPath(name);
        return Marker{QIcon(path), QImageReader(path).size()};
    };
    m_marker = load(QStringLiteral("subject/tree_item_normal_2.png"));
    m_activeMarker = load(QStringLiteral("subject/tree_item_normal.png"));
}

bool TFRowDelegate::isOpen(const QModelIndex &index) const
{
    return m_openItem && TFSubjectTreeModel::itemFromIndex(index) == m_openItem;
}

void TFRowDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // Bold and no less: only for that does a face without a bold cut get one.
    if (isOpen(index))
        option->font.setBold(true);
}

void TFRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (!m_isBlock && !index.model()->hasChildren(index))
        paintMarker(painter, option);
    if (isOpen(index))
        paintAccentBar(painter, option);
}

void TFRowDelegate::paintMarker(QPainter *painter, const QStyleOptionViewItem &option) const
{
    const bool isActive = option.state & (QStyle::State_Selected | QStyle::State_MouseOver);
    const Marker &marker = isActive ? m_activeMarker : m_marker;
    QRect place(QPoint(option.rect.left() - markerIndent, 0), marker.size);
    place.moveTop(option.rect.top() + (option.rect.height() - place.height()) / 2);
    // An icon picks the picture for the scale factor of the screen.
    marker.icon.paint(painter, place);
}

void TFRowDelegate::paintAccentBar(QPainter *painter, const QStyleOptionViewItem &option) const
{
    // The bar stands at the edge of the view, whatever the level of the row.
    painter->fillRect(QRect(0, option.rect.top(), accentBarWidth, option.rect.height()), m_accentColor);
}

QSize TFRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), qMax(size.height(), rowHeight)};
}

bool TFRowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                              const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QRect seen = option.rect & view->viewport()->rect();
    const bool isWhole = seen.width() >= sizeHint(option, index).width();
    QToolTip::showText(event->globalPos(), isWhole ? QString() : index.data().toString(), view);
    return true;
}
