#include "parserdocument.h"
#include "subjecttest.h"

#include "jsonparser/tfbandtreebuilder.h"
#include "mulittable/tfheaderdatastruct.h"

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

/// Fields written as "name@band", hidden ones with a "-" before it.
QList<HeaderFieldInfo> fieldsOf(const QString &text)
{
    QList<HeaderFieldInfo> fields;
    for (const QString &one : text.split(' ', Qt::SkipEmptyParts)) {
        const bool isHidden = one.startsWith('-');
        fields.append(field(one.mid(isHidden).section('@', 0, 0), one.section('@', 1)));
        fields.last().visible = !isHidden;
    }
    return fields;
}

/// "B{a b C{c}}" of nodes with all below them.
QString written(const QList<TFTreeStruct *> &nodes)
{
    QStringList captions;
    for (const TFTreeStruct *node : nodes)
        captions.append(node->displayCaption() +
                        (node->hasChildren() ? '{' + written(node->children()) + '}' : QString()));
    return captions.join(' ');
}
} // namespace

class TestBandTree : public SubjectTest
{
    Q_OBJECT

private slots:
    void flatListBecomesATree_data();
    void flatListBecomesATree();
    void deepBandsAndManyColumnsEnd();
    void treeAnswersByLevelAndLeaf();
    void groupColumnIsTheOnlyHiddenLeaf();
    void unitChangeReplacesTheUnitOfItsCategory();
    void bandHandsItsFactorsDown();
};

void TestBandTree::flatListBecomesATree_data()
{
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<int>("depth");
    testRow("nothing", "", "", 1);
    testRow("three columns", "a b@0 c", "a b c", 2);
    testRow("columns before their bands", "c@C a@B B C@B z", "B{a C{c}} z", 4);
    testRow("unknown band", "a@none b", "b", 2);
    testRow("band names match exactly", "a@b B", "B", 2);
    testRow("hidden band takes its columns along", "-B a@B b", "b", 2);
    testRow("hidden column leaves its band a column", "B -a@B", "B", 2);
    testRow("bands in a circle", "A@B B@A C@C x", "x", 2);
    testRow("two bands of one name", "B a@B B b@B", "B{a b} B", 3);
    testRow("column without a name", "@ a b", " a b", 2);
    testRow("band called 0", "0 a@0 b", "0 a b", 2);
    testRow("one column twice", "a a", "a a", 2);
}

void TestBandTree::flatListBecomesATree()
{
    QFETCH(QString, fields);
    TFTreeStruct root("root");
    root.addChild(new TFTreeStruct("old"));
    TFBandTreeBuilder::build(root, fieldsOf(fields));
    QTEST(written(root.children()), "tree");
    QTEST(root.depth(), "depth");
    QCOMPARE(root.displayCaption(), QString("root"));
}

void TestBandTree::deepBandsAndManyColumnsEnd()
{
    QList<HeaderFieldInfo> fields{field("D0")};
    for (int i = 0; i < 50000; ++i) {
        fields.append(field(QString("D%1").arg(i + 1), QString("D%1").arg(i)));
        fields.append(field(QString("c%1").arg(i), QString("B%1").arg(i % 100)));
    }
    for (int i = 0; i < 100; ++i)
        fields.append(field(QString("B%1").arg(i)));
    TFTreeStruct root("");
    QElapsedTimer timer;
    timer.start();
    expectWarning("bands nest too deep: \"D199\"");
    TFBandTreeBuilder::build(root, fields);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(root.depth(), TFBandTreeBuilder::DeepestBand + 1);
    QCOMPARE(root.leaves().size(), 50001);
    QCOMPARE(root.leafCaptions().mid(0, 3), QStringList({"D199", "c0", "c100"}));
}

void TestBandTree::treeAnswersByLevelAndLeaf()
{
    TFTreeStruct root("");
    QVERIFY(root.leaves().isEmpty() && root.nodesAtLevel(1).isEmpty() && !root.hasChildren());
    TFBandTreeBuilder::build(root, fieldsOf("B a@B b@B C D@C c@D z"));

    QCOMPARE(root.leafCaptions(), QStringList({"a", "b", "c", "z"}));
    QCOMPARE(written(root.nodesAtLevel(1)), QString("B{a b} C{D{c}} z"));
    QCOMPARE(written(root.nodesAtLevel(2)), QString("a b D{c}"));
    QCOMPARE(written(root.nodesAtLevel(3)) + written(root.nodesAtLevel(4)), QString("c"));
    QVERIFY(root.hasChildren(root.findField("D")) && !root.hasChildren(root.findField("c")));
    QVERIFY(root.findField("c")->parent() == root.findField("D"));
    QVERIFY(root.findField("") == &root && !root.findField("none"));
    const QList<HeaderFieldInfo *> records = root.leafRecords();
    QCOMPARE(records.at(1)->fieldName, QString("b"));
    qDeleteAll(records);

    root.addChild(new TFTreeStruct(field("late")));
    QCOMPARE(root.leafCaptions().last(), QString("late"));
    root.clearChildren();
    QVERIFY(root.leaves().isEmpty());
}

void TestBandTree::groupColumnIsTheOnlyHiddenLeaf()
{
    TFTreeStruct root("");
    TFBandTreeBuilder::build(root, fieldsOf("G a"), TFBandTreeBuilder::groupColumn("G"));
    QCOMPARE(root.leafCaptions(), QStringList({"G", "a", "G"}));
    QCOMPARE(root.hiddenLeafIndexes(), QList<int>{2});
    QCOMPARE(root.leaves().last()->info().level, 1);

    TFBandTreeBuilder::build(root, fieldsOf("B a@B"), TFBandTreeBuilder::groupColumn(""));
    QCOMPARE(written(root.children()), QString("B{a} "));
    root.showBands();
    QVERIFY(root.children().first()->info().visible && !root.children().last()->info().visible);
}

void TestBandTree::unitChangeReplacesTheUnitOfItsCategory()
{
    QList<HeaderFieldInfo> fields = fieldsOf("B a@B b@B c@B d@B plain@B");
    const QStringList units{"亿元", "元", "股", "元", "", "元"};
    const int showTypes[] = {3, 1, 1, 2, 1, 1};
    for (int i = 0; i < fields.size(); ++i) {
        fields[i].columnType = "bandedGridColumnWithUnit";
        fields[i].unitCategory = i == 2 ? 2 : 1;
        fields[i].showUnit = units.at(i);
        fields[i].captionShowType = showTypes[i];
    }
    fields.first().columnType = "band";
    fields.last().columnType = "HyperLinkEdit";
    TFTreeStruct root("");
    TFBandTreeBuilder::build(root, fields);
    QCOMPARE(written(root.children()), QString("B(亿元){a(元) b(股) c d plain}"));
    QCOMPARE(root.firstUnit(), QString("亿元"));

    root.updateUnit("百元", 1);
    root.updateUnit("万元", 1);
    QCOMPARE(written(root.children()), QString("B(万元){a(万元) b(股) c d plain}"));
    QCOMPARE(root.firstUnit(), QString("万元"));
    QCOMPARE(root.findField("c")->currentUnit(), QString("元"));
    root.updateUnit("", 2);
    QCOMPARE(root.findField("b")->displayCaption(), QString("b()"));
}

void TestBandTree::bandHandsItsFactorsDown()
{
    const auto factorsOfLeaf = [](qint64 bandFactor, int bandCategory) {
        QList<HeaderFieldInfo> fields = fieldsOf("B C@B a@C");
        const qint64 factors[][3] = {{bandFactor, 7, bandCategory}, {3, 0, 3}, {5, 1, 2}};
        for (int i = 0; i < 3; ++i) {
            fields[i].showUnitFactor = factors[i][0];
            fields[i].prevUnitFactor = factors[i][1];
            fields[i].unitCategory = int(factors[i][2]);
        }
        TFTreeStruct root("");
        TFBandTreeBuilder::build(root, fields);
        const HeaderFieldInfo &info = root.leaves().first()->info();
        return line(info.prevUnitFactor, info.showUnitFactor, info.unitCategory);
    };
    QCOMPARE(factorsOfLeaf(10000, 1), QString("7 10000 1"));
    QVERIFY(debugLines().value(0).startsWith("unit test: 10000 7 1 \"B\" true \"B\""));
    QCOMPARE(factorsOfLeaf(0, 1), QString("1 5 2"));
    QCOMPARE(factorsOfLeaf(10000, 0), QString("1 5 2"));
}

SUBJECT_TEST_MAIN(TestBandTree)
#include "tst_bandtree.moc"
