#pragma once

#include <gridcontrol/griddatabinding.h>
#include <gridcontrol/grideditor.h>
#include <gridcontrol/gridglobal.h>

#include <QObject>
#include <QVector>

#include <memory>

namespace Qtitan {

class CellButtonClickEventArgs;
class GridTableBand;
class GridViewBase;

/// What columns and bands have in common.
class GridColumnBase : public QObject
{
    Q_OBJECT

public:
    GridColumnBase(GridViewBase *view, int index);
    ~GridColumnBase() override;

    GridViewBase *view() const { return m_view; }

    /// A column's number in the model, a band's number in the order of creation.
    int index() const { return m_index; }

    /// Caption in the header; elided to the width, with the whole text as tool tip.
    virtual QString caption() const { return m_caption; }
    void setCaption(const QString &caption);

    /// Width in pixels, at least 24. Setting a band's width shares it among its shown columns.
    virtual int width() const { return m_width; }
    virtual void setWidth(int pixels);

    /// Qt::Alignment of the cells; a cell's own alignment role wins. 0 lets the value decide, numbers to the
    /// right.
    int textAlignment() const { return m_alignment; }
    void setTextAlignment(int alignment);

    /// A hidden band hides the bands and columns below it.
    bool isVisible() const { return m_visible; }
    void setVisible(bool visible);

    /// One of FixedKind. A fixed band fixes the columns below it. Fixed columns go to the left and keep the
    /// part of the bands that stands over them.
    int fixedKind() const { return m_fixedKind; }
    void setFixedKind(int kind);

    /// The band over this one; null at the top.
    GridTableBand *parentBand() const { return m_parentBand; }

signals:
    void captionChanged();
    void alignmentChanged();
    void widthChanged();
    /// Shown or hidden, fixed, or moved under another band.
    void placeChanged();

protected:
    void setParentBand(GridTableBand *band);

private:
    friend class GridViewBase;

    GridViewBase *m_view;
    GridTableBand *m_parentBand = nullptr;
    QString m_caption;
    int m_index;
    int m_width = 104;
    int m_alignment = 0;
    int m_fixedKind = NotFixed;
    bool m_visible = true;
};

/// One button of the cells of a column.
struct GridCellButton
{
    int icon = EllipsisButtonIcon;
    int position = ButtonRight;
    int activation = ShowButtonAlways;
    QString iconPath;
    QString toolTip;
};

/// A column of the model.
class GridColumn : public GridColumnBase
{
    Q_OBJECT

public:
    GridColumn(GridViewBase *view, int index);
    ~GridColumn() override;

    /// The caption that was set, or else the header text of the model.
    QString caption() const override;

    /// One of EditorType. Another type replaces the repository.
    int editorType() const;
    void setEditorType(int type);

    /// Settings of the cells; a GridStringEditorRepository for StringEditor. Owned by the column.
    GridEditorRepository *editorRepository() const { return m_repository.get(); }

    /// Whether the texts show as links.
    bool isLink() const;

    /// Adds a button to every cell of the column that has a text. \a icon, \a position and \a activation are
    /// of ButtonIcon, ButtonPosition and ButtonActivation; \a iconPath is read for CustomButtonIcon. \a index
    /// is the place among the buttons, -1 the last. Returns the place.
    int addButton(int icon, int position, int activation, const QString &iconPath = QString(),
                  const QString &toolTip = QString(), int index = -1);
    int buttonCount() const { return m_buttons.size(); }
    const GridCellButton &button(int index) const { return m_buttons.at(index); }

    GridModelDataBinding *dataBinding() const { return m_binding.get(); }

    /// Whether texts sort by the collation of the grid's locale, digits within them by value, instead of by
    /// code point. Default false.
    bool isSortLocaleAware() const { return m_sortLocaleAware; }
    void setSortLocaleAware(bool on);

    /// Whether the user may sort by this column. Default true.
    bool isSortEnabled() const { return m_sortEnabled; }
    void setSortEnabled(bool on);

    /// Level at which the column groups the rows; -1, the default, for none.
    int groupIndex() const { return m_groupIndex; }
    void setGroupIndex(int level);

    /// Alignment in which the cells of the column are drawn, as the first row has it; captions follow it.
    Qt::Alignment cellAlignment() const;

signals:
    void cellsChanged();
    void sortingChanged();
    void groupIndexChanged();

    /// A button was pressed with the mouse or, in the focused cell, with Enter. \a args is the sender's.
    void buttonClicked(Qtitan::CellButtonClickEventArgs *args);

private:
    std::unique_ptr<GridModelDataBinding> m_binding;
    std::unique_ptr<GridEditorRepository> m_repository;
    QVector<GridCellButton> m_buttons;
    int m_groupIndex = -1;
    bool m_sortLocaleAware = false;
    bool m_sortEnabled = true;
};

/// A column that can stand under a band.
class GridBandedTableColumn : public GridColumn
{
    Q_OBJECT

public:
    using GridColumn::GridColumn;

    /// Puts the column under the band of that number; -1, or a number that no band has, under none.
    void setBandIndex(int band);
};

} // namespace Qtitan
