#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QStringList>

class QJsonObject;

/// What the host's menu knows of one view. All empty and 0 where it knows nothing.
struct MenuItem
{
    QString sectorName;
    QString sectorCode;
    QString itemName;
    int obj_vw_id = 0; ///< named as in the menu file
};

/// The host's menu: which topic a view belongs to, and what its item is called.
///
/// Read once from "menu.json" beside the application or, where that file is missing, from the resources; the
/// one replaces the other whole. A file that can't be read or has another shape leaves the tables empty.
class TFMenuCfg : public QObject
{
    Q_OBJECT

public:
    /// The process-wide menu, read on first use. Safe from any thread as to its making; used on the
    /// user-interface thread.
    static TFMenuCfg *instance();

    /// Reads the menu that a program in \a applicationFolder sees, in the language of the host.
    explicit TFMenuCfg(const QString &applicationFolder, QObject *parent = nullptr);

    /// The P_NODE_CODE of the lowest topic that lists \a viewId, compared as text; -1 if there is none.
    int topicOfView(const QString &viewId) const;
    /// The name of a topic in the language of the host; it may be empty.
    QString topicName(int pNodeCode) const;
    /// The first item whose view is \a viewId, compared as number.
    MenuItem itemOfView(const QString &viewId) const;

private:
    void load(const QString &path);
    void parse(const QByteArray &json);
    void addMenu(const QJsonObject &menu, bool isEnglish);

    QList<MenuItem> m_items;
    QMap<int, QStringList> m_views;
    QMap<int, QString> m_names;
};
