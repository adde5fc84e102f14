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
    for (const PluginSpec &spec : m_specs) {
        if (spec.reason.isEmpty())
            continue;
        const QString name = spec.name.isEmpty() ? QFileInfo(spec.filePath).fileName() : spec.name;
        lines.append(name + ": " + spec.reason);
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
            PluginSpec spec = PluginSpec::read(file.absoluteFilePath());
            const auto same = [&](const PluginSpec &other) {
                return other.state != PluginSpec::Invalid && other.name == spec.name;
            };
            const auto twin = std::find_if(m_specs.begin(), m_specs.end(), same);
            if (spec.state != PluginSpec::Invalid && twin != m_specs.end()) {
                spec.state = PluginSpec::Invalid;
                spec.reason = tr("a plug-in of this name was found before, in %1").arg(twin->filePath);
            }
            m_specs.push_back(spec);
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
    PluginSpec &spec = m_specs[size_t(index)];
    int &mark = (*marks)[size_t(index)];
    if (mark != Unvisited || spec.state != PluginSpec::Read)
        return;
    mark = InWork;
    const QString fault = missingDependency(spec, marks);
    mark = Done;
    if (fault.isEmpty()) {
        spec.state = PluginSpec::Resolved;
        m_order.push_back(index);
    } else {
        spec.state = PluginSpec::Failed;
        spec.reason = fault;
    }
}

QString PluginManager::missingDependency(const PluginSpec &spec, std::vector<int> *marks)
{
    for (const PluginDependency &dependency : spec.dependencies) {
        const auto fits = [&](const PluginSpec &other) { return other.provides(dependency); };
        const auto found = std::find_if(m_specs.begin(), m_specs.end(), fits);
        if (found == m_specs.end())
            return tr("needs %1 %2, which is not there").arg(dependency.name, dependency.version.toString());
        const int index = int(found - m_specs.begin());
        if ((*marks)[size_t(index)] == InWork)
            return tr("depends on itself by way of %1").arg(dependency.name);
        visit(index, marks);
        if (found->state != PluginSpec::Resolved)
            return tr("needs %1, which does not work: %2").arg(dependency.name, found->reason);
    }
    return {};
}

void PluginManager::start(PluginSpec *spec)
{
    const auto fail = [spec](const QString &reason) {
        spec->state = PluginSpec::Failed;
        spec->reason = reason;
    };
    for (const PluginDependency &dependency : spec->dependencies) {
        const bool works = std::any_of(m_specs.begin(), m_specs.end(), [&](const PluginSpec &other) {
            return other.isAtWork() && other.provides(dependency);
        });
        if (!works)
            return fail(tr("needs %1, which did not start").arg(dependency.name));
    }
    QPluginLoader loader(spec->filePath);
    QObject *root = loader.instance();
    if (!root)
        return fail(loader.errorString());
    std::unique_ptr<IPlugin> plugin(qobject_cast<IPlugin *>(root));
    if (!plugin) {
        delete root;
        return fail(tr("its class is not derived from IPlugin"));
    }
    spec->state = PluginSpec::Loaded;
    QString error;
    if (!plugin->initialize(spec->arguments, &error))
        return fail(error.isEmpty() ? tr("it refused to start and gave no reason") : error);
    spec->state = PluginSpec::Initialized;
    qCDebug(lcPlugin) << "initialized" << spec->name << spec->version.toString() << spec->filePath;
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
