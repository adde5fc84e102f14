#include "gridcolors.h"

#include <QApplication>

namespace Qtitan {

namespace {
struct Scheme
{
    const char *header, *headerText, *line, *strong, *alternate, *hover, *selection, *selectionText, *muted,
        *link;
};

QPalette paletteOf(const Scheme &scheme)
{
    QPalette palette;
    const std::initializer_list<std::pair<QPalette::ColorRole, const char *>> roles{
        {QPalette::Window, scheme.header},
        {QPalette::WindowText, scheme.headerText},
        {QPalette::Light, scheme.line},
        {QPalette::Dark, scheme.strong},
        {QPalette::AlternateBase, scheme.alternate},
        {QPalette::Midlight, scheme.hover},
        {QPalette::Highlight, scheme.selection},
        {QPalette::HighlightedText, scheme.selectionText},
        {QPalette::Mid, scheme.muted},
        {QPalette::Link, scheme.link}};
    for (const auto &role : roles)
        palette.setColor(QPalette::All, role.first, QColor(QLatin1String(role.second)));
    return palette;
}

bool isDark(const QColor &color)
{
    return qGray(color.rgb()) < 110;
}

// The application may give the grid's class a palette of its own, in which Link names the text of the header
// and LinkVisited its lines.
void readClassPalette(GridColors &colors)
{
    const QPalette plain = QApplication::palette();
    const QPalette own = QApplication::palette("Qtitan::Grid");
    if (own.color(QPalette::Link) != plain.color(QPalette::Link))
        colors.headerText = own.color(QPalette::Link);
    if (own.color(QPalette::LinkVisited) != plain.color(QPalette::LinkVisited))
        colors.line = own.color(QPalette::LinkVisited);
}
} // namespace

QColor mixed(const QColor &from, const QColor &to, qreal share)
{
    const auto blend = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return QColor(blend(from.red(), to.red()), blend(from.green(), to.green()),
                  blend(from.blue(), to.blue()));
}

QPalette GridColors::lightScheme()
{
    return paletteOf({"#EEF2F7", "#1F2733", "#DCE1E8", "#B8C2CF", "#FAFBFD", "#EEF4FD", "#D8E8FF", "#0B2B5C",
                      "#66717F", "#0060E3"});
}

QPalette GridColors::darkScheme()
{
    return paletteOf({"#131A24", "#D7DEE8", "#1E2733", "#33425A", "#0B1017", "#152030", "#173A6B", "#FFFFFF",
                      "#8894A5", "#6AA8FF"});
}

GridColors GridColors::fromPalettes(const QPalette &palette, const QPalette &shade)
{
    GridColors colors;
    colors.panel = palette.color(QPalette::Base);
    colors.text = palette.color(QPalette::Text);

    const QPalette shades = isDark(colors.panel) && shade == lightScheme() ? darkScheme() : shade;
    colors.headerBackground = shades.color(QPalette::Window);
    colors.headerText = shades.color(QPalette::WindowText);
    colors.line = shades.color(QPalette::Light);
    colors.strongLine = shades.color(QPalette::Dark);
    colors.alternate = shades.color(QPalette::AlternateBase);
    colors.hover = shades.color(QPalette::Midlight);
    colors.selection = shades.color(QPalette::Highlight);
    colors.selectionText = shades.color(QPalette::HighlightedText);
    colors.muted = shades.color(QPalette::Mid);
    colors.link = shades.color(QPalette::Link);
    readClassPalette(colors);
    return colors;
}

} // namespace Qtitan
