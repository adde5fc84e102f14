#include "plugininfo.h"

#include "tfcore/iplugin.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

namespace {
const char IidKey[] = "IID";
const char MetaDataKey[] = "MetaData";
const char NameKey[] = "Name";
const char VersionKey[] = "Version";
const char CompatVersionKey[] = "CompatVersion";
const char RequiredKey[] = "Required";
const char CategoryKey[] = "Category";
const char ArgumentsKey[] = "Arguments";
const char DependenciesKey[] = "Dependencies";
const char UrlKey[] = "Url";
const char DescriptionKey[] = "Description";
const char ComponentsKey[] = "Components";

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginInfo)
};

/// A dependency is a name, or an object with the keys Name and Version.
PluginDependency readDependency(const QJsonValue &value)
{
    if (value.isString())
        return {value.toString(), {}};
    const QJsonObject object = value.toObject();
    return {object.value(NameKey).toString(),
            QVersionNumber::fromString(object.value(VersionKey).toString())};
}

void readMetaData(const QJsonObject &data, PluginInfo *info)
{
    info->name = data.value(NameKey).toString();
    info->version = QVersionNumber::fromString(data.value(VersionKey).toString());
    info->compatVersion = data.contains(CompatVersionKey)
                              ? QVersionNumber::fromString(data.value(CompatVersionKey).toString())
                              : info->version;
    info->required = data.value(RequiredKey).toBool();
    info->category = data.value(CategoryKey).toString();
    for (const QJsonValue &argument : data.value(ArgumentsKey).toArray())
        info->arguments.append(argument.toString());
    for (const QJsonValue &dependency : data.value(DependenciesKey).toArray())
        info->dependencies.append(readDependency(dependency));
    info->url = QUrl(data.value(UrlKey).toString());
    info->description = data.value(DescriptionKey).toString();
    const QJsonObject components = data.value(ComponentsKey).toObject();
    for (auto it = components.begin(); it != components.end(); ++it) {
        const QJsonObject names = it.value().toObject();
        for (auto name = names.begin(); name != names.end(); ++name)
            info->components[it.key()][name.key()] = name.value().toString();
    }
}

QString faultOf(const QJsonObject &metaData, const PluginInfo &info)
{
    const QString iid = metaData.value(IidKey).toString();
    if (metaData.isEmpty())
        return Texts::tr("not a plug-in");
    if (iid != TF_APP_PLUGIN_IID)
        return Texts::tr("interface \"%1\" where \"%2\" is expected").arg(iid, TF_APP_PLUGIN_IID);
    if (info.name.isEmpty())
        return Texts::tr("the metadata has no text under \"%1\"").arg(NameKey);
    if (info.version.isNull())
        return Texts::tr("the metadata has no version number under \"%1\"").arg(VersionKey);
    return {};
}
} // namespace

bool PluginInfo::provides(const PluginDependency &dependency) const
{
    if (name != dependency.name)
        return false;
    return dependency.version.isNull() ||
           (compatVersion <= dependency.version && dependency.version <= version);
}

const char *PluginInfo::stateName(State state)
{
    static const char *const names[] = {
        QT_TRANSLATE_NOOP("PluginInfo", "Invalid"),     QT_TRANSLATE_NOOP("PluginInfo", "Read"),
        QT_TRANSLATE_NOOP("PluginInfo", "Resolved"),    QT_TRANSLATE_NOOP("PluginInfo", "Loaded"),
        QT_TRANSLATE_NOOP("PluginInfo", "Initialized"), QT_TRANSLATE_NOOP("PluginInfo", "Failed")};
    return names[state];
}

PluginInfo PluginInfo::read(const QString &filePath)
{
    PluginInfo info;
    info.filePath = filePath;
    const QJsonObject metaData = QPluginLoader(filePath).metaData();
    readMetaData(metaData.value(MetaDataKey).toObject(), &info);
    info.reason = faultOf(metaData, info);
    info.state = info.reason.isEmpty() ? Read : Invalid;
    return info;
}
