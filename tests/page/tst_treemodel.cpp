#include "subjecttest.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>

#include "tftreeitem.h"
#include "tftreemodel.h"
#include "treetext.h"

using TreeText::block;
using TreeText::node;

class TestTreeModel : public SubjectTest
{
    Q_OBJECT

private slots:
    void rowsHangUnderTheFirstRowWithTheirParentsCode_data();
    void rowsHangUnderTheFirstRowWithTheirParentsCode();
    void valuesThatAreNoRowsGiveNoTree();
    void bothKindsOfTreeObeyTheModelContract();
    void nodeCarriesItsRow();
    void checkSpreadsToAllDescendants();
    void hundredThousandRowsInOneChainTakeNoLongTime();
};

void TestTreeModel::rowsHangUnderTheFirstRowWithTheirParentsCode_data()
{
    QTest::addColumn<QJsonArray>("rows");
    QTest::addColumn<QStringList>("expected");

    testRow("child before its parent", QJsonArray{node(11, 10, "b"), node(10, 2, "a")},
            QStringList{"a", "  b"});
    testRow("children in array order", QJsonArray{node(3, 2, "c"), node(1, 2, "a"), node(9, 2, "b")},
            QStringList{"c", "a", "b"});
    testRow("row with the root's code is dropped",
            QJsonArray{node(2, 0, "root"), node(2, 2, "constant"), node(10, 2, "a")}, QStringList{"a"});
    testRow("first of two rows with one code takes the children",
            QJsonArray{node(10, 2, "a"), node(10, 2, "b"), node(11, 10, "c")}, QStringList{"a", "  c", "b"});
    testRow("row that is its own parent goes to the next with its code",
            QJsonArray{node(10, 10, "a"), node(10, 2, "b"), node(11, 10, "c")},
            QStringList{"b", "  a", "    c"});
    testRow("orphans are left out", QJsonArray{node(10, 77, "a"), node(11, 10, "b"), node(12, 2, "c")},
            QStringList{"c"});
    testRow("circle is left out",
            QJsonArray{node(10, 12, "a"), node(11, 10, "b"), node(12, 11, "c"), node(13, 2, "d"),
                       node(14, 14, "e")},
            QStringList{"d"});
    testRow("row with code 0 does not swallow the root", QJsonArray{node(0, 2, "zero"), node(10, 2, "a")},
            QStringList{"zero", "a"});
    testRow("other values are passed over",
            QJsonArray{1, "text", QJsonValue(), QJsonArray{}, QJsonObject{}, node(10, 2, "a")},
            QStringList{"a"});
    testRow("codes as text",
            QJsonArray{QJsonObject{{"NODE_CODE", "12"}, {"P_NODE_CODE", "2"}, {"NODE_CAP", "a"}},
                       node(13, 12, "b")},
            QStringList{"a", "  b"});
}

void TestTreeModel::rowsHangUnderTheFirstRowWithTheirParentsCode()
{
    QFETCH(QJsonArray, rows);

    TFSubjectTreeModel model;

    QVERIFY(model.build(rows, 2, false));
    QTEST(TreeText::lines(model), "expected");
}

void TestTreeModel::valuesThatAreNoRowsGiveNoTree()
{
    for (const QJsonValue &rows :
         {QJsonValue(), QJsonValue(QJsonArray{}), QJsonValue(QJsonObject{{"a", 1}})}) {
        TFSubjectTreeModel model;
        QVERIFY(!model.build(rows, 2, false));
        QCOMPARE(model.rowCount(), 0);
    }
}

void TestTreeModel::bothKindsOfTreeObeyTheModelContract()
{
    TFSubjectTreeModel main;
    TFSubjectTreeModel blocks;
    QAbstractItemModelTester mainTester(&main, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QAbstractItemModelTester blockTester(&blocks, QAbstractItemModelTester::FailureReportingMode::QtTest);

    main.build(TreeText::navigation(), 2, false);
    blocks.build(TreeText::blocks(), 99, true);
    blocks.setData(blocks.index(0, 0), Qt::Checked, Qt::CheckStateRole);
    blocks.clearChecks();

    QCOMPARE(TreeText::lines(main), QStringList({"行情", "  日线", "  指数", "    Absolute", "    abbey",
                                                 "公司", "  资料", "  网站"}));
    QCOMPARE(TreeText::lines(blocks), QStringList({"沪深", "  上海", "  深圳", "    GEM", "其他"}));
    const QModelIndex index = main.index(0, 0);
    QVERIFY(!main.setData(index, Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!index.data(Qt::CheckStateRole).isValid());
    QVERIFY(!(index.flags() & Qt::ItemIsUserCheckable));
    QVERIFY(main.checkedCodes().isEmpty());
}

void TestTreeModel::nodeCarriesItsRow()
{
    TFSubjectTreeModel model;
    model.build(QJsonArray{node(10, 2, "网站", 3, 264, "http://a/")}, 2, false);
    const QModelIndex index = model.index(0, 0);

    QStringList roles;
    for (int role = TFTreeItem::CodeRole; role <= TFTreeItem::UrlRole; ++role)
        roles << index.data(role).toString();
    QCOMPARE(roles, QStringList({"10", "2", "1", "3", "264", "http://a/"}));
    QCOMPARE(model.headerData(TFTreeItem::CodeRole, Qt::Horizontal).toInt(), 2);
    QVERIFY(!model.headerData(TFTreeItem::CodeRole, Qt::Vertical).isValid());
    QVERIFY(!TFSubjectTreeModel::createBlockNode({})->data(TFTreeItem::ViewIdRole).isValid());
    QVERIFY(debugLines().filter("node infor").join("").contains("10"));
}

void TestTreeModel::checkSpreadsToAllDescendants()
{
    TFSubjectTreeModel model;
    model.build(TreeText::blocks(), 0, true);
    QSignalSpy changes(&model, &TFSubjectTreeModel::dataChanged);

    QVERIFY(!model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!model.setData(model.index(1, 0), Qt::PartiallyChecked, Qt::CheckStateRole));
    QVERIFY(!model.setData(model.index(1, 0), "no state", Qt::CheckStateRole));

    QCOMPARE(TreeText::lines(model),
             QStringList({"[x] 沪深", "  [x] 上海", "  [x] 深圳", "    [x] GEM", "其他"}));
    QCOMPARE(changes.count(), 4);
    QVariantList codes = model.checkedCodes();
    std::sort(codes.begin(), codes.end());
    QCOMPARE(codes, QVariantList({1, 2, 3, 4}));

    model.setData(model.index(1, 0, model.index(0, 0)), Qt::Unchecked, Qt::CheckStateRole);
    QCOMPARE(TreeText::lines(model), QStringList({"[x] 沪深", "  [x] 上海", "  深圳", "    GEM", "其他"}));
}

void TestTreeModel::hundredThousandRowsInOneChainTakeNoLongTime()
{
    // Deeper than the stack, every row before its parent: a search for each parent would take far longer.
    constexpr int depth = 100000;
    QJsonArray rows;
    for (int i = depth; i > 0; --i)
        rows.append(block(i, i - 1, QString::number(i)));
    QElapsedTimer timer;
    timer.start();
    {
        TFSubjectTreeModel model;
        QVERIFY(model.build(rows, 0, true));
        model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole);
        QCOMPARE(model.checkedCodes().size(), depth);
    }
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString("%1 ms").arg(timer.elapsed())));
}

SUBJECT_TEST_MAIN(TestTreeModel)
#include "tst_treemodel.moc"
