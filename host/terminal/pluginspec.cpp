#include "pluginspec.h"

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

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginSpec)
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

void readMetaData(const QJsonObject &data, PluginSpec *spec)
{
    spec->name = data.value(NameKey).toString();
    spec->version = QVersionNumber::fromString(data.value(VersionKey).toString());
    spec->compatVersion = data.contains(CompatVersionKey)
                              ? QVersionNumber::fromString(data.value(CompatVersionKey).toString())
                              : spec->version;
    spec->required = data.value(RequiredKey).toBool();
    spec->category = data.value(CategoryKey).toString();
    for (const QJsonValue &argument : data.value(ArgumentsKey).toArray())
        spec->arguments.append(argument.toString());
    for (const QJsonValue &dependency : data.value(DependenciesKey).toArray())
        spec->dependencies.append(readDependency(dependency));
    spec->url = QUrl(data.value(UrlKey).toString());
    spec->description = data.value(DescriptionKey).toString();
}

QString faultOf(const QJsonObject &metaData, const PluginSpec &spec)
{
    const QString iid = metaData.value(IidKey).toString();
    if (metaData.isEmpty())
        return Texts::tr("not a plug-in");
    if (iid != TF_APP_PLUGIN_IID)
        return Texts::tr("interface \"%1\" where \"%2\" is expected").arg(iid, TF_APP_PLUGIN_IID);
    if (spec.name.isEmpty())
        return Texts::tr("the metadata has no text under \"%1\"").arg(NameKey);
    if (spec.version.isNull())
        return Texts::tr("the metadata has no version number under \"%1\"").arg(VersionKey);
    return {};
}
} // namespace

bool PluginSpec::provides(const PluginDependency &dependency) const
{
    if (name != dependency.name)
        return false;
    return dependency.version.isNull() ||
           (compatVersion <= dependency.version && dependency.version <= version);
}

const char *PluginSpec::stateName(State state)
{
    static const char *const names[] = {
        QT_TRANSLATE_NOOP("PluginSpec", "Invalid"),     QT_TRANSLATE_NOOP("PluginSpec", "Read"),
        QT_TRANSLATE_NOOP("PluginSpec", "Resolved"),    QT_TRANSLATE_NOOP("PluginSpec", "Loaded"),
        QT_TRANSLATE_NOOP("PluginSpec", "Initialized"), QT_TRANSLATE_NOOP("PluginSpec", "Failed")};
    return names[state];
}

PluginSpec PluginSpec::read(const QString &filePath)
{
    PluginSpec spec;
    spec.filePath = filePath;
    const QJsonObject metaData = QPluginLoader(filePath).metaData();
    readMetaData(metaData.value(MetaDataKey).toObject(), &spec);
    spec.reason = faultOf(metaData, spec);
    spec.state = spec.reason.isEmpty() ? Read : Invalid;
    return spec;
}
