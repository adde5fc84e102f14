#include "tfmenucfg.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include "records/tfcategories.h"
#include "tfcore/tfserviceconfig.h"

namespace {
const QString menuFileName = QStringLiteral("/menu.json");
const QString menuResource = QStringLiteral(":/json/menu.json");

// Keys of the menu file.
constexpr QLatin1String keyMenubar("menubar");
constexpr QLatin1String keyMenu("menu");
constexpr QLatin1String keyMenuEnglish("menu_en");
constexpr QLatin1String keyCode("P_NODE_CODE");
constexpr QLatin1String keyItems("menuItem");
constexpr QLatin1String keySectorName("sectorName");
constexpr QLatin1String keySectorCode("sectorCode");
constexpr QLatin1String keyItemName("itemName");
constexpr QLatin1String keyViewId("obj_vw_id");
} // namespace

/// The resources of a static library are there only for who asks for them.
static void registerMenuResource()
{
    Q_INIT_RESOURCE(subjectmenu);
}

TFMenuCfg *TFMenuCfg::instance()
{
    static TFMenuCfg menu(QCoreApplication::applicationDirPath());
    return &menu;
}

TFMenuCfg::TFMenuCfg(const QString &applicationFolder, QObject *parent)
    : QObject(parent)
{
    registerMenuResource();
    const QString ownFile = applicationFolder + menuFileName;
    if (QFile::exists(ownFile))
        load(ownFile);
    else if (QFile::exists(menuResource))
        load(menuResource);
}

void TFMenuCfg::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(lcPage) << "menu file" << path << "can't be read:" << file.errorString();
        return;
    }
    parse(file.readAll());
}

void TFMenuCfg::parse(const QByteArray &json)
{
    if (json.isEmpty())
        return;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    const QJsonValue menubar = document.object().value(keyMenubar);
    if (error.error != QJsonParseError::NoError || !menubar.isArray()) {
        qCDebug(lcPage) << "menu file ignored, offset" << error.offset << error.errorString()
                        << ", menubar is" << menubar.type();
        return;
    }
    const bool isEnglish = TFServiceConfig::instance()->getCurrentLang() == TFServiceConfig::English;
    const QJsonArray menus = menubar.toArray();
    for (const QJsonValue &menu : menus) {
        if (menu.isObject())
            addMenu(menu.toObject(), isEnglish);
    }
}

void TFMenuCfg::addMenu(const QJsonObject &menu, bool isEnglish)
{
    const QJsonValue items = menu.value(keyItems);
    if (!items.isArray())
        return;
    QStringList views;
    const QJsonArray array = items.toArray();
    for (const QJsonValue &element : array) {
        if (!element.isObject())
            continue;
        const QJsonObject item = element.toObject();
        const QString viewId = item.value(keyViewId).toString();
        m_items.append({item.value(keySectorName).toString(), item.value(keySectorCode).toString(),
                        item.value(keyItemName).toString(), viewId.toInt()});
        views.append(viewId);
    }
    const int code = menu.value(keyCode).toInt();
    m_views.insert(code, views);
    m_names.insert(code, menu.value(isEnglish ? keyMenuEnglish : keyMenu).toString());
}

int TFMenuCfg::topicOfView(const QString &viewId) const
{
    const auto topic = std::find_if(m_views.keyValueBegin(), m_views.keyValueEnd(),
                                    [&](const auto &entry) { return entry.second.contains(viewId); });
    return topic == m_views.keyValueEnd() ? -1 : (*topic).first;
}

QString TFMenuCfg::topicName(int pNodeCode) const
{
    return m_names.value(pNodeCode);
}

MenuItem TFMenuCfg::itemOfView(const QString &viewId) const
{
    const int wanted = viewId.toInt();
    const auto item = std::find_if(m_items.begin(), m_items.end(), [wanted](const MenuItem &candidate) {
        return candidate.obj_vw_id == wanted;
    });
    return item == m_items.end() ? MenuItem() : *item;
}
