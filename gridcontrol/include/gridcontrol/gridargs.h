#pragma once

#include <gridcontrol/gridrow.h>

#include <QString>

namespace Qtitan {

class GridColumn;
class GridModelDataBinding;

/// The cell that something happened in. Lives for the time of the signal that carries it.
class EditorEventArgs
{
public:
    EditorEventArgs(const GridRow &row, GridColumn *column)
        : m_row(row)
        , m_column(column)
    {}

    GridRow row() const { return m_row; }
    GridColumn *column() const { return m_column; }
    GridModelDataBinding *dataBinding() const;

private:
    GridRow m_row;
    GridColumn *m_column;
};

/// A link was followed.
class EditorLinkEventArgs : public EditorEventArgs
{
public:
    EditorLinkEventArgs(const GridRow &row, GridColumn *column, const QString &anchor)
        : EditorEventArgs(row, column)
        , m_anchor(anchor)
    {}

    /// Target that the text itself names: the href of its <a> mark-up, or the whole text if that is an
    /// address. Empty for any other text.
    QString anchor() const { return m_anchor; }

private:
    QString m_anchor;
};

/// A button in a cell was pressed.
class CellButtonClickEventArgs : public EditorEventArgs
{
public:
    CellButtonClickEventArgs(const GridRow &row, GridColumn *column, int button)
        : EditorEventArgs(row, column)
        , m_button(button)
    {}

    /// Index of the button in its column.
    int button() const { return m_button; }

private:
    int m_button;
};

} // namespace Qtitan
