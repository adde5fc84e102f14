#include "subjecttest.h"

#include <QPluginLoader>
#include <QUrlQuery>
#include <QWidget>

#include "tfcore/iplugin.h"
#include "tfcore/itfmemory.h"
#include "tfcore/tffactory.h"
#include "tfcore/tfobjectpool.h"

class TestPagePlugin : public SubjectTest
{
    Q_OBJECT

private slots:
    void metadataNamesThePlugin()
    {
        const QJsonObject metaData = QPluginLoader(PAGE_PLUGIN).metaData();
        const QJsonObject own = metaData["MetaData"].toObject();
        const QUrl url(own["Url"].toString());

        QCOMPARE(metaData["IID"].toString() + ' ' + metaData["className"].toString(),
                 QString("TFAppPlugin TFSubjectPagePlugin"));
        QCOMPARE(own.keys(),
                 QStringList({"Arguments", "Category", "CompatVersion", "Components", "Dependencies",
                              "Description", "Name", "Required", "Url", "Version"}));
        QCOMPARE(own["Description"], own["Url"]);
        QVERIFY(url.scheme() == "view" && url.host().contains("subjectpage"));
        QCOMPARE(QUrlQuery(url).queryItemValue("title"), QString("股票专题"));
    }

    void pageAndComponentsAreMadeFromTheirRegistration()
    {
        QPluginLoader loader(PAGE_PLUGIN);
        auto *plugin = qobject_cast<IPlugin *>(loader.instance());
        QVERIFY2(plugin, qPrintable(loader.errorString()));

        QVERIFY(plugin->initialize({}, nullptr));
        plugin->extensionsInitialized();
        const QObject *registration = TFObjectPool::instance()->find("TFApp.SUBJECT");
        QVERIFY(registration);
        QCOMPARE(registration->objectName(), QString("SubjectPage"));
        const int type = registration->property("metaId").toInt();
        QCOMPARE(QMetaType::typeName(type), "TFSubjectPage");
        std::unique_ptr<QWidget> page(static_cast<QWidget *>(QMetaType::create(type)));
        QCOMPARE(page->metaObject()->className(), "TFSubjectPage");
        for (const char *name : {"TFFrameSubjectZHP", "TFFrameSubjectZHP_CQ", "TFFrameSubjectZHP_ZZ"}) {
            const auto construct = TFFactory<QWidget>::constructors().value(name);
            QVERIFY2(construct, name);
            QWidget *component = construct(page.get());
            QCOMPARE(component->parentWidget(), page.get());
            auto *memory = qobject_cast<ITFMemory *>(component);
            QVERIFY(memory && memory->object() == component);
        }
        page.reset();

        delete plugin;
        QVERIFY(!TFObjectPool::instance()->find("TFApp.SUBJECT"));
    }
};

SUBJECT_TEST_MAIN(TestPagePlugin)
#include "tst_pageplugin.moc"
