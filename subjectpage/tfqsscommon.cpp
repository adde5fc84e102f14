#include "tfqsscommon.h"

TFQssCommon *TFQssCommon::instance()
{
    static TFQssCommon common;
    return &common;
}

QColor TFQssCommon::headerBorderColor() const
{
    return m_colors[HeaderBorder];
}

void TFQssCommon::setHeaderBorderColor(const QColor &color)
{
    m_colors[HeaderBorder] = color;
}

QColor TFQssCommon::headerSplitColor() const
{
    return m_colors[HeaderSplit];
}

void TFQssCommon::setHeaderSplitColor(const QColor &color)
{
    m_colors[HeaderSplit] = color;
}

QColor TFQssCommon::highlightColor() const
{
    return m_colors[Highlight];
}

void TFQssCommon::setHighlightColor(const QColor &color)
{
    m_colors[Highlight] = color;
}
