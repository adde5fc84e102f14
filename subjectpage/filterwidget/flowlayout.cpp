#include "flowlayout.h"

#include <QWidget>

FlowLayout::FlowLayout(int margin, int hSpacing, int vSpacing, QWidget *parent)
    : QLayout(parent)
    , m_hSpacing(hSpacing)
    , m_vSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return m_items.size();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index, nullptr);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    return layOut(QRect(0, 0, width, 0), Pass::Measure);
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    layOut(rect, Pass::Place);
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

int FlowLayout::layOut(const QRect &rect, Pass pass) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    int x = area.x();
    int y = area.y();
    int lineHeight = 0;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (x + size.width() > area.x() + area.width() && lineHeight > 0) {
            x = area.x();
            y += lineHeight + spacing(m_vSpacing, QStyle::PM_LayoutVerticalSpacing, item, Qt::Vertical);
            lineHeight = 0;
        }
        if (pass == Pass::Place)
            item->setGeometry(QRect(QPoint(x, y), size));
        x += size.width() + spacing(m_hSpacing, QStyle::PM_LayoutHorizontalSpacing, item, Qt::Horizontal);
        lineHeight = qMax(lineHeight, size.height());
    }
    return y + lineHeight - rect.y() + margins.bottom();
}

int FlowLayout::spacing(int wanted, QStyle::PixelMetric metric, const QLayoutItem *item,
                        Qt::Orientation way) const
{
    if (wanted >= 0)
        return wanted;
    QWidget *owner = parentWidget();
    const int styled = owner ? owner->style()->pixelMetric(metric, nullptr, owner) : -1;
    if (styled >= 0 || !owner)
        return qMax(styled, 0);
    const QSizePolicy::ControlTypes types = item->controlTypes();
    return qMax(owner->style()->combinedLayoutSpacing(types, types, way, nullptr, owner), 0);
}
