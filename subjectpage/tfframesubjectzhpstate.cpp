#include "tfframesubjectzhpstate.h"

#include "records/tfcategories.h"

#include <QStringList>
#include <QVersionNumber>

#include <algorithm>
#include <iterator>

namespace {
constexpr QLatin1String versionKey("version");
constexpr QLatin1String titleVisibleKey("titleVisible");
constexpr QLatin1String filterVisibleKey = TFFrameState::FilterVisible;
constexpr QLatin1String subViewVisibleKey = TFFrameState::SubViewVisible;
constexpr QLatin1String pageBarVisibleKey = TFFrameState::PageBarVisible;
constexpr QLatin1String mainViewVisibleKey("mainViewVisible");
constexpr QLatin1String objVwIdKey("objVwId");
constexpr QLatin1String titleKey("title");
constexpr QLatin1String binderKeyKey("objVwIdBinder");
constexpr QLatin1String filterMapKey("filterMap");

const QString presentVersion = QStringLiteral("1.0.0");
const QString noVersion = QStringLiteral("0.0.0");

struct KeyType
{
    QLatin1String key;
    QMetaType::Type type;
};
constexpr KeyType keyTypes[] = {{versionKey, QMetaType::QString},     {titleVisibleKey, QMetaType::Bool},
                                {filterVisibleKey, QMetaType::Bool},  {mainViewVisibleKey, QMetaType::Bool},
                                {subViewVisibleKey, QMetaType::Bool}, {pageBarVisibleKey, QMetaType::Bool},
                                {objVwIdKey, QMetaType::LongLong},    {titleKey, QMetaType::QString},
                                {binderKeyKey, QMetaType::QString},   {filterMapKey, QMetaType::QVariantMap}};

/// Hosts keep states as texts too, so what converts is as good as what has the type.
bool isUsable(QVariant value, QMetaType::Type type)
{
    return value.canConvert(type) && value.convert(type);
}

void reportKeys(const QVariantMap &map)
{
    QStringList missing;
    for (const KeyType &known : keyTypes) {
        const QVariant value = map.value(known.key);
        if (!value.isValid())
            missing.append(known.key);
        else if (!isUsable(value, known.type))
            qCWarning(lcScreen).noquote().nospace()
                << "saved state: \"" << known.key << "\" is a " << value.typeName() << ", not a "
                << QMetaType::typeName(known.type) << ", and is left out";
    }
    if (!missing.isEmpty())
        qCDebug(lcScreen) << "saved state: missing keys" << missing;

    QStringList unknown = map.keys();
    const auto isKnown = [](const QString &key) {
        return std::any_of(std::begin(keyTypes), std::end(keyTypes),
                           [&key](const KeyType &known) { return key == known.key; });
    };
    unknown.erase(std::remove_if(unknown.begin(), unknown.end(), isKnown), unknown.end());
    if (!unknown.isEmpty())
        qCDebug(lcScreen) << "saved state: unknown keys" << unknown;
}

void reportVersion(const QString &version)
{
    if (version == presentVersion || version == noVersion)
        return;
    const bool isNewer = QVersionNumber::fromString(version) > QVersionNumber::fromString(presentVersion);
    if (isNewer)
        qCWarning(lcScreen).noquote()
            << "saved state: version" << version << "is newer than" << presentVersion << "and read as that";
    else
        qCDebug(lcScreen) << "saved state: version" << version << "is read as" << presentVersion;
}
} // namespace

TFFrameState TFFrameState::read(const QVariantMap &map)
{
    reportKeys(map);
    TFFrameState state;
    state.version = map.value(versionKey, noVersion).toString();
    reportVersion(state.version);
    state.titleVisible = map.value(titleVisibleKey).toBool();
    state.filterVisible = map.value(filterVisibleKey).toBool();
    state.mainViewVisible = map.value(mainViewVisibleKey).toBool();
    state.subViewVisible = map.value(subViewVisibleKey).toBool();
    state.pageBarVisible = map.value(pageBarVisibleKey).toBool();
    state.objVwId = map.value(objVwIdKey).toLongLong();
    state.title = map.value(titleKey).toString();
    state.binderKey = map.value(binderKeyKey).toString();
    state.filterMap = map.value(filterMapKey).toMap();
    return state;
}

void TFFrameState::write(QVariantMap &map) const
{
    map.insert(versionKey, presentVersion);
    map.insert(titleVisibleKey, titleVisible);
    map.insert(filterVisibleKey, filterVisible);
    map.insert(mainViewVisibleKey, mainViewVisible);
    map.insert(subViewVisibleKey, subViewVisible);
    map.insert(pageBarVisibleKey, pageBarVisible);
    map.insert(objVwIdKey, objVwId);
    map.insert(titleKey, title);
    map.insert(binderKeyKey, binderKey);
    map.insert(filterMapKey, filterMap);
}

bool TFFrameState::hasFilterMap() const
{
    return version != noVersion;
}
