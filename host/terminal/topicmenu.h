#pragma once

#include <QMenu>
#include <QUrl>

class QJsonObject;

/// The topics that a plug-in's menu file announces, each with its pages.
///
/// The file is "menu.json" beside the program, or ":/json/menu.json" of a plug-in's resources.
class TopicMenu : public QMenu
{
    Q_OBJECT

public:
    explicit TopicMenu(QWidget *parent = nullptr);

    /// Reads the file in the language of the service configuration; \a base is a page address whose scheme
    /// and host the pages share.
    void fill(const QUrl &base);
    /// Title of the window that the file wants, or an empty text.
    QString windowTitleWish() const { return m_windowTitle; }

signals:
    void chosen(const QUrl &url);

private:
    void addTopic(const QJsonObject &topic, const QUrl &base);

    QString m_windowTitle;
};
