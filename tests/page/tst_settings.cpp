#include "framefixture.h"

#include "tfsubjectsetting.h"
#include "tfsubjectsettingargs.h"
#include "tftranslations.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTreeWidget>

#include <functional>
#include <utility>

namespace {
QJsonObject node(int code, int parent, int level, const QString &caption, qint64 view = 0)
{
    return {{"NODE_CODE", code},
            {"P_NODE_CODE", parent},
            {"LEVEL", level},
            {"NODE_CAP", caption},
            {"OBJ_VW_ID", view}};
}

QString lines(const QTreeWidgetItem *item)
{
    QStringList children;
    for (int i = 0; i < item->childCount(); ++i)
        children.append(lines(item->child(i)));
    return item->text(0) + (children.isEmpty() ? QString() : '(' + children.join(' ') + ')');
}

void press(QWidget *dialog, const char *button)
{
    dialog->findChild<QPushButton *>(button)->click();
}

void choose(QWidget *dialog, const QString &caption)
{
    auto *tree = dialog->findChild<QTreeWidget *>("twNavTree");
    tree->setCurrentItem(tree->findItems(caption, Qt::MatchFixedString | Qt::MatchRecursive).value(0));
}
} // namespace

/// The settings of a component: the tree, the filter arguments, and the dialog around them.
class SettingsTest : public FrameFixture
{
    Q_OBJECT

private:
    void serveTree(const QJsonArray &rows) { service->answer({"/bas/ds/data"}, PageService::data(rows)); }

    /// Opens the settings of \a frame, lets \a work act on the dialog once its tree and, for a view on show,
    /// its filter bar are there, and cancels it if it is still open then.
    void withDialog(TFFrameSubjectZHP *frame, const std::function<void(QWidget *)> &work)
    {
        bool isWorked = false;
        const auto onDialog = [&] {
            const QPointer<QWidget> dialog(QApplication::activeModalWidget());
            QTRY_VERIFY(dialog->findChild<QTreeWidget *>("twNavTree")->topLevelItemCount() > 0);
            QTRY_VERIFY(frame->objVwId() == 0 || dialog->findChild<QLineEdit *>());
            work(dialog);
            isWorked = true;
            if (dialog && dialog->isVisible())
                static_cast<QDialog *>(dialog.data())->reject();
        };
        QMetaObject::invokeMethod(this, onDialog, Qt::QueuedConnection);
        frame->actions().constFirst()->trigger();
        QVERIFY(isWorked);
    }

    TFFrameSubjectZHP *m_frame = nullptr;

private slots:
    void init()
    {
        setUp();
        serveTree({node(10, 2, 1, "组", 7), node(11, 10, 2, "股票", 260), node(12, 10, 2, "债券", 300)});
        m_frame = makeFrame({{"objVwIdBinder", {}}, {"subViewVisible", false}});
        QTRY_VERIFY(m_frame->page()->mainView()->hasBars());
    }
    void cleanup() { tearDown(); }

    void treeStandsInTheTextOrderOfItsCodes()
    {
        const QJsonArray rows{node(9, 99, 1, "nine"),  node(10, 99, 1, "ten"),
                              node(101, 10, 2, "old"), node(20, 10, 2, "b"),
                              node(101, 10, 2, "new"), node(100, 10, 2, "a"),
                              node(30, 77, 2, "lost"), node(31, 32, 2, "ring"),
                              node(32, 31, 2, "ring"), 5};
        QList<TFJsonObjNode *> roots;
        const auto nodes = TFSettingTree::make(rows, roots, TFSettingTree::NavigationRows);
        QTreeWidget tree;
        TFSettingTree::fill(&tree, roots, "NODE_CAP");

        QCOMPARE(lines(tree.invisibleRootItem()), QString("(ten(a new b) nine)"));
        QVERIFY(tree.isHeaderHidden() && tree.isColumnHidden(1) && tree.isColumnHidden(3));
        QVERIFY(tree.topLevelItem(0)->child(0)->isFirstColumnSpanned());
    }

    void topicGivesTheRootCode_data()
    {
        QTest::addColumn<QString>("topic");
        QTest::addColumn<int>("code");
        testRow("name and code", "专题-船期:2114000074", 2114000074);
        testRow("code alone", "61", 61);
        testRow("no number", "股票", 0);
    }

    void topicGivesTheRootCode()
    {
        QFETCH(QString, topic);
        QFETCH(int, code);
        TFSubjectSetting setting(topic + ",另:7");
        QTRY_VERIFY(!service->requestsFor({"/bas/ds/data"}).isEmpty());
        QCOMPARE(service->requestsFor({"/bas/ds/data"}).first().body.value("P_NODE_CODE").toInt(), code);
    }

    void replyThatIsNoTree_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("rootsLeft");
        QTest::addColumn<QString>("warning");
        testRow("failed request", QByteArray("{}"), 500, 1, "");
        testRow("no envelope", QByteArray("{}"), 200, 0, "");
        testRow("no roots", TestService::envelope(QJsonArray{QJsonObject()}), 200, 0,
                "has 1 rows, none of them of level 1");
    }

    void replyThatIsNoTree()
    {
        QFETCH(QByteArray, reply);
        QFETCH(int, status);
        QFETCH(int, rootsLeft);
        QFETCH(QString, warning);
        TFSubjectSetting setting("一:1,二:2");
        auto *tree = setting.findChild<QTreeWidget *>("twNavTree");
        QTRY_COMPARE(tree->topLevelItemCount(), 1);
        if (!warning.isEmpty())
            expectWarning(warning);
        service->answer({"/bas/ds/data"}, {reply, status});

        setting.findChild<QComboBox *>("cbNodeCode")->setCurrentIndex(1);

        QTRY_COMPARE(debugLines().filter("isOk:").size(), 2);
        QCOMPARE(tree->topLevelItemCount(), rootsLeft);
    }

    void replyForATopicThatWasLeftIsDropped()
    {
        service->answer({"/bas/ds/data"},
                        PageService::held(PageService::data(QJsonArray{node(5, 1, 1, "late")})));
        TFSubjectSetting setting("一:1,二:2");
        QTRY_COMPARE(service->heldCount(), 1);
        serveTree({node(6, 2, 1, "second")});
        setting.findChild<QComboBox *>("cbNodeCode")->setCurrentIndex(1);
        auto *tree = setting.findChild<QTreeWidget *>("twNavTree");
        QTRY_COMPARE(tree->topLevelItemCount(), 1);

        service->release();

        QTRY_COMPARE(debugLines().filter("a topic that was left").size(), 1);
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("second"));
    }

    void controlsBecomeArguments()
    {
        QList<FilterParam::Cntrl> controls;
        const auto add = [&controls](const QString &name, const QString &key, const QVariant &value,
                                     const QString &valueType = "string", bool isMany = false) {
            FilterParam::Cntrl control;
            control.objName = name;
            control.key = key;
            control.value = value;
            control.valueType = valueType;
            control.op = valueType == "StringList" ? "in" : "==";
            control.multiField = isMany;
            controls.append(control);
        };
        const QVariantList mixed{1, "x"};
        add("TextEdit", "PLAIN", "earlier");
        add("TextEdit", "PLAIN", 5);
        add("", "NAMELESS", 5);
        add("VirtualCNTRL", "HIDDEN", 5);
        add("SimpleButtonGetData", "BUTTON", 5);
        add("Box", "LIST", mixed, "StringList");
        add("Box", "NO_IN", mixed, "list");
        add("Interval", "A,,B", "1,,2,3", "string", true);
        add("Interval", "EMPTY", ",", "string", true);

        QCOMPARE(TFSettingArguments::read(controls),
                 (QVariantMap{{"PLAIN", 5}, {"LIST", "1,x"}, {"NO_IN", mixed}, {"A", "3"}, {"B", "2"}}));
    }

    void argumentsComeBackAsTheyWere_data()
    {
        QTest::addColumn<QString>("argument");
        testRow("TextEdit", "a;b=c");
        testRow("DateEdit", "2001-01-02 23:59:59");
        testRow("DatetimeInterval", "2022-12-31 23:59:59");
        testRow("DecimalTextEditInterval", "5");
        testRow("ReportDateSimple", "2019-06-30");
        testRow("YearMonthSimple", "201002");
    }

    void argumentsComeBackAsTheyWere()
    {
        QFETCH(QString, argument);
        TFTranslations::install();
        TFTableModelData::FilterData row;
        row.ClassName = QTest::currentDataTag();
        row.FieldName = "F";
        row.ParameterCategory = "1";
        m_frame->setGlFilterArgs({{"F", argument}});
        TFSubjectSetting setting("61");
        setting.setFrame(m_frame);

        setting.setFilterRows({row});

        const QVariantMap arguments = setting.filterArguments();
        TFTranslations::remove();
        QCOMPARE(arguments, (QVariantMap{{"F", argument}}));
    }

    void openingSelectsTheViewOnShow()
    {
        const int before = refreshes();
        withDialog(m_frame, [&](QWidget *dialog) {
            QCOMPARE(dialog->findChild<QTreeWidget *>()->currentItem()->text(0), QString("股票"));
            QCOMPARE(refreshes(), before + 1);
            QVERIFY(!dialog->findChild<QCheckBox *>("cbHideFilterBar")->isChecked());
            QVERIFY(dialog->findChild<QCheckBox *>("cbHideChildView")->isChecked());

            QSignalSpy chosen(dialog->findChild<TFSubjectSetting *>(),
                              &TFSubjectSetting::signalObjVwIdChanged);
            choose(dialog, "组");
            QCOMPARE(chosen.count(), 0);
            choose(dialog, "债券");
            QCOMPARE(chosen.value(0), (QVariantList{qlonglong(300), "债券"}));
            QCOMPARE(dialog->findChild<QLabel *>("lbUserSelectedTip")->text(), QString("债券|300"));
        });
    }

    void shownPartsStayShownOnANewPage()
    {
        TFFrameSubjectZHP fresh(holder.get(), "股票专题:2");
        QSignalSpy data(fresh.page(), &TFRightContainer::signalDataChanged);
        withDialog(&fresh, [&](QWidget *dialog) {
            choose(dialog, "债券");
            QTRY_COMPARE(data.count(), 1);
            QVERIFY(dialog->findChild<QCheckBox *>("cbHideChildView")->isChecked());
            dialog->findChild<QCheckBox *>("cbHidePageBar")->click();
            press(dialog, "pbOk");
        });
        QTRY_COMPARE(data.count(), 2);
        QVERIFY(fresh.page()->mainView()->isPageBarVisible());
        QVERIFY(!fresh.page()->mainView()->isFilterBarVisible());
    }

    void cancelPutsEverythingBack()
    {
        const QVariantMap before = saved(m_frame);
        withDialog(m_frame, [this](QWidget *dialog) {
            choose(dialog, "债券");
            press(dialog, "pbPreView");
            for (const char *box : {"cbHideFilterBar", "cbHideMainView", "cbHidePageBar", "cbHideChildView"})
                dialog->findChild<QCheckBox *>(box)->click();
            QVERIFY(!m_frame->page()->isMainViewVisible() && m_frame->page()->areChildViewsVisible());
            QCOMPARE(text(m_frame), QString("300 股票"));
            press(dialog, "pbCancel");
        });
        QCOMPARE(saved(m_frame), before);
        QCOMPARE(screen->settingsChanges, 0);
    }

    void screenHearsOfChangesAlone()
    {
        withDialog(m_frame, [](QWidget *dialog) { press(dialog, "pbOk"); });
        QCOMPARE(screen->settingsChanges, 0);

        withDialog(m_frame, [this](QWidget *dialog) {
            dialog->findChild<QLineEdit *>()->setText("9");
            press(dialog, "pbPreView");
            const auto asked = [this] {
                const auto requests = service->requestsFor({"/bas/subject/data", 1, 260});
                return requests.value(requests.size() - 1)
                    .body.value("filterParams")
                    .toObject()
                    .value("CODE_0");
            };
            QTRY_COMPARE(asked().toString(), QString("9"));
            press(dialog, "pbOk");
        });
        QCOMPARE(screen->settingsChanges, 1);
        QCOMPARE(text(m_frame), QString("260 股票 CODE=9"));
    }

    void screenChoosesTheArgumentThatSelectsTheView()
    {
        screen->setArgs({{"view", "债券|300"}});
        screen->choice = "view";
        m_frame->setObjVwIdGlKey("first");
        withDialog(m_frame, [this](QWidget *dialog) {
            press(dialog, "pbBindGl");
            QCOMPARE(screen->askedWith, QString("first"));
            QCOMPARE(m_frame->binderKey() + text(m_frame), QString("view300 债券 CODE=600000"));
            press(dialog, "pbOk");
        });
        QCOMPARE(screen->settingsChanges, 1);
    }

    void keyboardOpensAndCloses_data()
    {
        QTest::addColumn<QString>("focus");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("result");
        testRow("enter in the tree", "twNavTree", Qt::Key_Return, int(QDialog::Accepted));
        testRow("enter on a button", "pbPreView", Qt::Key_Enter, int(QDialog::Accepted));
        testRow("escape", "cbHideMainView", Qt::Key_Escape, int(QDialog::Rejected));
    }

    void keyboardOpensAndCloses()
    {
        QFETCH(QString, focus);
        QFETCH(Qt::Key, key);
        QFETCH(int, result);
        TFFrameSubjectZHP second(holder.get()); // answers to the same key
        holder->show();
        holder->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(holder.get()));
        m_frame->setFocus();
        bool isOpened = false;
        const auto onDialog = [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            isOpened = true;
            QSignalSpy finished(dialog, &QDialog::finished);
            QTest::keyClick(dialog->findChild<QWidget *>(focus), key);
            QCOMPARE(finished.value(0), QVariantList{result});
        };
        QMetaObject::invokeMethod(this, onDialog, Qt::QueuedConnection);

        QTest::keyClick(m_frame, Qt::Key_P, Qt::ControlModifier);

        QVERIFY(isOpened);
    }

    void frameMayGoWhileItsDialogIsOpen()
    {
        withDialog(m_frame, [this](QWidget *dialog) {
            holder.reset();
            QVERIFY(!dialog->isVisible());
        });
        QCOMPARE(screen->settingsChanges, 0);
    }

    void dialogStandsInTheMiddleWithItsContentOverTheShadow()
    {
        withDialog(m_frame, [](QWidget *dialog) {
            const QSize room = dialog->screen()->availableSize();
            QCOMPARE(dialog->geometry(), QRect(qRound((room.width() - 507) / 2.0),
                                               qRound((room.height() - 482) / 2.0), 507, 482));
            QVERIFY(dialog->windowFlags() & Qt::FramelessWindowHint);

            const auto onScreen = [dialog] {
                QCoreApplication::processEvents();
                return dialog->screen()->grabWindow(dialog->winId()).toImage();
            };
            QImage before;
            QTRY_VERIFY(std::exchange(before, onScreen()) == before);
            for (const char *corner : {"lbTitle", "pbOk"})
                dialog->findChild<QWidget *>(corner)->update();
            QCOMPARE(onScreen(), before);
        });
    }
};

SUBJECT_TEST_MAIN(SettingsTest)
#include "tst_settings.moc"
