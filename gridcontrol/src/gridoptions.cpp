#include <gridcontrol/gridoptions.h>

namespace Qtitan {

GridViewOptions::GridViewOptions(QObject *parent)
    : QObject(parent)
{}

template <typename T> bool GridViewOptions::assign(T &member, const T &value)
{
    if (member == value)
        return false;
    member = value;
    return true;
}

void GridViewOptions::setBorderWidth(int pixels)
{
    if (assign(m_borderWidth, qBound(0, pixels, 16)))
        emit layoutChanged();
}

void GridViewOptions::setGroupingEnabled(bool on)
{
    if (assign(m_grouping, on))
        emit groupingChanged();
}

void GridViewOptions::setTransparentBackground(bool on)
{
    if (assign(m_transparent, on))
        emit appearanceChanged();
}

void GridViewOptions::setAlternatingRowColors(bool on)
{
    if (assign(m_alternating, on))
        emit appearanceChanged();
}

void GridViewOptions::setGridLines(int style)
{
    if (assign(m_gridLines, style))
        emit appearanceChanged();
}

void GridViewOptions::setGroupsHeader(bool on)
{
    if (assign(m_groupsHeader, on))
        emit layoutChanged();
}

void GridViewOptions::setRubberBandSelection(bool on)
{
    m_rubberBand = on;
}

void GridViewOptions::setColumnHidingOnGroupingEnabled(bool on)
{
    if (assign(m_hideGroupColumns, on))
        emit layoutChanged();
}

void GridViewOptions::setZoomIndicatorActive(bool on)
{
    m_zoomIndicator = on;
}

void GridViewOptions::setZoomEnabled(bool on)
{
    m_zoomEnabled = on;
}

void GridViewOptions::setZoomFactor(qreal factor)
{
    if (assign(m_zoom, qBound(0.5, factor, 3.0)))
        emit zoomFactorChanged(m_zoom);
}

void GridViewOptions::setFilterEnabled(bool on)
{
    m_filter = on;
}

void GridViewOptions::setMainMenuDisabled(bool disabled)
{
    m_mainMenuDisabled = disabled;
}

void GridViewOptions::setCellButtonAutoRaise(bool on)
{
    if (assign(m_buttonAutoRaise, on))
        emit appearanceChanged();
}

void GridViewOptions::setColumnFont(const QFont &font)
{
    if (m_hasColumnFont && font == m_columnFont)
        return;
    m_columnFont = font;
    m_hasColumnFont = true;
    emit layoutChanged();
}

void GridViewOptions::setGroupPalette(const QPalette &palette, int level)
{
    m_groupPalettes.insert(level, palette);
    emit appearanceChanged();
}

void GridViewOptions::setSelectionPolicy(int policy)
{
    if (assign(m_selectionPolicy, policy))
        emit selectionPolicyChanged();
}

void GridViewOptions::setEmptyText(const QString &text)
{
    if (assign(m_emptyText, text))
        emit appearanceChanged();
}

} // namespace Qtitan
