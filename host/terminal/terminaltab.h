#pragma once

#include <QIcon>
#include <QUrl>
#include <QWidget>

class ITFInspection;

/// What stands in a tab of the terminal.
class TerminalTab : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Address for the address line; empty where it has none.
    virtual QUrl url() const { return {}; }
    virtual QString title() const = 0;
    virtual QIcon icon() const { return {}; }

    /// Makes the contents. To be called once the tab is in place, since they tell title and icon while they
    /// start.
    virtual void open() = 0;
    /// Makes the contents anew.
    virtual void reload() = 0;
    /// What reads and works the contents without a user; null where they don't offer it.
    virtual ITFInspection *inspection() const { return nullptr; }
    /// Whether the tab may go. It keeps what is to be kept, and asks the user if it cannot.
    virtual bool mayClose() { return true; }

signals:
    void titleChanged(const QString &title);
    void iconChanged(const QIcon &icon);
    void urlChanged(const QUrl &url);
    /// A page address is to be opened in another tab.
    void openRequested(const QString &url);
};
