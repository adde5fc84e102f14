#pragma once

#include <gridcontrol/gridglobal.h>

#include <QFont>
#include <QMap>
#include <QObject>
#include <QPalette>

namespace Qtitan {

/// How a view looks and behaves. Every setter takes effect at once; one that changes nothing does nothing.
class GridViewOptions : public QObject
{
    Q_OBJECT

public:
    explicit GridViewOptions(QObject *parent = nullptr);

    /// Width in pixels of the frame around the grid; 0 for none. Default 1.
    int borderWidth() const { return m_borderWidth; }
    void setBorderWidth(int pixels);

    /// Whether columns with a group index group the rows. Default true.
    bool isGroupingEnabled() const { return m_grouping; }
    void setGroupingEnabled(bool on);

    /// Whether the area beyond the last row and column shows the base colour of the grid's parent instead of
    /// the grid's own. Rows are never transparent. Default false.
    bool isTransparentBackground() const { return m_transparent; }
    void setTransparentBackground(bool on);

    /// Default true.
    bool alternatingRowColors() const { return m_alternating; }
    void setAlternatingRowColors(bool on);

    /// One of GridLines; an unknown number draws as SoftGridLines. Default SoftGridLines.
    int gridLines() const { return m_gridLines; }
    void setGridLines(int style);

    /// Whether a strip above the header names the columns that the rows are grouped by. Default false.
    bool groupsHeader() const { return m_groupsHeader; }
    void setGroupsHeader(bool on);

    /// Whether dragging over cells selects what it sweeps. Default true.
    bool rubberBandSelection() const { return m_rubberBand; }
    void setRubberBandSelection(bool on);

    /// Whether a column that groups the rows leaves the table. Default true.
    bool columnHidingOnGroupingEnabled() const { return m_hideGroupColumns; }
    void setColumnHidingOnGroupingEnabled(bool on);

    /// Whether the zoom shows its percentage in a corner for a moment when it changes. Default false.
    bool isZoomIndicatorActive() const { return m_zoomIndicator; }
    void setZoomIndicatorActive(bool on);

    /// Whether Ctrl with the wheel zooms. Default false.
    bool isZoomEnabled() const { return m_zoomEnabled; }
    void setZoomEnabled(bool on);

    /// Scale of text, rows and header; column widths stand. Kept within 0.5 and 3. Default 1.
    qreal zoomFactor() const { return m_zoom; }
    void setZoomFactor(qreal factor);

    /// Whether the find bar offers to show the matching rows only. Default true.
    bool isFilterEnabled() const { return m_filter; }
    void setFilterEnabled(bool on);

    /// Without the main menu the context menus lose what changes the view's layout: hiding and showing
    /// columns, grouping. Copy, find, sort and widths stay. Default false.
    bool isMainMenuDisabled() const { return m_mainMenuDisabled; }
    void setMainMenuDisabled(bool disabled);

    /// Whether cell buttons show a frame only under the pointer. Default true.
    bool cellButtonAutoRaise() const { return m_buttonAutoRaise; }
    void setCellButtonAutoRaise(bool on);

    /// Font of the captions in the header. Until it is set they use the grid's.
    QFont columnFont() const { return m_columnFont; }
    bool hasColumnFont() const { return m_hasColumnFont; }
    void setColumnFont(const QFont &font);

    /// Colours of the group rows of one level: BrightText the key, Dark the background, Shadow the line
    /// below. A role that was not set falls to the grid's own colours.
    QPalette groupPalette(int level = 0) const { return m_groupPalettes.value(level); }
    void setGroupPalette(const QPalette &palette, int level = 0);

    /// One of SelectionPolicy. Default RowSelection.
    int selectionPolicy() const { return m_selectionPolicy; }
    void setSelectionPolicy(int policy);

    /// Text in the middle of a table without rows; an empty text shows the grid's own ("无数据" until
    /// translated).
    QString emptyText() const { return m_emptyText; }
    void setEmptyText(const QString &text);

signals:
    /// The look changed and the rows and columns stand where they were.
    void appearanceChanged();
    /// Sizes or the set of visible columns changed.
    void layoutChanged();
    /// The rows have to be grouped anew.
    void groupingChanged();
    void selectionPolicyChanged();
    void zoomFactorChanged(qreal factor);

private:
    template <typename T> bool assign(T &member, const T &value);

    QMap<int, QPalette> m_groupPalettes;
    QFont m_columnFont;
    QString m_emptyText;
    qreal m_zoom = 1.0;
    int m_borderWidth = 1;
    int m_gridLines = SoftGridLines;
    int m_selectionPolicy = RowSelection;
    bool m_hasColumnFont = false;
    bool m_grouping = true;
    bool m_transparent = false;
    bool m_alternating = true;
    bool m_groupsHeader = false;
    bool m_rubberBand = true;
    bool m_hideGroupColumns = true;
    bool m_zoomIndicator = false;
    bool m_zoomEnabled = false;
    bool m_filter = true;
    bool m_mainMenuDisabled = false;
    bool m_buttonAutoRaise = true;
};

} // namespace Qtitan
