#include "gridarea.h"

#include "celltext.h"
#include "gridheader.h"
#include "gridmenu.h"

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>

namespace Qtitan {

void GridArea::toggleGroup(int line)
{
    const RowGroup *group = m_rows->order().groupAt(line);
    if (!group)
        return;
    const bool open = !group->open;
    const QModelIndex current = currentIndex();
    const bool vanishes =
        !open && current.isValid() && current.row() > line && current.row() <= line + group->count();
    if (vanishes && m_rows->order().groupLineOver(current.row()) >= line)
        setCurrentCell(line, 0, QItemSelectionModel::NoUpdate);
    m_rows->setOpen(line, open);
}

void GridArea::setAllGroupsOpen(bool open)
{
    int line = currentIndex().isValid() ? currentIndex().row() : -1;
    if (!open && line >= 0) {
        for (int above = line; above >= 0; above = m_rows->order().groupLineOver(above))
            line = above;
        setCurrentCell(line, 0, QItemSelectionModel::NoUpdate);
    }
    m_rows->setAllOpen(open);
}

bool GridArea::groupKey(QKeyEvent *event)
{
    const int line = currentIndex().isValid() ? currentIndex().row() : -1;
    const RowGroup *group = m_rows->order().groupAt(line);
    if (!group)
        return false;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Minus:
        if (group->open)
            toggleGroup(line);
        else if (m_rows->order().groupLineOver(line) >= 0)
            setCurrentCell(m_rows->order().groupLineOver(line), 0, QItemSelectionModel::ClearAndSelect);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Plus:
        if (!group->open)
            toggleGroup(line);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        toggleGroup(line);
        return true;
    default:
        return false;
    }
}

void GridArea::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex current = currentIndex();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const Qt::KeyboardModifiers copyWithHeader = Qt::ControlModifier | Qt::ShiftModifier;
    if (event->matches(QKeySequence::Copy)) {
        copy(false);
    } else if (event->key() == Qt::Key_C && event->modifiers() == copyWithHeader) {
        copy(true);
    } else if (event->matches(QKeySequence::Find)) {
        showFindBar();
    } else if (groupKey(event)) {
        event->accept();
    } else if (enter && current.isValid() &&
               activateCell(current.row(), columns().slotOfModelColumn(current.column()), 0)) {
        event->accept();
    } else {
        QAbstractItemView::keyPressEvent(event);
        if (!(event->modifiers() & Qt::ShiftModifier) && currentIndex() != current)
            m_anchor = currentIndex();
    }
}

bool GridArea::activateCell(int line, int slot, int button)
{
    return followLink(line, slot) || pressButton(line, slot, button);
}

bool GridArea::followLink(int line, int slot)
{
    if (slot < 0 || isGroupLine(line) || !columns().at(slot).column->isLink())
        return false;
    GridColumn *column = columns().at(slot).column;
    const QString text = displayText(m_rows->sourceIndex(line, column->index()).data(), locale());
    if (text.isEmpty())
        return false;
    const GridRow row(m_view->model(), m_view->rootIndex(), m_rows->order().rowAt(line));
    EditorLinkEventArgs args(row, column, linkText(text).anchor);
    emit m_view->editorLinkActivated(&args);
    return true;
}

bool GridArea::pressButton(int line, int slot, int button)
{
    if (slot < 0 || isGroupLine(line) || button >= columns().at(slot).column->buttonCount() ||
        textOf(line, slot).isEmpty())
        return false;
    GridColumn *column = columns().at(slot).column;
    const GridRow row(m_view->model(), m_view->rootIndex(), m_rows->order().rowAt(line));
    CellButtonClickEventArgs args(row, column, button);
    emit column->buttonClicked(&args);
    return true;
}

void GridArea::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? placeAt(event->pos()) : CellPlace();
    const QPointer<GridArea> alive(this);
    QAbstractItemView::mousePressEvent(event);
    if (!alive)
        return;
    if (!(event->modifiers() & Qt::ShiftModifier))
        m_anchor = indexAt(event->pos());
    reportFocus();
}

void GridArea::mouseMoveEvent(QMouseEvent *event)
{
    setHover(placeAt(event->pos()));
    if (!(event->buttons() & Qt::LeftButton) || options().rubberBandSelection())
        QAbstractItemView::mouseMoveEvent(event);
}

void GridArea::mouseReleaseEvent(QMouseEvent *event)
{
    const CellPlace pressed = m_pressed;
    m_pressed = {};
    QAbstractItemView::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || pressed.line < 0 || !(placeAt(event->pos()) == pressed) ||
        event->modifiers() != Qt::NoModifier)
        return;
    if (isGroupLine(pressed.line))
        toggleGroup(pressed.line);
    else if (pressed.button >= 0)
        pressButton(pressed.line, pressed.slot, pressed.button);
    else if (pressed.link)
        followLink(pressed.line, pressed.slot);
}

void GridArea::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The second press of a quick pair counts as a press, on a group row above all.
    mousePressEvent(event);
}

void GridArea::wheelEvent(QWheelEvent *event)
{
    if (options().isZoomEnabled() && event->modifiers() & Qt::ControlModifier) {
        options().setZoomFactor(options().zoomFactor() + (event->angleDelta().y() > 0 ? 0.1 : -0.1));
        event->accept();
        return;
    }
    QAbstractItemView::wheelEvent(event);
}

void GridArea::showZoom()
{
    if (options().isZoomIndicatorActive() && isVisible())
        QToolTip::showText(mapToGlobal(rect().bottomRight() - QPoint(80, 48)),
                           QStringLiteral("%1%").arg(qRound(options().zoomFactor() * 100)), this);
}

bool GridArea::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (!showToolTip(help->pos(), help->globalPos()))
            QToolTip::hideText();
        return true;
    }
    case QEvent::Leave:
        setHover({});
        break;
    default:
        break;
    }
    return QAbstractItemView::viewportEvent(event);
}

bool GridArea::showToolTip(const QPoint &point, const QPoint &global)
{
    const CellPlace place = placeAt(point);
    if (place.line < 0 || place.slot < 0 || isGroupLine(place.line))
        return false;
    const GridColumn &column = *columns().at(place.slot).column;
    const QRect cell = cellRect(place.line, place.slot);
    QString tip = place.button >= 0 ? column.button(place.button).toolTip : QString();
    if (tip.isEmpty())
        tip = m_rows->sourceIndex(place.line, column.index()).data(Qt::ToolTipRole).toString();
    if (tip.isEmpty()) {
        const QString text = textOf(place.line, place.slot);
        if (m_texts->whole(text).width > textRect(cell, column).width())
            tip = text;
    }
    if (tip.isEmpty())
        return false;
    QToolTip::showText(global, tip, viewport(), cell);
    return true;
}

bool GridArea::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Shortcuts of the window must not take the keys that work in the table.
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::Find) ||
            key->matches(QKeySequence::SelectAll)) {
            event->accept();
            return true;
        }
    }
    return QAbstractItemView::event(event);
}

void GridArea::keyboardSearch(const QString &search)
{
    // Looking through a million rows at a keystroke would stop the program: only short tables search by
    // typing.
    constexpr int longestSearch = 20000;
    if (m_rows->rowCount() <= longestSearch && columns().count() > 0)
        QAbstractItemView::keyboardSearch(search);
}

void GridArea::copy(bool withHeader)
{
    if (QMimeData *data = m_view->copySelection(withHeader))
        QApplication::clipboard()->setMimeData(data);
}

void GridArea::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint at = byKey && currentIndex().isValid()
                          ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                          : event->globalPos();
    QMenu menu(this);
    fillCellMenu(menu, *this);
    menu.exec(at);
}

} // namespace Qtitan
