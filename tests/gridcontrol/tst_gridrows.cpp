#include "gridfixture.h"

#include <subjecttest.h>

#include <quotemodel.h>

#include <QAbstractItemModelTester>

class GridRowsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void plainOrderHoldsNothingPerRow();
    void rowsSortByRole_data();
    void rowsSortByRole();
    void missingValuesComeLastEitherWay();
    void sortIsStableAndLeavesTheModelAlone();
    void groupsHaveKeysAndCounts();
    void sortStaysWithinGroups();
    void groupsNest();
    void openGroupsStayOpenWhenRowsCome();
    void rowModelKeepsTheRulesOfModels();
    void silentlyExchangedRowsAreSeen();
    void changedValueFindsItsNewPlace();
    void rootThatVanishesLeavesAnEmptyTable();
    void arrangingReadsEachRowOnce();
};

namespace {
QString rowsOf(const RowModel &rows, int role = Qt::DisplayRole)
{
    QStringList all;
    for (int line = 0; line < rows.rowCount(); ++line)
        all.append(rows.index(line, 0).data(role).toString());
    return all.join(' ');
}

void fillValues(QStandardItemModel &model, const QVariantList &values)
{
    for (const QVariant &value : values) {
        auto *item = new QStandardItem;
        item->setData(value, Qt::DisplayRole);
        model.appendRow(item);
    }
}

SortOrder byFirst(bool descending = false, bool localeAware = false)
{
    return {0, Qt::DisplayRole, descending, localeAware, QLocale(QLocale::English)};
}

QStandardItemModel &shares(QStandardItemModel &model)
{
    const QVector<QStringList> rows{
        {"e", "SZ", "x"}, {"a", "SH", "x"}, {"d", "SZ", "y"}, {"c", "SH", "x"}, {"b", "SZ", "x"}};
    for (const QStringList &row : rows) {
        QList<QStandardItem *> items;
        for (const QString &text : row)
            items.append(new QStandardItem(text));
        model.appendRow(items);
    }
    return model;
}

QString groupedRows(const RowModel &rows)
{
    QStringList all;
    for (int line = 0; line < rows.rowCount(); ++line) {
        const RowGroup *group = rows.order().groupAt(line);
        all.append(group ? QStringLiteral("[%1 %2]").arg(group->key).arg(group->count())
                         : rows.index(line, 0).data().toString());
    }
    return all.join(' ');
}
} // namespace

void GridRowsTest::plainOrderHoldsNothingPerRow()
{
    QuoteModel model(1000000, 10);
    RowModel rows;
    rows.setSource(&model, {});

    QVERIFY(rows.order().isPlain());
    QCOMPARE(rows.rowCount(), 1000000);
    QCOMPARE(rows.sourceIndex(999999, 3), model.index(999999, 3));
}

void GridRowsTest::rowsSortByRole_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<bool>("localeAware");
    QTest::addColumn<QString>("up");

    testRow("numbers by value", QVariantList{10, 9.5, -2, 100}, true, "-2 9.5 10 100");
    testRow("numbers before texts", QVariantList{"b", 3, "a"}, false, "3 a b");
    testRow("texts by code point", QVariantList{"b", "B", "a10", "a9"}, false, "B a10 a9 b");
    testRow("digits by value where locale aware", QVariantList{"a10", "b", "a9"}, true, "a9 a10 b");
    testRow("dates by day", QVariantList{QDate(2024, 1, 2), QDate(2023, 12, 31)}, false,
            "2023-12-31 2024-01-02");
}

void GridRowsTest::rowsSortByRole()
{
    QFETCH(QVariantList, values);
    QFETCH(bool, localeAware);
    QFETCH(QString, up);
    QStandardItemModel model;
    fillValues(model, values);
    RowModel rows;
    rows.setSource(&model, {});

    rows.setSortOrder(byFirst(false, localeAware));
    QCOMPARE(rowsOf(rows), up);

    rows.setSortOrder(byFirst(true, localeAware));
    QStringList down = up.split(' ');
    std::reverse(down.begin(), down.end());
    QCOMPARE(rowsOf(rows), down.join(' '));

    rows.setSortOrder({});
    QCOMPARE(rows.sourceIndex(0, 0).row(), 0);
}

void GridRowsTest::missingValuesComeLastEitherWay()
{
    QStandardItemModel model;
    fillValues(model, {"", 2, QVariant(), 1, qQNaN()});
    RowModel rows;
    rows.setSource(&model, {});

    rows.setSortOrder(byFirst(false));
    QCOMPARE(rowsOf(rows).left(4), QString("1 2 "));
    rows.setSortOrder(byFirst(true));
    QCOMPARE(rowsOf(rows).left(4), QString("2 1 "));
}

void GridRowsTest::sortIsStableAndLeavesTheModelAlone()
{
    QStandardItemModel model;
    shares(model);
    RowModel rows;
    rows.setSource(&model, {});

    rows.setSortOrder({2, Qt::DisplayRole, false, false, {}});
    QCOMPARE(rowsOf(rows), QString("e a c b d"));
    rows.setSortOrder({2, Qt::DisplayRole, true, false, {}});
    QCOMPARE(rowsOf(rows), QString("d e a c b"));
    QCOMPARE(model.item(0)->text(), QString("e"));
}

void GridRowsTest::groupsHaveKeysAndCounts()
{
    QStandardItemModel model;
    RowModel rows;
    rows.setSource(&shares(model), {});

    rows.setGroupColumns({1});
    QCOMPARE(groupedRows(rows), QString("[SZ 3] [SH 2]"));

    rows.setAllOpen(true);
    QCOMPARE(groupedRows(rows), QString("[SZ 3] e d b [SH 2] a c"));

    rows.setOpen(0, false);
    QCOMPARE(groupedRows(rows), QString("[SZ 3] [SH 2] a c"));

    rows.reveal(2);
    QCOMPARE(groupedRows(rows), QString("[SZ 3] e d b [SH 2] a c"));
}

void GridRowsTest::sortStaysWithinGroups()
{
    QStandardItemModel model;
    RowModel rows;
    rows.setSource(&shares(model), {});
    rows.setGroupColumns({1});
    rows.setAllOpen(true);

    rows.setSortOrder(byFirst());
    QCOMPARE(groupedRows(rows), QString("[SZ 3] b d e [SH 2] a c"));

    // By the column of the groups it is the groups that sort.
    rows.setSortOrder({1, Qt::DisplayRole, false, false, {}});
    QCOMPARE(groupedRows(rows), QString("[SH 2] a c [SZ 3] e d b"));
}

void GridRowsTest::groupsNest()
{
    QStandardItemModel model;
    RowModel rows;
    rows.setSource(&shares(model), {});

    rows.setGroupColumns({1, 2});
    rows.setAllOpen(true);
    QCOMPARE(groupedRows(rows), QString("[SZ 3] [x 2] e b [y 1] d [SH 2] [x 2] a c"));
    QCOMPARE(rows.order().groupLineOver(4), 0);

    rows.setOpen(1, false);
    QCOMPARE(groupedRows(rows), QString("[SZ 3] [x 2] [y 1] d [SH 2] [x 2] a c"));
}

void GridRowsTest::openGroupsStayOpenWhenRowsCome()
{
    QStandardItemModel model;
    RowModel rows;
    rows.setSource(&shares(model), {});
    rows.setGroupColumns({1});
    rows.setOpen(1, true);

    model.appendRow({new QStandardItem("f"), new QStandardItem("SH"), new QStandardItem("x")});

    QCOMPARE(groupedRows(rows), QString("[SZ 3] [SH 3] a c f"));
}

void GridRowsTest::rowModelKeepsTheRulesOfModels()
{
    QStandardItemModel model;
    RowModel rows;
    QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::Fatal);
    rows.setSource(&shares(model), {});

    model.insertRow(1, {new QStandardItem("n"), new QStandardItem("BJ"), new QStandardItem("z")});
    model.removeRow(0);
    rows.setSortOrder(byFirst());
    model.appendRow({new QStandardItem("m"), new QStandardItem("BJ"), new QStandardItem("z")});
    model.removeRow(0);
    rows.setGroupColumns({1});
    rows.setOpen(1, true);
    rows.setOpen(1, false);
    rows.setAllOpen(true);
    rows.setRowFilter([](int row) { return row % 2 == 0; });
    rows.setAllOpen(false);
    rows.setRowFilter(nullptr);
    model.insertColumn(1);
    model.clear();

    QCOMPARE(rows.rowCount(), 0);
    rows.setSource(nullptr, {});
    QCOMPARE(rows.columnCount(), 0);
}

void GridRowsTest::silentlyExchangedRowsAreSeen()
{
    // Exchanges its rows and reports changed data only.
    struct Careless : QAbstractTableModel
    {
        int rows = 2;
        int rowCount(const QModelIndex &) const override { return rows; }
        int columnCount(const QModelIndex &) const override { return 1; }
        QVariant data(const QModelIndex &index, int) const override { return index.row(); }
        void exchange(int count)
        {
            rows = count;
            emit dataChanged(index(0, 0), index(count - 1, 0));
        }
    } model;
    RowModel rows;
    rows.setSource(&model, {});

    model.exchange(5);
    QCOMPARE(rows.rowCount(), 5);
    rows.setSortOrder(byFirst());
    model.exchange(3);
    QCOMPARE(rows.rowCount(), 3);
}

void GridRowsTest::changedValueFindsItsNewPlace()
{
    QStandardItemModel model;
    RowModel rows;
    rows.setSource(&shares(model), {});
    rows.setSortOrder(byFirst());

    model.item(1)->setText("z");

    QTRY_COMPARE(rowsOf(rows), QString("b c d e z"));
}

void GridRowsTest::rootThatVanishesLeavesAnEmptyTable()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem("root"));
    model.item(0)->appendRow(new QStandardItem("child"));
    RowModel rows;
    rows.setSource(&model, model.index(0, 0));
    QCOMPARE(rowsOf(rows), QString("child"));

    model.clear();
    QCOMPARE(rows.rowCount(), 0);
}

void GridRowsTest::arrangingReadsEachRowOnce()
{
    struct Counting : QuoteModel
    {
        using QuoteModel::QuoteModel;
        mutable int reads = 0;
        QVariant data(const QModelIndex &index, int role) const override
        {
            ++reads;
            return QuoteModel::data(index, role);
        }
    } model(1000, 8);
    RowModel rows;
    rows.setSource(&model, {});

    rows.setSortOrder({QuoteModel::Name, QuoteModel::valueRole, false, true, QLocale(QLocale::Chinese)});
    QCOMPARE(model.reads, 1000);
    rows.setSortOrder({});
    rows.setGroupColumns({QuoteModel::Board});
    rows.setAllOpen(true);
    QCOMPARE(model.reads, 2000);
    QCOMPARE(rows.rowCount(), 1004);
}

SUBJECT_TEST_MAIN(GridRowsTest)
#include "tst_gridrows.moc"
