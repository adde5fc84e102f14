#include "pagetabs.h"

#include "pagetab.h"

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace {
constexpr int TabTextWidth = 28;

/// Titles come from the service; one may be a sentence.
QString shortened(const QString &title)
{
    QString text = title.size() > TabTextWidth ? title.left(TabTextWidth - 1) + QChar(0x2026) : title;
    return text.replace('&', "&&");
}
} // namespace

PageTabs::PageTabs(const PageFactory *factory, QWidget *parent)
    : QStackedWidget(parent)
    , m_factory(factory)
    , m_tabs(new QTabWidget)
    , m_hint(new QLabel)
{
    m_hint->setObjectName("EmptyHint");
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_tabs->setObjectName("PageTabs");
    m_tabs->setDocumentMode(true);
    m_tabs->setMovable(true);
    m_tabs->setTabsClosable(true);
    m_tabs->setUsesScrollButtons(true);
    m_tabs->tabBar()->setExpanding(false);
    m_tabs->tabBar()->setDrawBase(false);
    addWidget(m_hint);
    addWidget(m_tabs);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, [this](int index) { close(at(index)); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &PageTabs::tellCurrent);
}

void PageTabs::open(const QUrl &url)
{
    add(new PageTab(m_factory, url));
}

void PageTabs::add(TerminalTab *tab)
{
    listenTo(tab);
    m_tabs->addTab(tab, shortened(tab->title()));
    m_tabs->setCurrentWidget(tab);
    updateShown();
    tab->open();
}

void PageTabs::show(TerminalTab *tab)
{
    m_tabs->setCurrentWidget(tab);
}

void PageTabs::listenTo(TerminalTab *tab)
{
    connect(tab, &TerminalTab::titleChanged, this, [this, tab](const QString &title) {
        m_tabs->setTabText(m_tabs->indexOf(tab), shortened(title));
        m_tabs->setTabToolTip(m_tabs->indexOf(tab), title);
        tellCurrent();
    });
    connect(tab, &TerminalTab::iconChanged, this,
            [this, tab](const QIcon &icon) { m_tabs->setTabIcon(m_tabs->indexOf(tab), icon); });
    connect(tab, &TerminalTab::urlChanged, this, &PageTabs::tellCurrent);
    connect(tab, &TerminalTab::openRequested, this, &PageTabs::openRequested);
}

TerminalTab *PageTabs::at(int index) const
{
    return qobject_cast<TerminalTab *>(m_tabs->widget(index));
}

TerminalTab *PageTabs::current() const
{
    return at(m_tabs->currentIndex());
}

QList<TerminalTab *> PageTabs::all() const
{
    QList<TerminalTab *> tabs;
    for (int i = 0; i < m_tabs->count(); ++i)
        tabs.append(at(i));
    return tabs;
}

bool PageTabs::mayClose()
{
    const QList<TerminalTab *> tabs = all();
    return std::all_of(tabs.begin(), tabs.end(), [](TerminalTab *tab) { return tab->mayClose(); });
}

int PageTabs::count() const
{
    return m_tabs->count();
}

void PageTabs::setHint(const QString &text)
{
    m_hint->setText(text);
}

QString PageTabs::hint() const
{
    return m_hint->text();
}

void PageTabs::hideTabBar()
{
    m_tabs->tabBar()->hide();
    // The line between tabs and page goes with them.
    m_tabs->setStyleSheet("#PageTabs::pane { border: 0; top: 0; }");
}

void PageTabs::closeAll()
{
    while (m_tabs->count() > 0)
        close(at(0));
}

void PageTabs::closeCurrent()
{
    close(current());
}

void PageTabs::close(TerminalTab *tab)
{
    if (!tab || !tab->mayClose())
        return;
    m_tabs->removeTab(m_tabs->indexOf(tab));
    tab->deleteLater();
    updateShown();
}

void PageTabs::reloadCurrent()
{
    if (TerminalTab *tab = current())
        tab->reload();
}

void PageTabs::reloadAll()
{
    for (TerminalTab *tab : all())
        tab->reload();
}

void PageTabs::step(int step)
{
    const int tabs = m_tabs->count();
    if (tabs > 0)
        m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + tabs) % tabs);
}

void PageTabs::tellCurrent()
{
    const TerminalTab *tab = current();
    emit currentChanged(tab ? tab->url() : QUrl(), tab ? tab->title() : QString());
}

void PageTabs::updateShown()
{
    setCurrentWidget(m_tabs->count() > 0 ? static_cast<QWidget *>(m_tabs) : m_hint);
}
