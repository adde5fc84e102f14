#pragma once

#include <QWidget>

class ComponentCatalog;
class QLabel;
class QVBoxLayout;

/// What a composite screen without cells shows: a few words, and a button for each component. Object names:
/// "EmptyScreen", "EmptyScreenTitle", "EmptyScreenHint", "PlaceComponent".
class EmptyScreen : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyScreen(const ComponentCatalog *catalog, QWidget *parent = nullptr);

signals:
    void chosen(const QByteArray &className);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void makeButtons();

    const ComponentCatalog *m_catalog;
    QLabel *m_title;
    QLabel *m_hint;
    QVBoxLayout *m_buttons;
};
