#include "terminal.h"

#include "activitypanel.h"
#include "endpointdialog.h"
#include "languages.h"
#include "look.h"
#include "mainactions.h"
#include "mainwindow.h"
#include "messagecollector.h"
#include "noticebar.h"
#include "pagefactory.h"
#include "pagesettler.h"
#include "pagetabs.h"
#include "pluginmanager.h"
#include "programfolders.h"
#include "render/renderrun.h"
#include "screen/componentcatalog.h"
#include "screen/screens.h"
#include "terminallog.h"
#include "tfcore/tfappconfig.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfrequestlog.h"
#include "tfcore/tfserviceconfig.h"
#include "topicmenu.h"

#include <QAction>
#include <QApplication>
#include <QLoggingCategory>
#include <QThreadPool>
#include <QTimer>

#include <cstdio>

/// A library's resources are not linked unless something asks for them.
static void initResources()
{
    Q_INIT_RESOURCE(terminal);
    Q_INIT_RESOURCE(catalogues);
}

namespace {
const char ServiceKey[] = "servercfg.ini:Subject";
constexpr int ScreenshotTimeoutMs = 60000;
constexpr int LeastServicePatienceMs = 10000;

enum ExitCode { Shown = 0, NotShown = 1, WrongUsage = 2, TimedOut = 3 };

/// \a stored with what the command line says instead.
Endpoint effectiveEndpoint(Endpoint stored, const Options &options)
{
    // Who names a database to render from means that one.
    if (options.render.isWanted() && !(options.database + options.views).isEmpty())
        stored.service = QUrl();
    if (options.service)
        stored.service = QUrl(*options.service);
    stored.user = options.user.value_or(stored.user);
    stored.product = options.product.value_or(stored.product);
    stored.token = options.token.value_or(stored.token);
    return stored;
}

QString orElse(const QString &text, const QString &other)
{
    return text.isEmpty() ? other : text;
}
} // namespace

Terminal::Terminal(const Options &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_settings(ProgramFolders::config().first())
    , m_endpoint(effectiveEndpoint(m_settings.endpoint(), options))
    , m_messages(std::make_unique<MessageCollector>())
    , m_languages(std::make_unique<Languages>())
    , m_look(std::make_unique<Look>())
    , m_plugins(std::make_unique<PluginManager>())
    , m_factory(std::make_unique<PageFactory>(m_plugins.get()))
    , m_catalog(std::make_unique<ComponentCatalog>(m_plugins.get()))
    , m_service(std::make_unique<ServiceProcess>())
{
    initResources();
}

Terminal::~Terminal() = default;

void Terminal::start()
{
    if (m_options.verbose)
        QLoggingCategory::setFilterRules("subject.*.debug=true\nhost.*.debug=true");
    if (isRendering()) // nobody looks at a window meanwhile
        m_service->setStartTimeout(qMax(LeastServicePatienceMs, m_options.render.timeoutMs));
    // Queued: it is started before there is a window to tell of it.
    connect(m_service.get(), &ServiceProcess::ready, this, &Terminal::useService, Qt::QueuedConnection);
    connect(m_service.get(), &ServiceProcess::failed, this, &Terminal::serviceFailed, Qt::QueuedConnection);
    m_languages->set(m_options.language.value_or(m_settings.language()));
    TFCore::instance()->setConfigFolders(ProgramFolders::config());
    TFCore::instance()->setSkinRoot(orElse(m_options.skinPath, ProgramFolders::skins()));
    const QString fault = isRendering() ? skinFault() : QString();
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(fault));
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(WrongUsage); });
        return;
    }
    useEndpoint(m_endpoint); // first, so that the service comes up while the window is made
    m_look->prepare(qApp);
    m_look->setSkin(m_options.skin.value_or(m_settings.skin()));
    makeWindow();
    if (isRendering())
        m_window->showPageAlone();
    else
        m_window->show();
    QTimer::singleShot(0, this, &Terminal::loadPlugins);
}

QString Terminal::skinFault() const
{
    const QStringList skins = TFCore::instance()->skins();
    if (!m_options.skin || skins.contains(*m_options.skin))
        return {};
    return QString("--skin: %1 is not one of %2").arg(*m_options.skin, skins.join(", "));
}

void Terminal::makeWindow()
{
    m_window = std::make_unique<MainWindow>(m_factory.get());
    TFCore *core = TFCore::instance();
    core->setMainWindow(m_window.get());
    m_window->actions().setSkins(core->skins(), core->getCurrentSkinId());
    m_window->actions().setLanguage(m_languages->current());
    m_screens = std::make_unique<Screens>(m_catalog.get(), m_window.get(), &m_settings);
    connectWindow();
    restoreWindow();
    if (m_endpoint.isLocal())
        tellServiceStart();
}

void Terminal::connectWindow()
{
    MainWindow *window = m_window.get();
    connect(&window->actions(), &MainActions::skinChosen, this, &Terminal::setSkin);
    connect(&window->actions(), &MainActions::languageChosen, this, &Terminal::setLanguage);
    connect(window->actions().service, &QAction::triggered, this, &Terminal::askEndpoint);
    connect(&window->notice(), &NoticeBar::serviceActionTriggered, this, &Terminal::startService);
    connect(window, &MainWindow::closing, this, &Terminal::shutdown);
    connect(TFCore::instance(), &TFCore::signalSkinChanged, window, &MainWindow::redraw);
    connect(TFRequestLog::instance(), &TFRequestLog::finished, &window->activity(),
            &ActivityPanel::addRequest);
    connect(m_messages.get(), &MessageCollector::message, &window->activity(), &ActivityPanel::addMessage);
}

void Terminal::restoreWindow()
{
    if (isInteractive()) {
        m_window->restoreGeometry(m_settings.geometry());
        m_window->restoreState(m_settings.windowState());
    }
    if (m_options.size.isValid())
        m_window->resize(m_options.size);
}

void Terminal::loadPlugins()
{
    m_plugins->load(m_options.pluginPaths + ProgramFolders::plugins());
    m_languages->setPluginFolders(m_plugins->folders());
    m_window->activity().showPlugins(*m_plugins);
    const QStringList faults = m_plugins->faults();
    if (!faults.isEmpty())
        m_window->notice().tell(NoticeBar::Plugins, tr("Not all plug-ins work. %1").arg(faults.join("; ")));
    else if (m_plugins->plugins().empty())
        m_window->notice().tell(NoticeBar::Plugins,
                                tr("No plug-in was found in %1").arg(m_plugins->folders().join(", ")));
    fillTopics();
    m_pluginsLoaded = true;
    openFirstPages();
}

void Terminal::fillTopics()
{
    m_window->topics().fill(m_factory->homeUrl());
}

void Terminal::useEndpoint(const Endpoint &endpoint)
{
    m_endpoint = endpoint;
    TFAppConfig *config = TFAppConfig::instance();
    config->setUserInfo({endpoint.user, endpoint.user});
    config->setProuctId(endpoint.product);
    config->setAppToken(endpoint.token);
    if (endpoint.isLocal()) {
        startService();
    } else {
        m_service->stop();
        QTimer::singleShot(0, this, [this, address = endpoint.service] { useService(address); });
    }
}

void Terminal::startService()
{
    m_serviceKnown = false;
    if (m_window)
        tellServiceStart();
    m_service->start({ProgramFolders::serviceProgram(),
                      orElse(m_options.database, ProgramFolders::database()),
                      orElse(m_options.views, ProgramFolders::views())});
}

void Terminal::tellServiceStart()
{
    m_window->notice().tell(NoticeBar::Service, QString());
    m_window->tabs().setHint(tr("Starting the data service..."));
}

void Terminal::useService(const QUrl &address)
{
    TFServiceConfig::instance()->setHttpUrl(ServiceKey, address);
    m_serviceKnown = true;
    m_window->tabs().setHint(tr("No page is open. Ctrl+T opens the home page."));
    if (m_pagesOpened)
        m_window->tabs().reloadAll();
    else
        openFirstPages();
}

void Terminal::serviceFailed(const QString &reason)
{
    m_window->tabs().setHint(tr("There is no data service: %1").arg(reason));
    m_window->notice().setServiceAction(tr("Try again"));
    m_window->notice().tell(NoticeBar::Service, tr("There is no data service: %1").arg(reason));
    if (isRendering() && !m_pagesOpened)
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(NotShown); });
    else if (!isInteractive() && !isRendering())
        QTimer::singleShot(0, this, [this] { writeScreenshot(true); });
}

void Terminal::openFirstPages()
{
    if (!m_pluginsLoaded || !m_serviceKnown || m_pagesOpened)
        return;
    m_pagesOpened = true;
    if (isRendering()) {
        render();
        return;
    }
    if (m_options.pages.isEmpty() && m_options.screens.isEmpty())
        m_window->openHome();
    if (isInteractive())
        m_screens->openLast();
    for (const QString &page : qAsConst(m_options.pages))
        m_window->openStringUrl(page);
    for (const QString &screen : qAsConst(m_options.screens))
        m_screens->open(screen);
    if (!isInteractive())
        takeScreenshot();
}

void Terminal::askEndpoint()
{
    EndpointDialog dialog(m_endpoint, m_window.get());
    if (dialog.exec() != QDialog::Accepted || dialog.endpoint() == m_endpoint)
        return;
    m_settings.setEndpoint(dialog.endpoint());
    useEndpoint(dialog.endpoint());
}

void Terminal::setSkin(const QString &skin)
{
    if (m_look->setSkin(skin))
        m_settings.setSkin(skin);
}

void Terminal::setLanguage(const QString &code)
{
    m_settings.setLanguage(code);
    m_languages->set(code);
    fillTopics();
}

void Terminal::render()
{
    m_render = std::make_unique<RenderRun>(m_options.render, m_window.get(),
                                           [this](const QString &skin) { return m_look->setSkin(skin); });
    connect(m_render.get(), &RenderRun::finished, this, [this](int status) {
        shutdown();
        QCoreApplication::exit(status);
    });
    m_render->start();
}

void Terminal::takeScreenshot()
{
    auto *settler = new PageSettler(this);
    connect(settler, &PageSettler::settled, this, [this] { writeScreenshot(true); });
    connect(settler, &PageSettler::timedOut, this, [this] { writeScreenshot(false); });
    settler->start(ScreenshotTimeoutMs);
}

void Terminal::writeScreenshot(bool settled)
{
    const bool written = m_window->grab().save(m_options.screenshot);
    if (!written)
        qCWarning(lcTerminal).noquote() << "the picture cannot be written:" << m_options.screenshot;
    if (!settled)
        qCWarning(lcTerminal) << "the page did not come to rest in time";
    shutdown();
    const bool shown = written && m_window->tabs().count() > 0;
    QCoreApplication::exit(!shown ? NotShown : settled ? Shown : TimedOut);
}

void Terminal::shutdown()
{
    if (isInteractive()) {
        m_settings.setWindow(m_window->saveGeometry(), m_window->saveState());
        // Of a terminal that ends before it has opened any, the last ones stay.
        if (m_pagesOpened)
            m_screens->remember();
    }
    m_plugins->shutdown();
}
