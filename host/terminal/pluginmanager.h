#pragma once

#include "plugininfo.h"

#include <QObject>

#include <memory>
#include <vector>

class IPlugin;
class QPluginLoader;

/// Finds the plug-ins in their folders and brings them to work in the order of their dependencies.
///
/// A plug-in that cannot work stays in the list with a state and a reason; nothing that it does wrong stops
/// the terminal or the other plug-ins.
class PluginManager : public QObject
{
    Q_OBJECT

public:
    explicit PluginManager(QObject *parent = nullptr);
    /// Deletes the plug-ins in the reverse order of their start; their pages must be gone by then.
    ~PluginManager() override;

    /// Reads, loads and initializes the libraries in \a folders. To be called once.
    void load(const QStringList &folders);
    /// Gives the plug-ins their last call, in the reverse order of their start.
    void shutdown();

    const std::vector<PluginInfo> &plugins() const { return m_specs; }
    /// Folders that load() searched.
    QStringList folders() const { return m_folders; }
    /// "name: reason" of each plug-in that is not at work, ready to be shown.
    QStringList faults() const;

signals:
    void loaded();

private:
    void find();
    void resolve();
    void visit(int index, std::vector<int> *marks);
    QString missingDependency(const PluginInfo &info, std::vector<int> *marks);
    void start(PluginInfo *info);
    void delayedInitializeNext(int index);

    std::vector<PluginInfo> m_specs;
    QStringList m_folders;
    std::vector<int> m_order; ///< indices of the resolved plug-ins, what others depend on first
    std::vector<std::unique_ptr<IPlugin>> m_started;
};
