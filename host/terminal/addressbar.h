#pragma once

#include <QToolBar>
#include <QUrl>

class MainActions;
class QAction;
class QLineEdit;
class QMenu;
class QToolButton;

/// The line with the address of the current page and the most used commands. Object names: "AddressBar",
/// "AddressLine", "ScreensButton", "SkinButton".
class AddressBar : public QToolBar
{
    Q_OBJECT

public:
    AddressBar(const MainActions &actions, QAction *panelAction, QWidget *parent = nullptr);

    /// Shows the address of the current page; what the user is typing stays.
    void setUrl(const QUrl &url);
    void focusAddress();
    /// Puts a button for the menu of composite screens before the address.
    void addScreens(QMenu *menu);
    void redraw();

signals:
    /// The user wants this opened; a text without a scheme is given as it was typed.
    void entered(const QString &address);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QLineEdit *m_line;
    QAction *m_lineAction;
    QToolButton *m_skin;
    QToolButton *m_screens = nullptr;
    QAction *m_panelAction;
};
