#pragma once

#include "textcache.h"

#include <QWidget>

namespace Qtitan {

class GridArea;
class GridColumn;
class GridColumnBase;
class GridViewOptions;
struct HeaderCell;

/// The captions over the columns: draws them, and turns drags and clicks on them into widths, orders and
/// sorts.
///
/// With the groups header on, a strip above the captions names the columns that group the rows.
class GridHeader : public QWidget
{
    Q_OBJECT

public:
    explicit GridHeader(GridArea *area);

    int wantedHeight() const;
    QFont captionFont() const;

    /// Repaints from the leftmost caption over \a column to the right end.
    void updateFrom(const GridColumn *column);

    /// Repaints after the scrolling columns went \a dx pixels to the right.
    void scrollColumns(int dx);

    /// Ends a drag without an effect; for when columns go.
    void cancelDrag();

    /// Item whose right edge is under \a point: a column, or a band on the band's own level. Null for none.
    GridColumnBase *edgeAt(const QPoint &point) const;
    GridColumn *columnAt(const QPoint &point) const;
    QRect cellRect(const HeaderCell &cell) const;

    /// Gives an item, or every column below a band, the width that its visible texts want.
    static void fitWidth(GridColumnBase *item);
    /// Does what a click on the caption of \a column does.
    static void sortNext(GridColumn *column);
    /// Sort state that a click on the caption leads to next.
    static int nextState(const GridColumn *column);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    enum Drag { NoDrag, Pressed, Resizing, Moving };
    static constexpr int margin = 6;
    static constexpr int edgeReach = 4; ///< pixels beside an edge that take hold of it
    static constexpr int arrowWidth = 12;

    TextCache &texts();
    int stripHeight() const;
    int cellAt(const QPoint &point) const;
    bool showToolTip(const QPoint &point, const QPoint &global);
    void paintStrip(QPainter &painter) const;
    void paintCells(QPainter &painter, const QRect &rect, bool fixed);
    void paintCell(QPainter &painter, const HeaderCell &cell, const QRect &rect, qreal pixel);
    void paintEdges(QPainter &painter, const HeaderCell &cell, const QRect &rect, qreal pixel) const;
    void paintArrow(QPainter &painter, const QRectF &rect, bool up) const;
    void startDrag(const QPoint &point);
    void startResize();
    void updateDropPlace(const QPoint &point);
    void finishMove();

    GridArea *m_area;
    std::shared_ptr<TextCache> m_texts; ///< of the captions; null until texts() is called
    Drag m_drag = NoDrag;
    QPoint m_pressedAt;
    GridColumnBase *m_dragged = nullptr;
    QVector<GridColumn *> m_draggedColumns; ///< resized or moved together
    QVector<int> m_startWidths;
    int m_dropX = -1;
    GridColumn *m_dropBefore = nullptr;
    bool m_dropAllowed = false;
};

} // namespace Qtitan
