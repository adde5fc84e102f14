#pragma once

#include "tfcore/itfmemory.h"

#include <QAction>
#include <QFrame>
#include <QVariantMap>

/// A component as a plug-in would offer it, with all that a screen asks of one.
class ScreenComponentStub : public QFrame, public ITFMemory
{
    Q_OBJECT

public:
    explicit ScreenComponentStub(QWidget *parent)
        : QFrame(parent)
        , screen(parent->property("zhpObj").value<QObject *>())
    {
        connect(screen, SIGNAL(argsChanged(QVariantMap)), this, SLOT(take(QVariantMap)));
        auto *action = new QAction("设置", this);
        action->setShortcut(QKeySequence("Ctrl+p"));
        addAction(action);
        connect(action, &QAction::triggered, this, [this] { ++settingsOpened; });
    }

    QWidget *object() override { return this; }
    void save(QMap<QString, QVariant> &map) override { map = state; }
    void restore(const QMap<QString, QVariant> &map) override
    {
        state = map;
        argsAtRestore = screen->property("args").toMap();
        setWindowTitle(map.value("title").toString());
    }

    QObject *const screen;
    QVariantMap state;
    QVariantMap argsAtRestore;
    QList<QVariantMap> changes;
    int settingsOpened = 0;

private slots:
    void take(const QVariantMap &changed) { changes.append(changed); }
};
