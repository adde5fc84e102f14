#pragma once

#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace Qtitan {

class GridArea;
class GridColumnBase;

/// Has the toolkit ask this library for the accessibility of the grid. May be called again.
void installGridAccessibility();

/// The grid to a screen reader: one table of all lines and shown columns, fixed or not.
///
/// Children are the captions of the columns, then the cells, line by line. The header cells of a column are
/// its whole path, the top band first.
class AccessibleGrid : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit AccessibleGrid(GridArea *area);
    ~AccessibleGrid() override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return QString(); }
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

    /// Captions over a column, the top band first.
    QList<QAccessibleInterface *> headerCells(int column) const;

private:
    GridArea *area() const;
    void forgetChildren();
    bool change(int firstRow, int lastRow, int firstColumn, int lastColumn, bool select);

    mutable QHash<QPair<int, int>, QAccessible::Id> m_cells;
    mutable QHash<QPair<GridColumnBase *, int>, QAccessible::Id> m_captions;
};

} // namespace Qtitan
