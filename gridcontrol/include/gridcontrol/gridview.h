#pragma once

#include <gridcontrol/gridargs.h>
#include <gridcontrol/gridcolumn.h>
#include <gridcontrol/gridglobal.h>

#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QVector>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QAbstractItemView;
class QMimeData;
QT_END_NAMESPACE

namespace Qtitan {

class GridArea;

/// A group of rows, as a group row shows it.
struct GridGroup
{
    QString key;
    int level = 0;
    int count = 0; ///< rows of the model in it
    bool isOpen = false;
};
class GridBase;
class GridViewOptions;

/// A view of the grid: columns, order of the rows, selection.
///
/// Row numbers in the interface are those of the model, whatever the order on the screen. The model itself is
/// never changed. Made and owned by Grid.
class GridViewBase : public QObject
{
    Q_OBJECT

public:
    explicit GridViewBase(GridBase *grid);
    ~GridViewBase() override;

    GridBase *grid() const { return m_grid; }

    /// Shows the rows below \a root of \a model, which stays the caller's. Makes the columns anew. A model
    /// that reports other columns later (reset, columns added, a header that changed its length) gets columns
    /// added at the end or removed from the end; those that stay keep their settings.
    void setModel(QAbstractItemModel *model, const QModelIndex &root = QModelIndex());
    QAbstractItemModel *model() const;
    QModelIndex rootIndex() const;

    GridViewOptions &options() const { return *m_options; }

    int getColumnCount() const { return m_columns.size(); }

    /// Column of the model's number \a column; null if there is none.
    GridColumn *getColumn(int column) const { return m_columns.value(column); }

    /// First column with that caption; null if there is none.
    GridColumn *getColumnByCaption(const QString &caption) const;

    /// Shown columns from left to right, fixed ones first.
    QVector<GridColumn *> shownColumns() const;

    /// Moves shown columns that stand side by side, one or all of a band, before \a before (null: behind
    /// all). Every band stays in one piece and each column on its side of the fixed edge; false, and nothing
    /// moves, otherwise or where they stand there already.
    bool moveColumns(const QVector<GridColumn *> &columns, GridColumn *before);
    bool canMoveColumns(const QVector<GridColumn *> &columns, GridColumn *before) const;

    /// Sorts by \a column, of SortState \a state; a null column or AsDelivered gives the order of the model.
    /// Stable. Within groups if the rows are grouped. Values that are missing come last either way.
    void sortByColumn(GridColumn *column, int state);
    GridColumn *sortColumn() const { return m_sortColumn; }
    int sortState() const { return m_sortState; }

    /// Model row with the focus; -1 for none.
    int focusRow() const;
    /// Gives the focus to a model row, opening its group, and selects it. -1 takes the focus away.
    void setFocusRow(int modelRow);

    /// Model rows as they stand on the screen from top to bottom, group rows and closed groups left out.
    QVector<int> visibleRows() const;
    /// Model rows that have a selected cell, in the order of the screen.
    QVector<int> selectedRows() const;

    /// Group rows as they stand on the screen, from top to bottom.
    QVector<GridGroup> groups() const;

    /// Does what a click on the link in that cell does. False where the cell is not on the screen or shows no
    /// link.
    bool followLink(int modelRow, const GridColumn *column);

    void deselectAll();
    void selectAll();

    /// Opens, closes all groups.
    void expandAll();
    void collapseAll();

    /// Width for the caption and the texts of the rows that are on the screen now.
    int bestWidth(const GridColumn *column) const;

    /// The selection as tab-separated text and as an HTML table, null if nothing is selected. In text numbers
    /// stand as the model's raw display values without group separators, so that a spreadsheet takes them as
    /// numbers. \a withHeader puts the levels of the header on top. The caller owns the result.
    QMimeData *copySelection(bool withHeader) const;

    /// Captions over \a column from the top band to the column's own, those without text left out.
    QStringList headerPath(const GridColumn *column) const;

    /// The item view that shows the rows: for focus, scroll bars and accessibility.
    QAbstractItemView *itemView() const;

    /// For the library's own parts.
    GridArea *area() const { return m_area; }

public slots:
    /// Asks for the text to find and marks it; what Ctrl+F does.
    void showFindBar();

signals:
    /// The focus went to another row of the model. Not emitted for the focus that a view takes by itself when
    /// it gets a model or the keyboard, and not for group rows.
    void focusRowChanged(int oldRow, int newRow);

    /// A link cell was clicked or followed with Enter. \a args is the sender's.
    void editorLinkActivated(Qtitan::EditorLinkEventArgs *args);

    /// The column that sorts the rows, or its direction, changed.
    void sortChanged();

    /// Columns came, went, moved, or changed their width.
    void columnsChanged();

protected:
    virtual GridColumn *makeColumn(int index);

private:
    void syncColumns();
    void watch(GridColumn *column);
    QVector<GridColumn *> orderAfterMove(const QVector<GridColumn *> &columns, GridColumn *before) const;
    void regroup();

    GridBase *m_grid;
    GridViewOptions *m_options;
    QVector<GridColumn *> m_columns;
    QVector<GridColumn *> m_order;
    QPointer<GridColumn> m_sortColumn;
    int m_sortState = AsDelivered;
    GridArea *m_area; // last: it reads the columns from its first moment
};

/// Columns side by side under one line of captions.
class GridTableView : public GridViewBase
{
    Q_OBJECT

public:
    using GridViewBase::GridViewBase;
};

} // namespace Qtitan
