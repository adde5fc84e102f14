#pragma once

#include <QFrame>

class ComponentCatalog;
class QLabel;
class QPushButton;
class QToolButton;

/// The line over a composite screen: its name, its commands, and whether it is saved. Object names:
/// "ScreenBar", "ScreenName", "AddComponent", "EditArguments", "SaveState", "SaveScreen".
class ScreenBar : public QFrame
{
    Q_OBJECT

public:
    /// \a catalog must outlive the bar.
    explicit ScreenBar(const ComponentCatalog *catalog, QWidget *parent = nullptr);

    void setName(const QString &name);
    /// Without a \a fault the screen has just been saved.
    void showSaved(const QString &fault);
    void showUnsaved();

signals:
    void addRequested(const QByteArray &className);
    void argumentsRequested();
    void saveRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showState(const QString &text, const QString &detail, bool isFault);
    void retranslate();

    const ComponentCatalog *m_catalog;
    QLabel *m_name;
    QToolButton *m_add;
    QPushButton *m_arguments;
    QLabel *m_state;
    QPushButton *m_save;
};
