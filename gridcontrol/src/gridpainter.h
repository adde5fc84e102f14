#pragma once

#include <QtGlobal>

#include <QColor>
#include <QFont>
#include <QRect>
#include <QRegion>

QT_BEGIN_NAMESPACE
class QPainter;
class QModelIndex;
QT_END_NAMESPACE

namespace Qtitan {

class GridArea;
class GridColumn;
struct GridCellButton;
struct RowGroup;

/// Draws the lines of the grid that lie in a region, for one paint event.
class GridPainter
{
public:
    GridPainter(GridArea &area, QPainter &painter);

    void paint(const QRegion &region);

    /// Width of one pixel of what is painted on, in the painter's units.
    static qreal devicePixel(const QPainter &painter);

    /// Where \a text comes to stand in \a rect.
    static QRect drawnTextRect(const QRect &rect, const QFont &font, const QString &text,
                               Qt::Alignment alignment);

private:
    struct Line
    {
        int number;
        QRect rect;
        bool selected;
        bool hovered;
        QColor background;
    };

    void paintRect(const QRect &rect);
    void paintRows(const QRect &rect, int first, int last);
    void paintEmpty(const QRect &rect);
    void paintBeyond(const QRect &rect, int lastLine);
    void paintGroup(const RowGroup &group, const Line &line);
    void paintCells(const Line &line, int firstSlot, int endSlot, int right);
    void paintCell(const Line &line, int slot, const QRect &cell);
    void paintLink(const QRect &rect, const QString &text, Qt::Alignment alignment, bool underlined);
    void paintButtons(const Line &line, int slot, const QRect &cell);
    void paintButton(const GridCellButton &button, const QRect &rect, bool hot);
    void paintVerticalLines(const QRect &rect, int bottom);
    void paintMark(const QRect &rect, const QString &text);
    void paintFocus();
    bool isCellSelected(const Line &line, const GridColumn &column) const;
    Line lineFor(int number) const;
    void drawText(const QRect &rect, const QString &text, Qt::Alignment alignment);

    GridArea &m_area;
    QPainter &m_painter;
    qreal m_pixel;
    int m_offset;
    bool m_rowsSelected;
};

} // namespace Qtitan
