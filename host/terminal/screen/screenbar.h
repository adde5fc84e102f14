#pragma once

#include <QFrame>
#include <QVariantMap>

class ArgumentFields;
class ComponentCatalog;
class QLabel;
class QPushButton;
class QToolButton;

/// The line over a composite screen: its name, its commands, its arguments, and whether it is saved. Object
/// names: "ScreenBar", "ScreenName", "AddComponent", "EditArguments", "SaveState", "SaveScreen".
class ScreenBar : public QFrame
{
    Q_OBJECT

public:
    /// \a catalog must outlive the bar.
    explicit ScreenBar(const ComponentCatalog *catalog, QWidget *parent = nullptr);

    void setName(const QString &name);
    void setArguments(const QVariantMap &values);
    /// Without a \a fault the screen has just been saved.
    void showSaved(const QString &fault);
    void showUnsaved();

signals:
    void addRequested(const QByteArray &className);
    void argumentsRequested();
    void argumentEntered(const QString &name, const QString &value);
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
    ArgumentFields *m_fields;
    QLabel *m_state;
    QPushButton *m_save;
};
