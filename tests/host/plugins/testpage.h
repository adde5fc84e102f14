#pragma once

#include "tfcore/itfabstractpage.h"

#include <QWidget>

/// A page that keeps the address that it was given, tells its title, and asks for a second page.
class TestPage : public QWidget, public ITFAbstractPage
{
    Q_OBJECT
    Q_INTERFACES(ITFAbstractPage)

public:
    QWidget *object() override { return this; }
    void init(const QUrl &url, QVariant) override
    {
        setProperty("initUrl", url);
        emit titleGiven("Page of " + url.host());
    }
    QString signalWindowTitleChanged() override { return SIGNAL(titleGiven(QString)); }
    QString signalOpenNewUrl() override { return SIGNAL(opensAnother(QUrl)); }

signals:
    void titleGiven(const QString &title);
    void opensAnother(const QUrl &url);
};
