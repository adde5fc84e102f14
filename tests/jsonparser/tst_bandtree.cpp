#include "subjecttest.h"

#include "jsonparser/tfbandtreebuilder.h"
#include "mulittable/tfheaderdatastruct.h"
#include "mulittable/tfunits.h"

Q_DECLARE_METATYPE(HeaderFieldInfo)

namespace {
HeaderFieldInfo field(const QString &name, const QString &owner = QString())
{
    HeaderFieldInfo info;
    info.fieldName = name;
    info.caption = name;
    info.ownerBand = owner;
    info.visible = true;
    return info;
}

HeaderFieldInfo unitField(const QString &name, const QString &owner, int category, const QString &unit,
                          int captionShowType)
{
    HeaderFieldInfo info = field(name, owner);
    info.columnType = "bandedGridColumnWithUnit";
    info.unitCategory = category;
    info.showUnit = unit;
    info.captionShowType = captionShowType;
    return info;
}

/// "B{a b C{c}}" for the children of a node.
QString written(const TFTreeStruct &node)
{
    QStringList children;
    const auto all = node.children();
    for (const TFTreeStruct *child : all)
        children.append(child->displayCaption() +
                        (child->hasChildren() ? '{' + written(*child) + '}' : QString()));
    return children.join(' ');
}

QString captionsOf(const QList<TFTreeStruct *> &nodes)
{
    QStringList captions;
    for (const TFTreeStruct *node : nodes)
        captions.append(node->displayCaption());
    return captions.join(' ');
}
} // namespace

class TestBandTree : public SubjectTest
{
    Q_OBJECT

private slots:
    void flatListBecomesATree_data();
    void flatListBecomesATree();
    void bandsNestToALimit();
    void manyColumnsBuildQuickly();
    void treeAnswersByLevelAndLeaf();
    void groupColumnIsTheOnlyHiddenLeaf();
    void unitChangeReplacesTheUnitOfItsCategory();
    void bandHandsItsFactorsDown();
    void unitsAreFoundByTheirFirstName();
};

void TestBandTree::flatListBecomesATree_data()
{
    QTest::addColumn<QList<HeaderFieldInfo>>("fields");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<int>("depth");
    using Fields = QList<HeaderFieldInfo>;
    HeaderFieldInfo hiddenBand = field("B");
    hiddenBand.visible = false;
    HeaderFieldInfo hiddenLeaf = field("a", "B");
    hiddenLeaf.visible = false;
    testRow("nothing", Fields(), "", 1);
    testRow("three columns", Fields{field("a"), field("b", "0"), field("c")}, "a b c", 2);
    testRow("columns before their bands",
            Fields{field("c", "C"), field("a", "B"), field("B"), field("C", "B"), field("z")}, "B{a C{c}} z",
            4);
    testRow("unknown band", Fields{field("a", "none"), field("b")}, "b", 2);
    testRow("band names match exactly", Fields{field("a", "b"), field("B")}, "B", 2);
    testRow("hidden band takes its columns along", Fields{hiddenBand, field("a", "B"), field("b")}, "b", 2);
    testRow("hidden column leaves its band a column", Fields{field("B"), hiddenLeaf}, "B", 2);
    testRow("bands in a circle", Fields{field("A", "B"), field("B", "A"), field("C", "C"), field("x")}, "x",
            2);
    testRow("two bands of one name", Fields{field("B"), field("a", "B"), field("B"), field("b", "B")},
            "B{a b} B", 3);
    testRow("column without a name", Fields{field(""), field("a"), field("b")}, " a b", 2);
    testRow("band called 0", Fields{field("0"), field("a", "0"), field("b")}, "0 a b", 2);
    testRow("one column twice", Fields{field("a"), field("a")}, "a a", 2);
}

void TestBandTree::flatListBecomesATree()
{
    QFETCH(QList<HeaderFieldInfo>, fields);
    TFTreeStruct root("root");
    root.addChild(new TFTreeStruct("old"));
    TFBandTreeBuilder::build(root, fields);
    QTEST(written(root), "tree");
    QTEST(root.depth(), "depth");
    QCOMPARE(root.displayCaption(), QString("root"));
}

void TestBandTree::bandsNestToALimit()
{
    QList<HeaderFieldInfo> fields{field("0th")};
    for (int i = 1; i < 50000; ++i)
        fields.append(field(QString::number(i), i == 1 ? "0th" : QString::number(i - 1)));
    TFTreeStruct root("");
    expectWarning("bands nest too deep: \"199\"");
    TFBandTreeBuilder::build(root, fields);
    QCOMPARE(root.depth(), TFBandTreeBuilder::DeepestBand + 1);
    QCOMPARE(root.leafCaptions(), QStringList("199"));
}

void TestBandTree::manyColumnsBuildQuickly()
{
    QList<HeaderFieldInfo> fields;
    for (int i = 0; i < 50000; ++i)
        fields.append(field(QString("c%1").arg(i), QString("B%1").arg(i % 100)));
    for (int i = 0; i < 100; ++i)
        fields.append(field(QString("B%1").arg(i)));
    TFTreeStruct root("");
    QElapsedTimer timer;
    timer.start();
    TFBandTreeBuilder::build(root, fields);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(root.leaves().size(), 50000);
    QCOMPARE(root.leafCaptions().at(1), QString("c100"));
}

void TestBandTree::treeAnswersByLevelAndLeaf()
{
    TFTreeStruct root("");
    QVERIFY(root.leaves().isEmpty() && root.nodesAtLevel(1).isEmpty() && !root.hasChildren());
    HeaderFieldInfo memo = field("b", "B");
    memo.width = 42;
    TFBandTreeBuilder::build(
        root, {field("B"), field("a", "B"), memo, field("C"), field("D", "C"), field("c", "D"), field("z")});

    QCOMPARE(root.leafCaptions(), QStringList({"a", "b", "c", "z"}));
    QCOMPARE(captionsOf(root.nodesAtLevel(1)), QString("B C z"));
    QCOMPARE(captionsOf(root.nodesAtLevel(2)), QString("a b D"));
    QCOMPARE(captionsOf(root.nodesAtLevel(3)), QString("c"));
    QVERIFY(root.nodesAtLevel(4).isEmpty());
    QVERIFY(root.hasChildren(root.findField("D")) && !root.hasChildren(root.findField("c")));
    QCOMPARE(root.findField("c")->parent()->displayCaption(), QString("D"));
    QCOMPARE(root.findField(""), &root);
    QVERIFY(!root.findField("none"));
    const QList<HeaderFieldInfo *> records = root.leafRecords();
    QCOMPARE(records.at(1)->width, 42);
    qDeleteAll(records);

    root.addChild(new TFTreeStruct(field("late")));
    QCOMPARE(root.leafCaptions().last(), QString("late"));
    root.clearChildren();
    QVERIFY(root.leaves().isEmpty());
}

void TestBandTree::groupColumnIsTheOnlyHiddenLeaf()
{
    TFTreeStruct root("");
    TFBandTreeBuilder::build(root, {field("G"), field("a")}, TFBandTreeBuilder::groupColumn("G"));
    QCOMPARE(root.leafCaptions(), QStringList({"G", "a", "G"}));
    QCOMPARE(root.hiddenLeafIndexes(), QList<int>{2});
    QCOMPARE(root.leaves().last()->info().level, 1);

    TFBandTreeBuilder::build(root, {field("B"), field("a", "B")}, TFBandTreeBuilder::groupColumn(""));
    QCOMPARE(written(root), QString("B{a} "));
    root.showBands();
    QVERIFY(root.children().first()->info().visible && !root.children().last()->info().visible);
}

void TestBandTree::unitChangeReplacesTheUnitOfItsCategory()
{
    HeaderFieldInfo band = unitField("B", "", 1, "亿元", 3);
    band.columnType = "band";
    HeaderFieldInfo plain = unitField("plain", "B", 1, "元", 1);
    plain.columnType = "HyperLinkEdit";
    TFTreeStruct root("");
    TFBandTreeBuilder::build(root, {band, unitField("a", "B", 1, "元", 1), unitField("b", "B", 2, "股", 1),
                                    unitField("c", "B", 1, "元", 2), unitField("d", "B", 1, "", 1), plain});
    QCOMPARE(written(root), QString("B(亿元){a(元) b(股) c d plain}"));
    QCOMPARE(root.firstUnit(), QString("亿元"));

    root.updateUnit("百元", 1);
    root.updateUnit("万元", 1);
    QCOMPARE(written(root), QString("B(万元){a(万元) b(股) c d plain}"));
    QCOMPARE(root.firstUnit(), QString("万元"));
    QCOMPARE(root.findField("c")->currentUnit(), QString("元"));
    root.updateUnit("", 2);
    QCOMPARE(root.findField("b")->displayCaption(), QString("b()"));
}

void TestBandTree::bandHandsItsFactorsDown()
{
    const auto factorsOfLeaf = [](qint64 bandFactor, int bandCategory) {
        HeaderFieldInfo band = field("B");
        band.showUnitFactor = bandFactor;
        band.prevUnitFactor = 7;
        band.unitCategory = bandCategory;
        HeaderFieldInfo leaf = field("a", "C");
        leaf.showUnitFactor = 5;
        leaf.prevUnitFactor = 1;
        leaf.unitCategory = 2;
        HeaderFieldInfo inner = field("C", "B");
        inner.showUnitFactor = 3;
        inner.unitCategory = 3;
        TFTreeStruct root("");
        TFBandTreeBuilder::build(root, {band, inner, leaf});
        const HeaderFieldInfo &info = root.leaves().first()->info();
        return QString("%1/%2 %3").arg(info.prevUnitFactor).arg(info.showUnitFactor).arg(info.unitCategory);
    };
    QCOMPARE(factorsOfLeaf(10000, 1), QString("7/10000 1"));
    QVERIFY(debugLines().value(0).startsWith("unit test: 10000 7 1 \"B\" true \"B\""));
    QCOMPARE(factorsOfLeaf(0, 1), QString("1/5 2"));
    QCOMPARE(factorsOfLeaf(10000, 0), QString("1/5 2"));
}

void TestBandTree::unitsAreFoundByTheirFirstName()
{
    QCOMPARE(TFUnits::all().size(), 43);
    QStringList rates;
    const auto units = TFUnits::unitsOfCategory(7);
    for (const TFUnits::Unit &unit : units)
        rates.append(QString("%1 %2 %3").arg(unit.unitCode).arg(unit.exponent).arg(unit.unitName));
    QCOMPARE(rates, QStringList({"7002 2 原始值", "7003 1 %", "7004 -1 ‰", "7005 -2 BP"}));
    QVERIFY(TFUnits::unitsOfCategory(4).isEmpty());
    QCOMPARE(TFUnits::unitCodeOfName("元"), 1000);
    QCOMPARE(TFUnits::unitCodeOfName("none"), -1);
    QCOMPARE(TFUnits::unitNameOfCode(3001), QString("手（十张）"));
    QVERIFY(TFUnits::unitNameOfCode(1).isEmpty());
    QCOMPARE(TFUnits::unitExponentOfCode(1009), 9);
    QCOMPARE(TFUnits::unitExponentOfCode(1), -100);
    for (const TFUnits::Unit &unit : TFUnits::all())
        QCOMPARE(unit.unitCode / 1000, unit.unitCategory);
}

SUBJECT_TEST_MAIN(TestBandTree)
#include "tst_bandtree.moc"
