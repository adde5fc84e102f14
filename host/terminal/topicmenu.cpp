#include "topicmenu.h"

#include "tfcore/tfserviceconfig.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>

namespace {
const char ResourceFile[] = ":/json/menu.json";
const char WindowTitleKey[] = "windowTitle";
const char MenuBarKey[] = "menubar";
const char MenuKey[] = "menu";
const char EnglishMenuKey[] = "menu_en";
const char CodeKey[] = "P_NODE_CODE";
const char ItemsKey[] = "menuItem";
const char ItemNameKey[] = "itemName";
const char ViewKey[] = "obj_vw_id";

QJsonObject readMenuFile()
{
    const QString beside = QCoreApplication::applicationDirPath() + "/menu.json";
    QFile file(QFile::exists(beside) ? beside : QString(ResourceFile));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QUrl pageUrl(const QUrl &base, int topic, const QString &view, const QString &title)
{
    QUrlQuery query;
    query.addQueryItem("pnodecode", QString::number(topic));
    query.addQueryItem("nodecode", QString());
    query.addQueryItem("objvwid", view);
    query.addQueryItem("title", title);
    QUrl url = base;
    url.setQuery(query);
    return url;
}
} // namespace

TopicMenu::TopicMenu(QWidget *parent)
    : QMenu(parent)
{}

void TopicMenu::fill(const QUrl &base)
{
    clear();
    const QJsonObject file = readMenuFile();
    m_windowTitle = file.value(WindowTitleKey).toString();
    for (const QJsonValue &topic : file.value(MenuBarKey).toArray())
        addTopic(topic.toObject(), base);
    menuAction()->setVisible(!isEmpty());
}

void TopicMenu::addTopic(const QJsonObject &topic, const QUrl &base)
{
    const bool english = TFServiceConfig::instance()->getCurrentLang() == TFServiceConfig::English;
    const QString chinese = topic.value(MenuKey).toString();
    const QString inEnglish = topic.value(EnglishMenuKey).toString();
    const QString name = english && !inEnglish.isEmpty() ? inEnglish : chinese;
    const QJsonArray items = topic.value(ItemsKey).toArray();
    if (name.isEmpty() || items.isEmpty())
        return;
    QMenu *menu = addMenu(QString(name).replace('&', "&&"));
    for (const QJsonValue &value : items) {
        const QJsonObject item = value.toObject();
        const QString caption = item.value(ItemNameKey).toString();
        const QUrl url = pageUrl(base, topic.value(CodeKey).toInt(), item.value(ViewKey).toString(), name);
        QAction *action = menu->addAction(QString(caption).replace('&', "&&"));
        connect(action, &QAction::triggered, this, [this, url] { emit chosen(url); });
    }
}
