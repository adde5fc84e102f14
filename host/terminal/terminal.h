#pragma once

#include "endpoint.h"
#include "options.h"
#include "serviceprocess.h"
#include "settings.h"

#include <QObject>

#include <memory>

class ComponentCatalog;
class Languages;
class Look;
class MainWindow;
class MessageCollector;
class PageFactory;
class PluginManager;
class RenderRun;
class Screens;

/// The running application: brings up the window, the plug-ins and the data service side by side, and opens
/// the first pages when all are there.
class Terminal : public QObject
{
    Q_OBJECT

public:
    explicit Terminal(const Options &options, QObject *parent = nullptr);
    ~Terminal() override;

    /// Shows the window and starts everything else behind it.
    void start();

    MainWindow &window() { return *m_window; }
    Screens &screens() { return *m_screens; }

private:
    void makeWindow();
    void connectWindow();
    void restoreWindow();
    void loadPlugins();
    void useEndpoint(const Endpoint &endpoint);
    void startService();
    void tellServiceStart();
    void useService(const QUrl &address);
    void serviceFailed(const QString &reason);
    void openFirstPages();
    void askEndpoint();
    void setSkin(const QString &skin);
    void setLanguage(const QString &code);
    void fillTopics();
    void takeScreenshot();
    void writeScreenshot(bool settled);
    void shutdown();
    QString skinFault() const;
    void render();
    bool isRendering() const { return m_options.render.isWanted(); }
    bool isInteractive() const { return m_options.screenshot.isEmpty() && !isRendering(); }

    Options m_options;
    Settings m_settings;
    Endpoint m_endpoint;
    bool m_pluginsLoaded = false;
    bool m_serviceKnown = false;
    bool m_pagesOpened = false;
    // In the order of making; the window and its pages go first, the plug-ins that made them after it.
    std::unique_ptr<MessageCollector> m_messages;
    std::unique_ptr<Languages> m_languages;
    std::unique_ptr<Look> m_look;
    std::unique_ptr<PluginManager> m_plugins;
    std::unique_ptr<PageFactory> m_factory;
    std::unique_ptr<ComponentCatalog> m_catalog;
    std::unique_ptr<ServiceProcess> m_service;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Screens> m_screens;
    std::unique_ptr<RenderRun> m_render;
};
