#pragma once

#include <QAccessibleInterface>
#include <QPointer>

namespace Qtitan {

class GridArea;
class GridColumn;
class GridColumnBase;

/// A part of the grid to a screen reader: no object of its own, nothing below it, nothing to be typed.
class AccessiblePart : public QAccessibleInterface
{
public:
    explicit AccessiblePart(GridArea *area);
    ~AccessiblePart() override;

    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    void setText(QAccessible::Text, const QString &) override {}
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

protected:
    QPointer<GridArea> m_area;
};

/// A cell to a screen reader, known by its place on the screen.
class AccessibleCell : public AccessiblePart,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface
{
public:
    AccessibleCell(GridArea *area, int line, int slot);

    int line() const { return m_line; }
    int slot() const { return m_slot; }

    void *interface_cast(QAccessible::InterfaceType type) override;
    bool isValid() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;

    bool isSelected() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_slot; }
    int rowIndex() const override { return m_line; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    int m_line;
    int m_slot;
};

/// A caption of the header to a screen reader: a column's, or a band's over one run of columns.
///
/// Pressing that of a column sorts as a click does; its description tells how the column sorts the rows now.
class AccessibleCaption : public AccessiblePart, public QAccessibleActionInterface
{
public:
    AccessibleCaption(GridArea *area, GridColumnBase *item, int firstSlot);

    int firstSlot() const { return m_firstSlot; }
    /// Null for a band.
    GridColumn *column() const;

    void *interface_cast(QAccessible::InterfaceType type) override;
    bool isValid() const override { return m_area && m_item; }
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QAccessible::State state() const override;
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;

    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QPointer<GridColumnBase> m_item;
    int m_firstSlot;
};

} // namespace Qtitan
