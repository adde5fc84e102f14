#include "pageservice.h"
#include "screenobject.h"
#include "subjecttest.h"
#include "testhost.h"
#include "viewdocument.h"

#include "tfcore/tfcore.h"
#include "tfframesubjectzhp.h"
#include "tfframesubjectzhpdialog.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
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
#include <memory>

/// The settings of a component: the tree, the filter arguments, and the dialog around them.
class SettingsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void treeStandsInTheTextOrderOfItsCodes();
    void topicGivesTheRootCode_data();
    void topicGivesTheRootCode();
    void replyThatIsNoTree_data();
    void replyThatIsNoTree();
    void replyForATopicThatWasLeftIsDropped();
    void controlsBecomeArguments_data();
    void controlsBecomeArguments();
    void argumentsComeBackAsTheyWere_data();
    void argumentsComeBackAsTheyWere();
    void folderIsNoView();
    void openingSelectsTheViewOnShow();
    void shownPartsStayShownOnANewPage();
    void cancelPutsEverythingBack();
    void screenHearsOfChangesAlone();
    void previewShowsTheArgumentsAtOnce();
    void screenChoosesTheArgumentThatSelectsTheView();
    void keyboardOpensAndCloses_data();
    void keyboardOpensAndCloses();
    void frameMayGoWhileItsDialogIsOpen();
    void dialogStandsInTheMiddleAndMovesByItsTop();
    void contentStaysOverTheShadow();
    void contentWithoutButtonsIsTold();

private:
    static QJsonObject node(int code, int parent, int level, const QString &caption, qint64 view = 0);
    void serveTree(const QJsonArray &rows) { m_service->answer({"/bas/ds/data"}, PageService::data(rows)); }
    /// Opens the settings of \a frame, lets \a work act on the dialog with its tree, and cancels it if it is
    /// still open then.
    void withDialog(TFFrameSubjectZHP *frame, const std::function<void(QWidget *)> &work);
    int refreshes() const { return debugLines().filter("refresh right container:").size(); }
    static QStringList lines(const QTreeWidgetItem *item, int depth = 0);
    static QTreeWidgetItem *item(QWidget *dialog, const QString &caption);
    static void press(QWidget *dialog, const char *button)
    {
        dialog->findChild<QPushButton *>(button)->click();
    }

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<ScreenObject> m_screen;
    std::unique_ptr<QWidget> m_holder;
    TFFrameSubjectZHP *m_frame = nullptr;
};

void SettingsTest::init()
{
    beginMessages();
    allowWarnings("frozen count is invaild");
    m_service = std::make_unique<PageService>();
    m_host = std::make_unique<TestHost>(m_service.get());
    m_screen = std::make_unique<ScreenObject>();
    m_holder = std::make_unique<QWidget>();
    m_screen->offerOn(m_holder.get());
    ViewDocument document;
    document.filters = {QJsonObject{{"ClassName", "TextEdit"},
                                    {"FieldName", "CODE"},
                                    {"Caption", "代码"},
                                    {"Operator", "="},
                                    {"ValueType", "string"}}};
    m_service->answer({"/bas/subject/data", 0}, PageService::data(document.config()));
    m_service->answer({"/bas/subject/data", 1}, PageService::data(document.rows(0, 3, 3)));
    serveTree({node(10, 2, 1, "组", 7), node(11, 10, 2, "股票", 260), node(12, 10, 2, "债券", 300)});
    m_frame = new TFFrameSubjectZHP(m_holder.get(), "股票专题:2");
    m_frame->restore({{"version", "1.0.0"},
                      {"objVwId", 260},
                      {"title", "股票"},
                      {"filterVisible", true},
                      {"mainViewVisible", true},
                      {"filterMap", QVariantMap{{"CODE", "7"}}}});
    QTRY_VERIFY(m_frame->page()->mainView()->hasBars());
}

void SettingsTest::cleanup()
{
    m_holder.reset();
    m_screen.reset();
    m_service.reset();
    m_host.reset();
    endMessages();
}

QJsonObject SettingsTest::node(int code, int parent, int level, const QString &caption, qint64 view)
{
    return {{"NODE_CODE", code},
            {"P_NODE_CODE", parent},
            {"LEVEL", level},
            {"NODE_CAP", caption},
            {"OBJ_VW_ID", view}};
}

void SettingsTest::withDialog(TFFrameSubjectZHP *frame, const std::function<void(QWidget *)> &work)
{
    bool isWorked = false;
    QMetaObject::invokeMethod(
        this,
        [&] {
            const QPointer<QWidget> dialog(QApplication::activeModalWidget());
            auto *tree = dialog->findChild<QTreeWidget *>("twNavTree");
            QTRY_VERIFY(tree->topLevelItemCount() > 0);
            work(dialog);
            isWorked = true;
            if (dialog && dialog->isVisible())
                static_cast<QDialog *>(dialog.data())->reject();
        },
        Qt::QueuedConnection);
    frame->actions().constFirst()->trigger();
    QVERIFY(isWorked);
}

QStringList SettingsTest::lines(const QTreeWidgetItem *item, int depth)
{
    QStringList all;
    for (int i = 0; i < item->childCount(); ++i) {
        const QTreeWidgetItem *child = item->child(i);
        all.append(QString(depth, '.') + child->text(0) + ' ' + child->text(1) + '<' + child->text(2));
        all += lines(child, depth + 1);
    }
    return all;
}

QTreeWidgetItem *SettingsTest::item(QWidget *dialog, const QString &caption)
{
    auto *tree = dialog->findChild<QTreeWidget *>("twNavTree");
    return tree->findItems(caption, Qt::MatchFixedString | Qt::MatchRecursive).value(0);
}

void SettingsTest::treeStandsInTheTextOrderOfItsCodes()
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

    QCOMPARE(lines(tree.invisibleRootItem()),
             (QStringList{"ten 10<99", ".a 100<10", ".new 101<10", ".b 20<10", "nine 9<99"}));
    QVERIFY(tree.isHeaderHidden() && tree.isColumnHidden(1) && tree.isColumnHidden(3));
    QVERIFY(tree.topLevelItem(0)->child(0)->isFirstColumnSpanned());

    roots.clear();
    const QJsonArray blocks{QJsonObject{{"SECT_ID", 1}, {"P_SECT_ID", 0}, {"SECT_NAME", "深圳"}}};
    const auto blockNodes = TFSettingTree::make(blocks, roots, TFSettingTree::BlockRows);
    TFSettingTree::fill(&tree, roots, "SECT_NAME");
    QCOMPARE(tree.topLevelItem(0)->data(0, Qt::CheckStateRole), QVariant(Qt::Unchecked));
}

void SettingsTest::topicGivesTheRootCode_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QStringList>("topics");
    QTest::addColumn<QJsonValue>("code");

    QTest::newRow("of the component")
        << "专题-船期:2114000074"
        << "股票:2" << QStringList{"专题-船期:2114000074"} << QJsonValue(2114000074);
    QTest::newRow("of the host") << ""
                                 << "\"股票:2,宏观:61\"" << QStringList{"股票:2", "宏观:61"} << QJsonValue(2);
    QTest::newRow("no colon") << "61"
                              << "" << QStringList{"61"} << QJsonValue(61);
    QTest::newRow("no number") << "股票"
                               << "" << QStringList{"股票"} << QJsonValue(0);
    QTest::newRow("nowhere") << ""
                             << "" << QStringList{""} << QJsonValue(QJsonValue::Undefined);
}

void SettingsTest::topicGivesTheRootCode()
{
    QFETCH(QString, list);
    QFETCH(QString, configured);
    QFETCH(QStringList, topics);
    QFETCH(QJsonValue, code);
    QTemporaryDir folder;
    QFile file(folder.filePath("zhp.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Settings]\nlist=" + configured.toUtf8() + '\n');
    file.close();
    TFCore::instance()->setConfigFolders({folder.path()});

    TFSubjectSetting setting(list);
    TFCore::instance()->setConfigFolders({});

    const auto *box = setting.findChild<QComboBox *>("cbNodeCode");
    QStringList shown;
    for (int i = 0; i < box->count(); ++i)
        shown.append(box->itemText(i));
    QCOMPARE(shown, topics);
    QCOMPARE(box->currentIndex(), 0);
    const auto asked = [this] { return m_service->requestsFor({"/bas/ds/data"}); };
    QTRY_COMPARE(asked().size(), code.isUndefined() ? 0 : 1);
    QCOMPARE(asked().value(0).body.value("P_NODE_CODE"), code);
}

void SettingsTest::replyThatIsNoTree_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("roots");
    QTest::addColumn<QString>("warning");

    QTest::newRow("failed request") << QByteArray("{}") << 500 << 1 << "";
    QTest::newRow("no envelope") << QByteArray("{}") << 200 << 0 << "";
    QTest::newRow("no JSON") << QByteArray("<html>") << 200 << 0 << "respone is not json obj";
    QTest::newRow("no rows") << TestService::envelope(QJsonArray()) << 200 << 0 << "";
    QTest::newRow("no roots") << TestService::envelope(QJsonArray{QJsonObject()}) << 200 << 0
                              << "has 1 rows, none of them of level 1";
}

void SettingsTest::replyThatIsNoTree()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, status);
    QFETCH(int, roots);
    QFETCH(QString, warning);
    TFSubjectSetting setting("一:1,二:2");
    auto *tree = setting.findChild<QTreeWidget *>("twNavTree");
    QTRY_COMPARE(tree->topLevelItemCount(), 1);
    if (!warning.isEmpty())
        expectWarning(warning);
    TestService::Answer answer;
    answer.text = reply;
    answer.status = status;
    m_service->answer({"/bas/ds/data"}, answer);

    setting.findChild<QComboBox *>("cbNodeCode")->setCurrentIndex(1);

    QTRY_COMPARE(debugLines().filter("isOk:").size(), 2);
    QCOMPARE(tree->topLevelItemCount(), roots);
}

void SettingsTest::replyForATopicThatWasLeftIsDropped()
{
    const QJsonArray late{node(5, 1, 1, "late")};
    m_service->answer({"/bas/ds/data"}, PageService::held(PageService::data(late)));
    TFSubjectSetting setting("一:1,二:2");
    QTRY_COMPARE(m_service->heldCount(), 1);
    serveTree({node(6, 2, 1, "second")});
    setting.findChild<QComboBox *>("cbNodeCode")->setCurrentIndex(1);
    auto *tree = setting.findChild<QTreeWidget *>("twNavTree");
    QTRY_COMPARE(tree->topLevelItemCount(), 1);

    m_service->release();

    QTRY_COMPARE(debugLines().filter("a topic that was left").size(), 1);
    QCOMPARE(tree->topLevelItem(0)->text(0), QString("second"));
}

void SettingsTest::controlsBecomeArguments_data()
{
    QTest::addColumn<FilterParam::Cntrl>("control");
    QTest::addColumn<QVariantMap>("expected");

    const auto add = [](const char *name, const QString &objName, const QString &key, const QVariant &value,
                        const QVariantMap &expected, const QString &valueType = "string",
                        const QString &op = "==", bool multiField = false) {
        FilterParam::Cntrl control;
        control.objName = objName;
        control.key = key;
        control.value = value;
        control.valueType = valueType;
        control.op = op;
        control.multiField = multiField;
        QTest::newRow(name) << control << expected;
    };
    const QVariantList mixed{1, "x"};
    add("as it is", "TextEdit", "A", 5, {{"A", 5}});
    add("nameless", "", "A", 5, {});
    add("hidden", "VirtualCNTRL", "A", 5, {});
    add("button", "SimpleButtonGetData", "A", 5, {});
    add("list", "Box", "A", mixed, {{"A", "1,x"}}, "stringlist", "in");
    add("list without in", "Box", "A", mixed, {{"A", mixed}}, "stringlist");
    add("two fields", "Interval", "A,,B", "1,,2", {{"A", "1"}, {"B", "2"}}, "string", ">=,<=", true);
    add("more values than fields", "Interval", "A,B", "1,2,3", {{"A", "3"}, {"B", "2"}}, "string", "", true);
    add("fields without values", "Interval", "A,B", ",", {}, "string", "", true);
}

void SettingsTest::controlsBecomeArguments()
{
    QFETCH(FilterParam::Cntrl, control);
    QFETCH(QVariantMap, expected);
    FilterParam::Cntrl earlier = control;
    if (!control.multiField)
        earlier.value = "earlier";
    QCOMPARE(TFSettingArguments::read({earlier, control}), expected);
}

void SettingsTest::argumentsComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("argument");

    QTest::newRow("text") << "TextEdit"
                          << "a;b=c";
    QTest::newRow("day") << "DateEdit"
                         << "2001-01-02 23:59:59";
    QTest::newRow("days") << "DatetimeInterval"
                          << "2022-12-31 23:59:59";
    QTest::newRow("numbers") << "DecimalTextEditInterval"
                             << "5";
    QTest::newRow("period") << "ReportDateSimple"
                            << "2019-06-30";
    QTest::newRow("month") << "YearMonthSimple"
                           << "201002";
}

void SettingsTest::argumentsComeBackAsTheyWere()
{
    QFETCH(QString, className);
    QFETCH(QString, argument);
    TFTranslations::install();
    TFTableModelData::FilterData row;
    row.ClassName = className;
    row.FieldName = "F";
    row.ParameterCategory = "1";
    m_frame->setGlFilterArgs({{"F", argument}});
    TFSubjectSetting setting("61");
    setting.setFrame(m_frame);

    setting.setFilterRows({row});

    const QVariant value = setting.filterArguments().value("F");
    TFTranslations::remove();
    QCOMPARE(value.toString(), argument);
}

void SettingsTest::folderIsNoView()
{
    withDialog(m_frame, [this](QWidget *dialog) {
        QSignalSpy chosen(dialog->findChild<TFSubjectSetting *>(), &TFSubjectSetting::signalObjVwIdChanged);
        item(dialog, "组")->treeWidget()->setCurrentItem(item(dialog, "组"));
        QCOMPARE(chosen.count(), 0);
        item(dialog, "组")->treeWidget()->setCurrentItem(item(dialog, "债券"));
        QCOMPARE(chosen.value(0), (QVariantList{qlonglong(300), "债券"}));
        QCOMPARE(dialog->findChild<QLabel *>("lbUserSelectedTip")->text(), QString("债券|300"));
    });
}

void SettingsTest::openingSelectsTheViewOnShow()
{
    const int before = refreshes();
    withDialog(m_frame, [&](QWidget *dialog) {
        QTRY_COMPARE(item(dialog, "股票")->treeWidget()->currentItem(), item(dialog, "股票"));
        QCOMPARE(refreshes(), before + 1);
        const auto isChecked = [dialog](const char *box) {
            return dialog->findChild<QCheckBox *>(box)->isChecked();
        };
        QVERIFY(!isChecked("cbHideFilterBar") && !isChecked("cbHideMainView"));
        QVERIFY(isChecked("cbHidePageBar") && isChecked("cbHideChildView"));
    });
}

void SettingsTest::shownPartsStayShownOnANewPage()
{
    TFFrameSubjectZHP fresh(m_holder.get(), "股票专题:2");
    QSignalSpy data(fresh.page(), &TFRightContainer::signalDataChanged);
    withDialog(&fresh, [&](QWidget *dialog) {
        item(dialog, "债券")->treeWidget()->setCurrentItem(item(dialog, "债券"));
        QTRY_COMPARE(data.count(), 1);
        const auto *childBox = dialog->findChild<QCheckBox *>("cbHideChildView");
        QVERIFY(childBox->isChecked());
        dialog->findChild<QCheckBox *>("cbHidePageBar")->click();
        press(dialog, "pbOk");
    });
    QTRY_COMPARE(data.count(), 2);

    QVERIFY(fresh.page()->mainView()->isPageBarVisible());
    QVERIFY(!fresh.page()->mainView()->isFilterBarVisible());
}

void SettingsTest::cancelPutsEverythingBack()
{
    QVariantMap before, after;
    m_frame->save(before);
    withDialog(m_frame, [this](QWidget *dialog) {
        QTRY_VERIFY(dialog->findChild<QLineEdit *>());
        item(dialog, "债券")->treeWidget()->setCurrentItem(item(dialog, "债券"));
        press(dialog, "pbPreView");
        for (const char *box : {"cbHideFilterBar", "cbHideMainView", "cbHidePageBar", "cbHideChildView"})
            dialog->findChild<QCheckBox *>(box)->click();
        QVERIFY(!m_frame->page()->isMainViewVisible() && m_frame->page()->areChildViewsVisible());
        QCOMPARE(m_frame->objVwId(), 300);
        QCOMPARE(m_frame->filterMap(), QVariantMap());
        press(dialog, "pbCancel");
    });
    m_frame->save(after);

    QCOMPARE(after, before);
    QCOMPARE(m_screen->settingsChanges, 0);
}

void SettingsTest::screenHearsOfChangesAlone()
{
    const auto waitForBar = [](QWidget *dialog) {
        QTRY_VERIFY(dialog->findChild<QLineEdit *>());
        QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QString("7"));
    };
    withDialog(m_frame, [&](QWidget *dialog) {
        waitForBar(dialog);
        press(dialog, "pbOk");
    });
    QCOMPARE(m_screen->settingsChanges, 0);

    withDialog(m_frame, [&](QWidget *dialog) {
        waitForBar(dialog);
        dialog->findChild<QLineEdit *>()->setText("8");
        press(dialog, "pbOk");
    });
    QCOMPARE(m_screen->settingsChanges, 1);
    QCOMPARE(m_frame->filterMap().value("CODE").toString(), QString("8"));
}

void SettingsTest::previewShowsTheArgumentsAtOnce()
{
    withDialog(m_frame, [this](QWidget *dialog) {
        QTRY_VERIFY(dialog->findChild<QLineEdit *>());
        dialog->findChild<QLineEdit *>()->setText("9");
        press(dialog, "pbPreView");
        const auto asked = [this] {
            const auto requests = m_service->requestsFor({"/bas/subject/data", 1, 260});
            return requests.value(requests.size() - 1)
                .body.value("filterParams")
                .toObject()
                .value("CODE_0")
                .toString();
        };
        QTRY_COMPARE(asked(), QString("9"));
        const int before = refreshes();
        press(dialog, "pbPreView");
        QCOMPARE(refreshes(), before);
    });
}

void SettingsTest::screenChoosesTheArgumentThatSelectsTheView()
{
    m_screen->setArgs({{"view", "债券|300"}});
    m_screen->choice = "view";
    withDialog(m_frame, [this](QWidget *dialog) {
        press(dialog, "pbBindGl");
        QCOMPARE(m_screen->askedWith, QString());
        QCOMPARE(m_frame->binderKey(), QString("view"));
        QCOMPARE(m_frame->objVwId(), 300);
        press(dialog, "pbOk");
    });
    QCOMPARE(m_screen->settingsChanges, 1);

    m_screen.reset();
    withDialog(m_frame,
               [](QWidget *dialog) { QVERIFY(!dialog->findChild<QPushButton *>("pbBindGl")->isEnabled()); });
}

void SettingsTest::keyboardOpensAndCloses_data()
{
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isTaken");

    QTest::newRow("enter in the tree") << "twNavTree" << int(Qt::Key_Return) << true;
    QTest::newRow("enter on a button") << "pbPreView" << int(Qt::Key_Enter) << true;
    QTest::newRow("enter on a topic") << "cbNodeCode" << int(Qt::Key_Return) << true;
    QTest::newRow("escape") << "cbHideMainView" << int(Qt::Key_Escape) << false;
}

void SettingsTest::keyboardOpensAndCloses()
{
    QFETCH(QString, focus);
    QFETCH(int, key);
    QFETCH(bool, isTaken);
    auto *second = new TFFrameSubjectZHP(m_holder.get());
    second->move(300, 0);
    m_holder->show();
    m_holder->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_holder.get()));
    m_frame->setFocus();
    bool isOpened = false;
    QMetaObject::invokeMethod(
        this,
        [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            isOpened = true;
            QSignalSpy done(dialog, &QDialog::finished);
            QTest::keyClick(dialog->findChild<QWidget *>(focus), Qt::Key(key));
            QCOMPARE(done.count(), 1);
            QCOMPARE(dialog->result() == QDialog::Accepted, isTaken);
        },
        Qt::QueuedConnection);

    QTest::keyClick(m_frame, Qt::Key_P, Qt::ControlModifier);

    QVERIFY(isOpened);
}

void SettingsTest::frameMayGoWhileItsDialogIsOpen()
{
    withDialog(m_frame, [this](QWidget *dialog) {
        m_holder.reset();
        QVERIFY(!dialog->isVisible());
    });
    QCOMPARE(m_screen->settingsChanges, 0);
}

void SettingsTest::dialogStandsInTheMiddleAndMovesByItsTop()
{
    withDialog(m_frame, [](QWidget *dialog) {
        const QRect screen = dialog->screen()->availableGeometry();
        QCOMPARE(dialog->size(), QSize(507, 482));
        QCOMPARE(dialog->pos(),
                 QPoint(qRound((screen.width() - 507) / 2.0), qRound((screen.height() - 482) / 2.0)));
        QVERIFY(dialog->windowFlags() & Qt::FramelessWindowHint);

        const auto drag = [dialog](const char *handle, QPoint by) {
            auto *at = dialog->findChild<QWidget *>(handle);
            const QPoint from = at->mapToGlobal(QPoint(8, 8));
            const auto send = [&](QEvent::Type type, QPoint global) {
                QMouseEvent event(type, at->mapFromGlobal(global), global, Qt::LeftButton, Qt::LeftButton,
                                  {});
                QCoreApplication::sendEvent(at, &event);
            };
            const QPoint before = dialog->pos();
            send(QEvent::MouseButtonPress, from);
            send(QEvent::MouseMove, from + by);
            send(QEvent::MouseButtonRelease, from + by);
            return dialog->pos() - before;
        };
        QCOMPARE(drag("lbTitle", {40, 30}), QPoint(40, 30));
        QCOMPARE(drag("label_3", {40, 30}), QPoint());
    });
}

void SettingsTest::contentStaysOverTheShadow()
{
    withDialog(m_frame, [](QWidget *dialog) {
        const auto onScreen = [dialog] {
            QCoreApplication::processEvents();
            return dialog->screen()->grabWindow(dialog->winId()).toImage();
        };
        QTRY_VERIFY(dialog->findChild<QLineEdit *>());
        QImage before;
        QTRY_VERIFY(std::exchange(before, onScreen()) == before);
        for (const char *corner : {"lbTitle", "pbOk"})
            dialog->findChild<QWidget *>(corner)->update();
        QCOMPARE(onScreen(), before);
    });
}

void SettingsTest::contentWithoutButtonsIsTold()
{
    for (const char *name : {"pbClose", "pbCancel", "pbOk"})
        expectWarning(QString("^not found %1 with typename:QPushButton$").arg(name));
    TFFrameDialog dialog(new QWidget);
    QCOMPARE(dialog.layout()->count(), 1);
}

SUBJECT_TEST_MAIN(SettingsTest)
#include "tst_settings.moc"
