#pragma once

#include <QColor>
#include <QPalette>

namespace Qtitan {

/// Every colour of the grid, resolved.
struct GridColors
{
    QColor panel;
    QColor text;
    QColor headerBackground;
    QColor headerText;
    QColor line;
    QColor softLine;
    QColor strongLine;
    QColor alternate;
    QColor hover;
    QColor selection;
    QColor selectionText;
    QColor link;
    QColor muted;
    QColor accent;
    QColor focus;

    /// Takes panel and text from \a palette and the shades from \a shade; the shades of the built-in light
    /// scheme give way to those of the dark one over a dark panel.
    static GridColors fromPalettes(const QPalette &palette, const QPalette &shade);

    /// The shade palette that a theme starts with, and its counterpart for dark panels.
    static QPalette lightScheme();
    static QPalette darkScheme();
};

/// The colour that lies \a share (0 to 1) of the way from \a from to \a to.
QColor mixed(const QColor &from, const QColor &to, qreal share);

} // namespace Qtitan
