#include <gridcontrol/grid.h>

#include "gridaccessible.h"
#include "gridarea.h"
#include "gridcolors.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QTranslator>
#include <QVBoxLayout>

static void initResources()
{
    Q_INIT_RESOURCE(gridcontrol);
}

namespace Qtitan {

GridBase::GridBase(QWidget *parent)
    : QFrame(parent)
    , m_theme(new GridThemeManager(this))
{
    installGridAccessibility();
    auto *box = new QVBoxLayout(this);
    box->setContentsMargins(1, 1, 1, 1);
    box->setSpacing(0);
    connect(m_theme, &GridThemeManager::themeChanged, this, [this] { m_view->area()->appearanceChanged(); });
}

GridBase::~GridBase()
{
    // Before the frame: the area asks its grid for colours until it goes.
    delete m_view;
}

bool GridBase::loadTranslation(const QString &language)
{
    initResources();
    static QTranslator english;
    if (language.isEmpty() || language.startsWith(QLatin1String("zh"))) {
        QCoreApplication::removeTranslator(&english);
        return true;
    }
    if (!language.startsWith(QLatin1String("en")) ||
        !english.load(QStringLiteral(":/gridcontrol/gridcontrol_en.qm")))
        return false;
    return QCoreApplication::installTranslator(&english);
}

void GridBase::setRootView(GridViewBase *view)
{
    delete m_view;
    m_view = view;
    const int border = view->options().borderWidth();
    layout()->setContentsMargins(border, border, border, border);
    layout()->addWidget(view->area());
    setFocusProxy(view->area());
    view->area()->metricsChanged();
    view->area()->appearanceChanged();
}

void GridBase::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    const bool looks = event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange ||
                       event->type() == QEvent::ApplicationPaletteChange;
    if (looks && m_view)
        m_view->area()->appearanceChanged();
    if (event->type() == QEvent::FontChange && m_view)
        m_view->area()->metricsChanged();
    if (event->type() == QEvent::LanguageChange && m_view)
        m_view->area()->viewport()->update();
}

Grid::Grid(QWidget *parent)
    : GridBase(parent)
{
    setViewType(PlainTableView);
    connect(this, &Grid::colorsChanged, this, [this] {
        rootView()->area()->appearanceChanged();
        update();
    });
}

Grid::~Grid() = default;

void Grid::setViewType(int type)
{
    m_viewType = type == BandedTableView ? BandedTableView : PlainTableView;
    if (m_viewType == BandedTableView)
        setRootView(new GridBandedTableView(this));
    else
        setRootView(new GridTableView(this));
}

GridColors Grid::colors() const
{
    GridColors colors = GridColors::fromPalettes(palette(), themeManager()->shadePalette());
    const std::initializer_list<std::pair<const QColor &, QColor &>> own{
        {m_panel, colors.panel},
        {m_text, colors.text},
        {m_headerBackground, colors.headerBackground},
        {m_headerText, colors.headerText},
        {m_line, colors.line},
        {m_strongLine, colors.strongLine},
        {m_alternate, colors.alternate},
        {m_hover, colors.hover},
        {m_selection, colors.selection},
        {m_selectionText, colors.selectionText},
        {m_link, colors.link},
        {m_muted, colors.muted}};
    for (const auto &color : own)
        if (color.first.isValid())
            color.second = color.first;
    // Accent and focus follow the link colour until they are set.
    colors.accent = m_accent.isValid() ? m_accent : colors.link;
    colors.focus = m_focus.isValid() ? m_focus : colors.accent;
    colors.softLine = mixed(colors.line, colors.panel, 0.5);
    return colors;
}

void Grid::paintEvent(QPaintEvent *)
{
    const QRect inner = layout()->contentsRect();
    QPainter painter(this);
    for (const QRect &side : QRegion(rect()) - inner)
        painter.fillRect(side, rootView()->area()->colors().strongLine);
}

} // namespace Qtitan
