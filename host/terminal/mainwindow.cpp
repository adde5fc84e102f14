#include "mainwindow.h"

#include "activitypanel.h"
#include "addressbar.h"
#include "look.h"
#include "mainactions.h"
#include "noticebar.h"
#include "pagefactory.h"
#include "pagetabs.h"
#include "screen/screenmenu.h"
#include "topicmenu.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QMenuBar>
#include <QMessageBox>
#include <QVBoxLayout>

namespace {
constexpr QSize FirstSize(1400, 900);
constexpr int PanelHeight = 220;
} // namespace

MainWindow::MainWindow(const PageFactory *factory, QWidget *parent)
    : QMainWindow(parent)
    , m_factory(factory)
    , m_actions(new MainActions(this))
    , m_tabs(new PageTabs(factory))
    , m_notice(new NoticeBar)
    , m_activity(new ActivityPanel)
    , m_address(nullptr)
{
    setObjectName("TerminalWindow");
    resize(FirstSize);
    addDockWidget(Qt::BottomDockWidgetArea, m_activity);
    resizeDocks({m_activity}, {PanelHeight}, Qt::Vertical);
    m_activity->hide();
    m_activity->toggleViewAction()->setShortcut(QKeySequence(Qt::Key_F12));
    addAction(m_activity->toggleViewAction());
    m_address = new AddressBar(*m_actions, m_activity->toggleViewAction(), this);
    addToolBar(Qt::TopToolBarArea, m_address);

    auto *center = new QWidget;
    auto *layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_notice);
    layout->addWidget(m_tabs, 1);
    setCentralWidget(center);

    makeMenus();
    connectParts();
    retranslate();
    redraw();
}

void MainWindow::makeMenus()
{
    m_pageMenu = menuBar()->addMenu(QString());
    m_pageMenu->addActions({m_actions->newTab, m_actions->closeTab});
    m_pageMenu->addSeparator();
    m_pageMenu->addActions({m_actions->home, m_actions->reload, m_actions->goToAddress});
    m_pageMenu->addSeparator();
    m_pageMenu->addActions({m_actions->nextTab, m_actions->previousTab});
    m_pageMenu->addSeparator();
    m_pageMenu->addAction(m_actions->quit);

    m_topics = new TopicMenu(this);
    menuBar()->addMenu(m_topics);
    m_topics->menuAction()->setVisible(false);

    m_screens = new ScreenMenu(this);
    menuBar()->addMenu(m_screens);
    m_address->addScreens(m_screens);

    m_viewMenu = menuBar()->addMenu(QString());
    m_skinMenu = m_viewMenu->addMenu(QString());
    m_languageMenu = m_viewMenu->addMenu(QString());
    m_languageMenu->addActions(m_actions->languages->actions());
    m_viewMenu->addSeparator();
    m_viewMenu->addActions({m_activity->toggleViewAction(), m_actions->service});
    connect(m_skinMenu, &QMenu::aboutToShow, this, [this] {
        m_skinMenu->clear();
        m_skinMenu->addActions(m_actions->skins->actions());
    });

    m_helpMenu = menuBar()->addMenu(QString());
    m_helpMenu->addAction(m_actions->about);
}

void MainWindow::connectParts()
{
    connect(m_actions->newTab, &QAction::triggered, this, &MainWindow::openHome);
    connect(m_actions->home, &QAction::triggered, this, &MainWindow::openHome);
    connect(m_actions->closeTab, &QAction::triggered, m_tabs, &PageTabs::closeCurrent);
    connect(m_actions->reload, &QAction::triggered, m_tabs, &PageTabs::reloadCurrent);
    connect(m_actions->nextTab, &QAction::triggered, m_tabs, [this] { m_tabs->step(1); });
    connect(m_actions->previousTab, &QAction::triggered, m_tabs, [this] { m_tabs->step(-1); });
    connect(m_actions->goToAddress, &QAction::triggered, m_address, &AddressBar::focusAddress);
    connect(m_actions->about, &QAction::triggered, this, &MainWindow::showAbout);
    connect(m_actions->quit, &QAction::triggered, this, &QWidget::close);
    connect(m_address, &AddressBar::entered, this, &MainWindow::openStringUrl);
    connect(m_tabs, &PageTabs::openRequested, this, &MainWindow::openStringUrl);
    connect(m_topics, &TopicMenu::chosen, m_tabs, &PageTabs::open);
    connect(m_tabs, &PageTabs::currentChanged, this, [this](const QUrl &url, const QString &title) {
        m_address->setUrl(url);
        m_pageTitle = title;
        updateTitle();
    });
}

void MainWindow::openHome()
{
    const QUrl home = m_factory->homeUrl();
    if (home.isEmpty())
        m_notice->tell(NoticeBar::Page, tr("No plug-in has a home page."));
    else
        m_tabs->open(home);
}

void MainWindow::openStringUrl(QString url)
{
    if (url.isEmpty())
        return;
    m_notice->tell(NoticeBar::Page, QString());
    const QUrl address(url);
    if (PageFactory::isPageUrl(address))
        m_tabs->open(address);
    else if (!QDesktopServices::openUrl(QUrl::fromUserInput(url)))
        m_notice->tell(NoticeBar::Page, tr("Nothing on this computer opens %1").arg(url));
}

void MainWindow::showPageAlone()
{
    setAttribute(Qt::WA_DontShowOnScreen);
    menuBar()->hide();
    m_address->hide();
    m_tabs->hideTabBar();
    show();
}

void MainWindow::redraw()
{
    setWindowIcon(Look::icon("terminal"));
    m_actions->redraw();
    m_address->redraw();
    m_screens->redraw();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_tabs->mayClose()) {
        event->ignore();
        return;
    }
    emit closing();
    QMainWindow::closeEvent(event);
}

void MainWindow::retranslate()
{
    m_pageMenu->setTitle(tr("&Page"));
    m_topics->setTitle(tr("&Topics"));
    m_viewMenu->setTitle(tr("&View"));
    m_skinMenu->setTitle(tr("&Skin"));
    m_languageMenu->setTitle(tr("&Language"));
    m_helpMenu->setTitle(tr("&Help"));
    m_screens->retranslate();
    m_actions->retranslate();
    updateTitle();
}

void MainWindow::showAbout()
{
    QMessageBox::about(
        this, tr("About the terminal"),
        tr("Terminal for pages of financial data, version %1").arg(QCoreApplication::applicationVersion()));
}

void MainWindow::updateTitle()
{
    const QString wish = m_topics->windowTitleWish();
    const QString name = wish.isEmpty() ? tr("Terminal") : wish;
    setWindowTitle(m_pageTitle.isEmpty() ? name : m_pageTitle + " - " + name);
}
