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

    void selectionGoesDownToALeafOrTheCaption();
    void searchOpensTheFirstLeafThatRemains();
    void searchLineAsksAtTheEndOfEditing();
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
    /// "view caption address" of each opening since the last call.
    QStringList opened() { return std::exchange(m_opened, {}); }

    std::unique_ptr<TFTreeWidgetContainer> m_container;
    QStringList m_opened;
    QStringList m_groups;
};

void TestTreeWidgets::init()
{
    beginMessages();
    m_container = std::make_unique<TFTreeWidgetContainer>();
    connect(m_container.get(), &TFTreeWidgetContainer::signalItemClicked, this,
            [this](qlonglong view, const QString &caption, const QString &address) {
                m_opened << QString("%1 %2 %3").arg(view).arg(caption, address).trimmed();
            });
    connect(m_container.get(), &TFTreeWidgetContainer::groupChanged, this,
            [this](const QString &group) { m_groups << group; });
}

void TestTreeWidgets::cleanup()
{
    m_container.reset();
    m_opened.clear();
    m_groups.clear();
    endMessages();
}

void TestTreeWidgets::selectionGoesDownToALeafOrTheCaption()
{
    const auto byCode = [this](const QString &code, const QString &caption) {
        const bool isBuilt = m_container->loadMainTreeByCode(code, TreeText::navigation(), 2, caption);
        return isBuilt ? pathOf(view()->currentIndex()) : "no tree";
    };
    QCOMPARE(byCode("13", ""), QString("行情/指数/Absolute"));
    QCOMPARE(byCode("20", ""), QString("公司/资料"));
    QCOMPARE(opened(), QStringList({"261 Absolute", "263 资料"}));
    QCOMPARE(byCode("10", "指数"), QString("行情/指数")); // the caption ends the way down
    QCOMPARE(opened(), QStringList());
    QCOMPARE(byCode("10", "abbey"), QString("行情/日线")); // not among the children on the way
    QCOMPARE(byCode("12", "ABBEY"), QString("行情/指数/Absolute"));
    QCOMPARE(byCode("999", ""), QString("行情/日线")); // no such code: from the first row
    QCOMPARE(byCode("x", "指数"), QString("行情/指数"));

    const auto byName = [this](const MenuItem &item) {
        m_container->loadMainTreeByName(item, TreeText::navigation(), 2, "");
        return pathOf(view()->currentIndex());
    };
    QCOMPARE(byName({"公司", "", "abbey", 262}), QString("行情/指数/abbey"));
    QCOMPARE(byName({"公司", "", "abbey", 1}), QString("公司/资料"));
    QCOMPARE(byName({"y", "", "x", 1}), QString("行情/日线"));
    QCOMPARE(byName({}), QString("行情/日线"));
}

void TestTreeWidgets::searchOpensTheFirstLeafThatRemains()
{
    load();
    const auto found = [this](const QString &text) {
        m_container->mainTree()->slotSearch(text);
        return TreeText::lines(*view()->model()).join('|') + " > " + pathOf(view()->currentIndex());
    };
    const QString all = found("");
    QCOMPARE(all, QString("行情|  日线|  指数|    Absolute|    abbey|公司|  资料|  网站 > 行情/日线"));
    QCOMPARE(found("AB"), QString("行情|  指数|    Absolute|    abbey > 行情/指数/Absolute"));
    QCOMPARE(found("abb"), QString("行情|  指数|    abbey > 行情/指数/abbey"));
    QCOMPARE(found("^资|^日"), QString("行情|  日线|公司|  资料 > 行情/日线"));
    QCOMPARE(opened(), QStringList({"260 日线", "261 Absolute", "262 abbey", "260 日线"}));
    QCOMPARE(found("公司"), QString(" > ")); // a folder's own match is not enough
    QCOMPARE(found("a("), QString(" > "));   // no pattern at all
    QCOMPARE(found(""), all);
    QCOMPARE(opened(), QStringList());
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

void TestTreeWidgets::clickOpensWhatIsNotOpenYet()
{
    load();
    QCOMPARE(opened(), QStringList({"260 日线"}));
    for (const auto &rows : {at({0, 0}), at({1}), at({0, 0})}) // the open leaf, and a folder in between
        emit view()->clicked(rows);
    QCOMPARE(opened(), QStringList());

    for (const auto &rows : {at({1, 0}), at({0, 0}), at({1, 1}), at({1, 1})})
        emit view()->clicked(rows);
    QCOMPARE(opened(), QStringList({"263 资料", "260 日线", "264 网站 http://127.0.0.1:1/x",
                                    "264 网站 http://127.0.0.1:1/x"}));
}

void TestTreeWidgets::leafTellsItsTopGroup()
{
    QJsonArray rows = TreeText::navigation();
    rows.append(TreeText::node(30, 2, "顶层叶", 1, 300));
    m_container->loadMainTreeByCode("13", rows, 2, QString());
    emit view()->clicked(at({0, 1})); // a folder
    emit view()->clicked(at({2}));    // a leaf without a group

    QCOMPARE(m_groups, QStringList("行情"));
}

void TestTreeWidgets::topGroupOpensWithAllBelow()
{
    m_container->resize(300, 600);
    m_container->show();
    view()->setAnimated(false); // clicks are lost while it moves
    load();
    const auto doubleClick = [this](const QModelIndex &index) {
        const QPoint place = view()->visualRect(index).center();
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, place);
    };
    view()->collapseAll();
    view()->expand(at({0}));
    QVERIFY(view()->isExpanded(at({0, 1})));
    view()->collapseAll();

    doubleClick(at({0}));
    QVERIFY(view()->isExpanded(at({0})) && view()->isExpanded(at({0, 1})));
    doubleClick(at({0, 1}));
    QVERIFY(view()->isExpanded(at({0})) && !view()->isExpanded(at({0, 1})));
    doubleClick(at({0}));
    QVERIFY(!view()->isExpanded(at({0})));
}

void TestTreeWidgets::keyboardOpensAndFolds()
{
    load();
    view()->setCurrentIndex(at({1, 0}));
    QTest::keyClick(view(), Qt::Key_Return);
    QCOMPARE(opened(), QStringList({"260 日线", "263 资料"}));
    view()->collapseAll();
    view()->setCurrentIndex(at({1}));
    QTest::keyClick(view(), Qt::Key_Enter);
    QVERIFY(view()->isExpanded(at({1})));
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
    const auto root = [this](const QString &text) {
        m_container->setRootSector(text);
        return pathOf(blockView()->rootIndex());
    };
    QCOMPARE(root("沪深"), QString("沪深"));
    QCOMPARE(root("3"), QString("沪深/深圳"));
    QCOMPARE(root("nobody"), QString("沪深/深圳"));
    QCOMPARE(root(""), QString("沪深/深圳"));
}

void TestTreeWidgets::newRowsReplaceTheTree()
{
    load();
    const QPointer<TFSubjectTreeModel> old = m_container->mainTree()->model();

    m_container->loadMainTreeByCode("", QJsonArray{TreeText::node(40, 2, "新", 1, 400)}, 2, "");
    m_container->mainTree()->setModel(nullptr);
    QVERIFY(!old);
    QCOMPARE(TreeText::lines(*view()->model()), QStringList({"新"}));

    QVERIFY(!m_container->loadMainTreeByName({}, QJsonArray(), 2, "x"));
    m_container->mainTree()->slotSearch("a");
    QVERIFY(!m_container->mainTree()->hasRows());
    QCOMPARE(opened(), QStringList({"260 日线", "400 新"}));
}

SUBJECT_TEST_MAIN(TestTreeWidgets)
#include "tst_treewidgets.moc"
