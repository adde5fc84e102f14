#pragma once

#include "columnlayout.h"
#include "gridcolors.h"
#include "headerlayout.h"
#include "rowmodel.h"
#include "textcache.h"

#include <QAbstractItemView>

namespace Qtitan {

class GridFindBar;
class GridHeader;
class GridViewBase;
class GridViewOptions;

/// A cell on the screen: a line and a slot; -1 for none.
struct CellPlace
{
    int line = -1;
    int slot = -1;
    int button = -1;   ///< button of the cell under the pointer
    bool link = false; ///< over the text of a link

    bool operator==(const CellPlace &other) const
    {
        return line == other.line && slot == other.slot && button == other.button && link == other.link;
    }
};

/// The item view of the grid: one view, one selection, one keyboard for fixed and scrolling columns.
///
/// Lines have one height, so that no geometry is kept per row.
class GridArea : public QAbstractItemView
{
    Q_OBJECT

public:
    GridArea(GridViewBase *view, QWidget *parent);
    ~GridArea() override;

    GridViewBase *view() const { return m_view; }
    GridViewOptions &options() const;
    GridHeader *header() const { return m_header; }
    RowModel &rows() { return *m_rows; }
    const RowModel &rows() const { return *m_rows; }
    const ColumnLayout &columns() const
    {
        if (m_columnsDirty)
            layOutColumns();
        return m_columns;
    }
    const HeaderLayout &captions() const
    {
        columns();
        return m_captions;
    }
    const GridColors &colors() const { return m_colors; }
    TextCache &texts() { return *m_texts; }
    const CellPlace &hover() const { return m_hover; }
    const QString &markedText() const { return m_marked; }

    /// \a font at the zoom factor.
    QFont zoomed(QFont font) const;
    int lineHeight() const { return m_lineHeight; }
    int levelHeight() const { return m_levelHeight; }
    int firstVisibleLine() const;
    int lastVisibleLine() const;
    /// Line under a height of the viewport; -1 below the last one.
    int lineAt(int y) const;
    QRect cellRect(int line, int slot) const;
    QRect lineRect(int line) const;
    /// Where a cell has its text, and its buttons, in \a cell.
    QRect textRect(const QRect &cell, const GridColumn &column) const;
    QRect buttonRect(const QRect &cell, const GridColumn &column, int button) const;
    bool selectsRows() const { return selectionBehavior() == SelectRows; }
    QString textOf(int line, int slot) const;

    /// The columns, their order or their visibility changed.
    void columnsChanged();
    /// The width of one column changed; repaints what stands right of it.
    void columnResized(const GridColumn *column);
    /// Fonts, zoom or borders changed.
    void metricsChanged();
    /// Colours changed.
    void appearanceChanged();

    /// Marks the cells that contain \a text; none for an empty one.
    void markText(const QString &text);
    void showFindBar();

    void setCurrentCell(int line, int slot, QItemSelectionModel::SelectionFlags command);
    /// Emits the focus row of the view if it is another one than last time.
    void reportFocus();
    void forgetFocus() { m_reportedRow = -1; }

    /// Follows the link of a cell, or else presses its button; false if it has neither.
    bool activateCell(int line, int slot, int button);
    bool followLink(int line, int slot);
    bool isGroupLine(int line) const { return m_rows->order().groupAt(line) != nullptr; }
    void toggleGroup(int line);
    void setAllGroupsOpen(bool open);

    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint &point) const override;
    void keyboardSearch(const QString &search) override;

public slots:
    void copySelection() { copy(false); }
    void copySelectionWithHeader() { copy(true); }

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex &index) const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    QModelIndexList selectedIndexes() const override;

    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void dataChanged(const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) override;
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void reset() override;
    void startDrag(Qt::DropActions) override {}

    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    CellPlace placeAt(const QPoint &point) const;
    QModelIndex indexFor(int line, int slot) const;
    void setHover(const CellPlace &place);
    void updateLine(int line);
    QRect changedRect(const QModelIndex &first, const QModelIndex &last) const;
    void reportDataChanged(const QModelIndex &first, const QModelIndex &last);
    bool pressButton(int line, int slot, int button);
    bool groupKey(QKeyEvent *event);
    bool showToolTip(const QPoint &point, const QPoint &global);
    void copy(bool withHeader);
    void applySelectionPolicy();
    QItemSelectionModel::SelectionFlags selectionBehaviorFlags() const;
    void layOutColumns() const;
    void updateScrollBars();
    void showZoom();
    QItemSelection rectangle(const QModelIndex &a, const QModelIndex &b) const;

    GridViewBase *m_view;
    RowModel *m_rows;
    GridHeader *m_header;
    GridFindBar *m_findBar = nullptr;
    mutable ColumnLayout m_columns;
    mutable HeaderLayout m_captions;
    mutable bool m_columnsDirty = false;
    GridColors m_colors;
    std::shared_ptr<TextCache> m_texts;
    CellPlace m_hover;
    CellPlace m_pressed;
    QPersistentModelIndex m_anchor;
    QPersistentModelIndex m_scrollWhenShown;
    QString m_marked;
    int m_lineHeight = 24;
    int m_levelHeight = 26;
    int m_reportedRow = -1;
    bool m_quietFocus = false;
    bool m_updatingGeometries = false;
};

} // namespace Qtitan
