#pragma once

#include "records/headerfieldinfo.h"

#include <QFrame>
#include <QList>

class QMouseEvent;
class QToolButton;
class TFSubjectTableModel;
class TFTreeStruct;

namespace Qtitan {
class CellButtonClickEventArgs;
class EditorLinkEventArgs;
class Grid;
class GridColumn;
class GridTableBand;
class GridTableView;
} // namespace Qtitan

/// The grid of a table: sets the grid control up from the band tree of its model.
///
/// The only class that talks to the control. A tree of two levels gives a plain table, a deeper one bands.
class TFSujectTableView : public QFrame
{
    Q_OBJECT

public:
    explicit TFSujectTableView(QWidget *parent = nullptr);
    ~TFSujectTableView() override;

    /// Sets the whole grid up for \a model, which stays the caller's and has its header by now. \a rebind
    /// tells a second call on the same model and makes no difference.
    void setModel(TFSubjectTableModel *model, bool rebind = false);
    TFSubjectTableModel *model() const;

    /// Keeps the first \a count columns in sight. Does nothing for more columns than there are.
    void setFrozenCount(int count);
    /// Groups the rows by \a column; a number that no column has means the last one.
    void setGroupColumn(int column);
    void expandAll();
    /// Sets Qt::Alignment \a alignment, the sort role and locale-aware sorting for all columns.
    void setColumnsAlignment(int alignment);
    /// The form for tables that are read from left to right: the column of \a fieldName stays in sight,
    /// single cells are selected. An empty name changes nothing.
    void setVGridHeader(const QString &fieldName);
    /// Widths and cell editors of the visible columns; \a records are those of the leaves, in order.
    void applyColumnSettings(const QList<HeaderFieldInfo *> &records);
    /// Hides the columns that the tree marks hidden, and the bands left without a column. \a hidden receives
    /// the number of columns.
    void hideColumn(int &hidden);
    /// Puts the columns under their bands.
    void bindBander();
    void deselectAll();

    Qtitan::Grid *grid() const { return m_grid; }
    /// Gives the keyboard to the rows.
    void focusRows();
    /// The widget that takes the keyboard for the rows; null before setModel().
    QWidget *rowsWidget() const;
    /// Text in the middle of a grid without rows; an empty one shows the control's own.
    void setEmptyText(const QString &text);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void sigGetMoreData(int page);
    void linkActivated(QString link);
    void linkHovered(QString link);
    void linkUnhovered();
    void sigSectionClicked(int section, Qt::SortOrder order);
    void sigSimulateMouseReleaseEvent(QMouseEvent *event);
    void clicked(int row);

public slots:
    void editorLinkActivated(Qtitan::EditorLinkEventArgs *args);

private slots:
    void showCell(Qtitan::CellButtonClickEventArgs *args);
    void handleReset();
    void handleHeader();
    void applyTheme();

private:
    void makeBands();
    void makeBand(const TFTreeStruct *node);
    void setOptions();
    void connectModel(TFSubjectTableModel *model);
    void applyEditor(Qtitan::GridColumn *column, const QString &columnType);
    int columnWidth(const HeaderFieldInfo &record) const;
    void hideEmptyBands(Qtitan::GridTableBand *band);
    bool hasVisibleContent(const Qtitan::GridTableBand *band) const;
    Qtitan::GridTableBand *bandOfField(const QString &fieldName) const;
    int leafCount() const;
    void applyLeafSettings();

    QToolButton *m_corner;
    Qtitan::Grid *m_grid;
    int m_depth = 1;
    TFTreeStruct *m_header = nullptr; ///< the model's; not owned
    Qtitan::GridTableView *m_view = nullptr;
};
