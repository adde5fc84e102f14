#include "pagetabs.h"

#include "pagetab.h"

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

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
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &PageTabs::close);
    connect(m_tabs, &QTabWidget::currentChanged, this, &PageTabs::tellCurrent);
}

void PageTabs::open(const QUrl &url)
{
    auto *tab = new PageTab(m_factory, url);
    listenTo(tab);
    m_tabs->addTab(tab, shortened(tab->title()));
    m_tabs->setCurrentWidget(tab);
    updateShown();
    tab->open();
}

void PageTabs::listenTo(PageTab *tab)
{
    connect(tab, &PageTab::titleChanged, this, [this, tab](const QString &title) {
        m_tabs->setTabText(m_tabs->indexOf(tab), shortened(title));
        m_tabs->setTabToolTip(m_tabs->indexOf(tab), title);
        tellCurrent();
    });
    connect(tab, &PageTab::iconChanged, this,
            [this, tab](const QIcon &icon) { m_tabs->setTabIcon(m_tabs->indexOf(tab), icon); });
    connect(tab, &PageTab::urlChanged, this, &PageTabs::tellCurrent);
    connect(tab, &PageTab::openRequested, this, &PageTabs::openRequested);
}

PageTab *PageTabs::current() const
{
    return qobject_cast<PageTab *>(m_tabs->currentWidget());
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

void PageTabs::closeCurrent()
{
    close(m_tabs->currentIndex());
}

void PageTabs::close(int index)
{
    QWidget *tab = m_tabs->widget(index);
    if (!tab)
        return;
    m_tabs->removeTab(index);
    tab->deleteLater();
    updateShown();
}

void PageTabs::reloadCurrent()
{
    if (PageTab *tab = current())
        tab->reload();
}

void PageTabs::reloadAll()
{
    for (int i = 0; i < m_tabs->count(); ++i)
        qobject_cast<PageTab *>(m_tabs->widget(i))->reload();
}

void PageTabs::step(int step)
{
    const int tabs = m_tabs->count();
    if (tabs > 0)
        m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + tabs) % tabs);
}

void PageTabs::tellCurrent()
{
    const PageTab *tab = current();
    emit currentChanged(tab ? tab->url() : QUrl(), tab ? tab->title() : QString());
}

void PageTabs::updateShown()
{
    setCurrentWidget(m_tabs->count() > 0 ? static_cast<QWidget *>(m_tabs) : m_hint);
}
