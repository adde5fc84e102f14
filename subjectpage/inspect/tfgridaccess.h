#pragma once

#include <QStringList>
#include <QVector>

class TFSubjectTableModel;
class TFSujectTableView;

namespace Qtitan {
class GridColumn;
class GridViewBase;
struct GridGroup;
} // namespace Qtitan

/// A table's grid as data, and the user's hand on it. Rows and columns are numbered from 0, rows as they
/// stand on the screen, columns as in the model.
class TFGridAccess
{
public:
    /// One column as it is drawn.
    struct Column
    {
        QString caption;
        int width = 0;
        Qt::Alignment alignment;
        bool isVisible = false;
        bool isFrozen = false;
        bool isLink = false;
        bool hasButton = false;
    };

    /// \a table may be null, or have no model yet: a grid without rows and columns.
    explicit TFGridAccess(TFSujectTableView *table);

    TFSubjectTableModel *model() const;
    QVector<Column> columns() const;
    /// Model rows in the order of the screen.
    QVector<int> rows() const { return m_rows; }
    QVector<Qtitan::GridGroup> groups() const;

    // Each returns false, with the reason, where it can't be done.
    bool selectRow(int row, QString *reason);
    bool followLink(int row, int column, QString *reason);
    /// Goes on to the next of ascending, descending, as delivered, as a click on the caption does.
    bool sort(int column, QString *reason);

private:
    bool hasRow(int row, QString *reason) const;
    Qtitan::GridColumn *shownColumn(int column, QString *reason) const;

    TFSujectTableView *m_table;
    Qtitan::GridViewBase *m_view;
    QVector<int> m_rows;
};
