#include "subjecttest.h"

#include <QAction>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeView>

#include "tfmenucfg.h"
#include "tfsearchwidget.h"
#include "tfsubjecttreewidget.h"
#include "tftreeitem.h"
#include "tftreemodel.h"
#include "tftreewidgetcontainer.h"
#include "treetext.h"

namespace {
QString pathOf(QModelIndex index)
{
    QStringList captions;
    for (; index.isValid(); index = index.parent())
        captions.prepend(index.data().toString());
    return captions.join("/");
}
} // namespace

class TestTreeWidgets : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void selectionGoesDownToALeafOrTheCaption_data();
    void selectionGoesDownToALeafOrTheCaption();
    void menuItemIsFoundByNameAndView_data();
    void menuItemIsFoundByNameAndView();
    void emptyTreeOpensNothing();
    void searchOpensTheFirstLeafThatRemains_data();
    void searchOpensTheFirstLeafThatRemains();
    void searchLineAsksAtTheEndOfEditing();
    void clickOpensWhatIsNotOpenYet_data();
    void clickOpensWhatIsNotOpenYet();
    void leafTellsItsTopGroup();
    void topGroupOpensWithAllBelow();
    void keyboardOpensAndFolds();
    void blockTreeShowsWhenAViewAsks();
    void rootSectorIsFoundByNameAndCode();
    void newRowsReplaceTheTree();

private:
    QTreeView *view() const { return m_container->mainTree()->view(); }
    QTreeView *blockView() const { return m_container->blockTree()->view(); }
    QModelIndex at(std::initializer_list<int> rows) const
    {
        QModelIndex index;
        for (int row : rows)
            index = view()->model()->index(row, 0, index);
        return index;
    }
    void load() { m_container->loadMainTreeByCode("11", TreeText::navigation(), 2, QString()); }
    QStringList opened() const;

    std::unique_ptr<TFTreeWidgetContainer> m_container;
    std::unique_ptr<QSignalSpy> m_clicks;
    std::unique_ptr<QSignalSpy> m_groups;
};

void TestTreeWidgets::init()
{
    beginMessages();
    m_container = std::make_unique<TFTreeWidgetContainer>();
    m_clicks = std::make_unique<QSignalSpy>(m_container.get(), &TFTreeWidgetContainer::signalItemClicked);
    m_groups = std::make_unique<QSignalSpy>(m_container.get(), &TFTreeWidgetContainer::groupChanged);
}

void TestTreeWidgets::cleanup()
{
    m_groups.reset();
    m_clicks.reset();
    m_container.reset();
    endMessages();
}

/// "view caption address" of each opening since the last call.
QStringList TestTreeWidgets::opened() const
{
    QStringList result;
    while (!m_clicks->isEmpty()) {
        const QVariantList arguments = m_clicks->takeFirst();
        result << QString("%1 %2 %3")
                      .arg(arguments[0].toString(), arguments[1].toString(), arguments[2].toString())
                      .trimmed();
    }
    return result;
}

void TestTreeWidgets::selectionGoesDownToALeafOrTheCaption_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("opened");

    testRow("leaf", "13", "", "行情/指数/Absolute", "261 Absolute");
    testRow("folder goes down to its first leaf", "20", "", "公司/资料", "263 资料");
    testRow("caption ends the way down", "10", "指数", "行情/指数", "");
    testRow("caption further down", "10", "abbey", "行情/日线", "260 日线");
    testRow("caption with another case does not count", "12", "ABBEY", "行情/指数/Absolute", "261 Absolute");
    testRow("unknown code starts at the first row", "999", "", "行情/日线", "260 日线");
    testRow("no number starts at the first row", "x", "指数", "行情/指数", "");
}

void TestTreeWidgets::selectionGoesDownToALeafOrTheCaption()
{
    QFETCH(QString, code);
    QFETCH(QString, caption);

    QVERIFY(m_container->loadMainTreeByCode(code, TreeText::navigation(), 2, caption));

    QTEST(pathOf(view()->currentIndex()), "current");
    QTEST(opened().join(","), "opened");
}

void TestTreeWidgets::menuItemIsFoundByNameAndView_data()
{
    QTest::addColumn<QString>("itemName");
    QTest::addColumn<int>("viewId");
    QTest::addColumn<QString>("sectorName");
    QTest::addColumn<QString>("current");

    testRow("name and view", "abbey", 262, "公司", "行情/指数/abbey");
    testRow("name with another view falls back to the sector", "abbey", 1, "公司", "公司/资料");
    testRow("neither", "x", 1, "y", "行情/日线");
    testRow("empty record", "", 0, "", "行情/日线");
}

void TestTreeWidgets::menuItemIsFoundByNameAndView()
{
    QFETCH(QString, itemName);
    QFETCH(int, viewId);
    QFETCH(QString, sectorName);

    QVERIFY(
        m_container->loadMainTreeByName({sectorName, "", itemName, viewId}, TreeText::navigation(), 2, ""));

    QTEST(pathOf(view()->currentIndex()), "current");
}

void TestTreeWidgets::emptyTreeOpensNothing()
{
    QVERIFY(!m_container->loadMainTreeByName({}, QJsonArray(), 2, "x"));
    QVERIFY(!m_container->loadMainTreeByCode("1", QJsonValue(), 2, "x"));
    m_container->mainTree()->slotSearch("a");

    QVERIFY(!m_container->mainTree()->hasRows());
    QCOMPARE(opened(), QStringList());
}

void TestTreeWidgets::searchOpensTheFirstLeafThatRemains_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("opened");

    testRow("last character may repeat, any case", "AB",
            QStringList{"行情", "  指数", "    Absolute", "    abbey"}, "261 Absolute");
    testRow("repeated character", "abb", QStringList{"行情", "  指数", "    abbey"}, "262 abbey");
    testRow("pattern", "^资|^日", QStringList{"行情", "  日线", "公司", "  资料"}, "260 日线");
    testRow("match of a folder alone", "公司", QStringList{}, "");
    testRow("no pattern at all", "a(", QStringList{}, "");
    testRow("empty", "", TreeText::lines([] {
                static TFSubjectTreeModel model;
                model.build(TreeText::navigation(), 2, false);
                return std::ref(model);
            }()),
            "260 日线");
}

void TestTreeWidgets::searchOpensTheFirstLeafThatRemains()
{
    QFETCH(QString, text);
    m_container->loadMainTreeByCode("21", TreeText::navigation(), 2, QString());
    opened();

    m_container->mainTree()->slotSearch(text);

    QTEST(TreeText::lines(*view()->model()), "expected");
    QTEST(opened().join(","), "opened");
}

void TestTreeWidgets::searchLineAsksAtTheEndOfEditing()
{
    TFSearchWidget search;
    auto *line = search.findChild<QLineEdit *>("SearchLine");
    QSignalSpy searches(&search, &TFSearchWidget::signalSearch);

    QTest::keyClicks(line, "ab");
    QTest::keyClick(line, Qt::Key_Return);
    QFocusEvent leave(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(line, &leave);
    QCOMPARE(searches.count(), 1);

    line->setText("cd");
    QCoreApplication::sendEvent(line, &leave);
    line->actions().first()->trigger();

    QCOMPARE(searches.count(), 3);
    QCOMPARE(searches.last().first().toString(), QString("cd"));

    // The toolkit loses the fade of a clear button whose line goes before its end.
    for (const QToolButton *button : line->findChildren<QToolButton *>())
        QTRY_COMPARE(button->property("opacity").toReal(), 1.0);
}

void TestTreeWidgets::clickOpensWhatIsNotOpenYet_data()
{
    QTest::addColumn<QList<int>>("clicked"); // place of the group and of the leaf, -1 for the group itself
    QTest::addColumn<QStringList>("expected");

    testRow("open leaf", QList<int>{0, 0}, QStringList{});
    testRow("another leaf and back", QList<int>{1, 0, 0, 0}, QStringList{"263 资料", "260 日线"});
    testRow("folder keeps what is open", QList<int>{1, -1, 0, 0}, QStringList{});
    testRow("node with an address opens each time", QList<int>{1, 1, 1, 1},
            QStringList{"264 网站 http://127.0.0.1:1/x", "264 网站 http://127.0.0.1:1/x"});
}

void TestTreeWidgets::clickOpensWhatIsNotOpenYet()
{
    QFETCH(QList<int>, clicked);
    load();
    QCOMPARE(opened(), QStringList({"260 日线"}));

    for (int i = 0; i < clicked.size(); i += 2)
        emit view()->clicked(clicked[i + 1] < 0 ? at({clicked[i]}) : at({clicked[i], clicked[i + 1]}));

    QTEST(opened(), "expected");
}

void TestTreeWidgets::leafTellsItsTopGroup()
{
    QJsonArray rows = TreeText::navigation();
    rows.append(TreeText::node(30, 2, "顶层叶", 1, 300));
    m_container->loadMainTreeByCode("13", rows, 2, QString());
    QCOMPARE(m_groups->takeFirst().first().toString(), QString("行情"));

    emit view()->clicked(at({0, 1})); // a folder
    emit view()->clicked(at({2}));    // a leaf without a group

    QCOMPARE(m_groups->count(), 0);
}

void TestTreeWidgets::topGroupOpensWithAllBelow()
{
    load();
    view()->collapseAll();

    view()->expand(at({0}));
    QVERIFY(view()->isExpanded(at({0, 1})));

    view()->collapseAll();
    QVERIFY(!view()->isExpanded(at({0, 1})));
    emit view()->doubleClicked(at({0}));
    QVERIFY(view()->isExpanded(at({0})) && view()->isExpanded(at({0, 1})));
}

void TestTreeWidgets::keyboardOpensAndFolds()
{
    load();
    opened();
    view()->setCurrentIndex(at({1, 0}));
    QTest::keyClick(view(), Qt::Key_Return);
    QCOMPARE(opened(), QStringList({"263 资料"}));

    view()->setCurrentIndex(at({1}));
    const bool wasExpanded = view()->isExpanded(at({1}));
    QTest::keyClick(view(), Qt::Key_Enter);
    QCOMPARE(view()->isExpanded(at({1})), !wasExpanded);
    QCOMPARE(opened(), QStringList());
}

void TestTreeWidgets::blockTreeShowsWhenAViewAsks()
{
    load();
    m_container->slotSetSector("深圳");
    m_container->setRootSector("沪深");
    QVERIFY(m_container->blockTree()->isHidden());

    m_container->loadBlockTree(TreeText::blocks());
    m_container->slotSetSector("上海");
    QVERIFY(!m_container->blockTree()->isHidden());
    m_container->slotSetSector("gem"); // replaces the check, whatever the case
    QCOMPARE(m_container->blockFilter().key, QString("filterBlock"));
    QCOMPARE(m_container->blockFilter().value.toJsonArray(), QJsonArray{4});
    QVERIFY(!blockView()->currentIndex().isValid());

    m_container->loadBlockTree(QJsonValue());
    QCOMPARE(m_container->blockFilter().value.toJsonArray(), QJsonArray{4});

    emit view()->clicked(at({1, 0}));
    QVERIFY(m_container->blockTree()->isHidden());
    QVERIFY(m_container->blockFilter().value.toJsonArray().isEmpty());
}

void TestTreeWidgets::rootSectorIsFoundByNameAndCode()
{
    m_container->loadBlockTree(TreeText::blocks());

    m_container->setRootSector("沪深");
    QCOMPARE(pathOf(blockView()->rootIndex()), QString("沪深"));
    m_container->setRootSector("3");
    QCOMPARE(pathOf(blockView()->rootIndex()), QString("沪深/深圳"));
    m_container->setRootSector("nobody");
    m_container->setRootSector("");

    QCOMPARE(pathOf(blockView()->rootIndex()), QString("沪深/深圳"));
}

void TestTreeWidgets::newRowsReplaceTheTree()
{
    load();
    const QPointer<TFSubjectTreeModel> old = m_container->mainTree()->model();

    m_container->loadMainTreeByCode("", QJsonArray{TreeText::node(40, 2, "新", 1, 400)}, 2, "");
    m_container->mainTree()->setModel(nullptr);

    QVERIFY(!old);
    QCOMPARE(TreeText::lines(*view()->model()), QStringList({"新"}));
    QCOMPARE(opened(), QStringList({"260 日线", "400 新"}));
}

SUBJECT_TEST_MAIN(TestTreeWidgets)
#include "tst_treewidgets.moc"
