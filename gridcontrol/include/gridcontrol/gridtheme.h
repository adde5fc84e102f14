#pragma once

#include <QObject>
#include <QPalette>

namespace Qtitan {

/// Holds the palette from which the grid takes every shade that no colour property of Grid sets.
///
/// Roles read: Window header background, WindowText header caption, Light line, Dark strong line,
/// AlternateBase alternate row, Midlight hovered row, Highlight and HighlightedText selection, Mid muted
/// text, Link link and accent. The palette a new theme starts with is the light one.
class GridThemeManager : public QObject
{
    Q_OBJECT

public:
    explicit GridThemeManager(QObject *parent = nullptr);

    QPalette shadePalette() const { return m_shade; }

    /// Takes over \a palette and repaints the grid, also when the palette stands: this is the way to have the
    /// grid look at the application's palette again.
    void setShadePalette(const QPalette &palette);

signals:
    void themeChanged();

private:
    QPalette m_shade;
};

} // namespace Qtitan
