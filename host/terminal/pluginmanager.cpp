#include "pluginmanager.h"

#include "terminallog.h"
#include "tfcore/iplugin.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>
#include <QTimer>

#include <algorithm>

namespace {
enum Mark { Unvisited, InWork, Done };
}

PluginManager::PluginManager(QObject *parent)
    : QObject(parent)
{}

PluginManager::~PluginManager()
{
    while (!m_started.empty())
        m_started.pop_back();
}

void PluginManager::load(const QStringList &folders)
{
    for (const QString &folder : folders)
        m_folders.append(QDir(folder).absolutePath());
    m_folders.removeDuplicates();
    find();
    resolve();
    for (int index : m_order)
        start(&m_specs[size_t(index)]);
    for (auto it = m_started.rbegin(); it != m_started.rend(); ++it)
        (*it)->extensionsInitialized();
    for (const QString &fault : faults())
        qCWarning(lcPlugin).noquote() << fault;
    emit loaded();
    QTimer::singleShot(0, this, [this] { delayedInitializeNext(0); });
}

void PluginManager::shutdown()
{
    for (auto it = m_started.rbegin(); it != m_started.rend(); ++it)
        (*it)->aboutToShutdown();
}

QStringList PluginManager::faults() const
{
    QStringList lines;
    for (const PluginInfo &info : m_specs) {
        if (info.reason.isEmpty())
            continue;
        const QString name = info.name.isEmpty() ? QFileInfo(info.filePath).fileName() : info.name;
        lines.append(name + ": " + info.reason);
    }
    return lines;
}

void PluginManager::find()
{
    for (const QString &folder : qAsConst(m_folders)) {
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo &file : files) {
            if (!QLibrary::isLibrary(file.fileName()))
                continue;
            PluginInfo info = PluginInfo::read(file.absoluteFilePath());
            const auto same = [&](const PluginInfo &other) {
                return other.state != PluginInfo::Invalid && other.name == info.name;
            };
            const auto twin = std::find_if(m_specs.begin(), m_specs.end(), same);
            if (info.state != PluginInfo::Invalid && twin != m_specs.end()) {
                info.state = PluginInfo::Invalid;
                info.reason = tr("a plug-in of this name was found before, in %1").arg(twin->filePath);
            }
            m_specs.push_back(info);
        }
    }
}

void PluginManager::resolve()
{
    std::vector<int> marks(m_specs.size(), Unvisited);
    for (int i = 0; i < int(m_specs.size()); ++i)
        visit(i, &marks);
}

void PluginManager::visit(int index, std::vector<int> *marks)
{
    PluginInfo &info = m_specs[size_t(index)];
    int &mark = (*marks)[size_t(index)];
    if (mark != Unvisited || info.state != PluginInfo::Read)
        return;
    mark = InWork;
    const QString fault = missingDependency(info, marks);
    mark = Done;
    if (fault.isEmpty()) {
        info.state = PluginInfo::Resolved;
        m_order.push_back(index);
    } else {
        info.state = PluginInfo::Failed;
        info.reason = fault;
    }
}

QString PluginManager::missingDependency(const PluginInfo &info, std::vector<int> *marks)
{
    for (const PluginDependency &dependency : info.dependencies) {
        const auto fits = [&](const PluginInfo &other) { return other.provides(dependency); };
        const auto found = std::find_if(m_specs.begin(), m_specs.end(), fits);
        if (found == m_specs.end())
            return tr("needs %1 %2, which is not there").arg(dependency.name, dependency.version.toString());
        const int index = int(found - m_specs.begin());
        if ((*marks)[size_t(index)] == InWork)
            return tr("depends on itself by way of %1").arg(dependency.name);
        visit(index, marks);
        if (found->state != PluginInfo::Resolved)
            return tr("needs %1, which does not work: %2").arg(dependency.name, found->reason);
    }
    return {};
}

void PluginManager::start(PluginInfo *info)
{
    const auto fail = [info](const QString &reason) {
        info->state = PluginInfo::Failed;
        info->reason = reason;
    };
    for (const PluginDependency &dependency : info->dependencies) {
        const bool works = std::any_of(m_specs.begin(), m_specs.end(), [&](const PluginInfo &other) {
            return other.isAtWork() && other.provides(dependency);
        });
        if (!works)
            return fail(tr("needs %1, which did not start").arg(dependency.name));
    }
    QPluginLoader loader(info->filePath);
    QObject *root = loader.instance();
    if (!root)
        return fail(loader.errorString());
    std::unique_ptr<IPlugin> plugin(qobject_cast<IPlugin *>(root));
    if (!plugin) {
        delete root;
        return fail(tr("its class is not derived from IPlugin"));
    }
    info->state = PluginInfo::Loaded;
    QString error;
    if (!plugin->initialize(info->arguments, &error))
        return fail(error.isEmpty() ? tr("it refused to start and gave no reason") : error);
    info->state = PluginInfo::Initialized;
    qCDebug(lcPlugin) << "initialized" << info->name << info->version.toString() << info->filePath;
    m_started.push_back(std::move(plugin));
}

void PluginManager::delayedInitializeNext(int index)
{
    // One that did some work lets the window breathe before the next has its turn.
    while (index < int(m_started.size())) {
        if (m_started[size_t(index++)]->delayedInitialize()) {
            QTimer::singleShot(20, this, [this, index] { delayedInitializeNext(index); });
            return;
        }
    }
}
