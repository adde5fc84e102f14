#include "gridfixture.h"

#include <subjecttest.h>

#include <quotemodel.h>

#include <QAbstractItemModelTester>

namespace {
QList<QStandardItem *> share(const QStringList &texts)
{
    QList<QStandardItem *> items;
    for (const QString &text : texts)
        items.append(new QStandardItem(text));
    return items;
}

void fillShares(QStandardItemModel &model)
{
    for (const char *row : {"e SZ x", "a SH x", "d SZ y", "c SH x", "b SZ x"})
        model.appendRow(share(QString(row).split(' ')));
}

SortOrder by(int column, bool descending = false, bool localeAware = false)
{
    return {column, Qt::DisplayRole, descending, localeAware, QLocale(QLocale::English)};
}
} // namespace

class GridRowsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_model = std::make_unique<QStandardItemModel>();
        m_rows = std::make_unique<RowModel>();
    }

    void rowsSortByRole_data()
    {
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<bool>("localeAware");
        QTest::addColumn<QString>("up");
        QTest::addColumn<QString>("down");

        testRow("numbers by value", QVariantList{10, 9.5, -2, 100}, true, "-2 9.5 10 100", "100 10 9.5 -2");
        testRow("numbers before texts", QVariantList{"b", 3, "a"}, false, "3 a b", "b a 3");
        testRow("texts by code point", QVariantList{"b", "B", "a10", "a9"}, false, "B a10 a9 b",
                "b a9 a10 B");
        testRow("digits by value where locale aware", QVariantList{"a10", "b", "a9"}, true, "a9 a10 b",
                "b a10 a9");
        testRow("dates by day", QVariantList{QDate(2024, 1, 2), QDate(2023, 12, 31)}, false,
                "2023-12-31 2024-01-02", "2024-01-02 2023-12-31");
        testRow("missing last either way", QVariantList{"", 2, QVariant(), 1, qQNaN()}, false, "1 2   nan",
                "2 1   nan");
    }

    void rowsSortByRole()
    {
        QFETCH(QVariantList, values);
        QFETCH(bool, localeAware);
        setValues(values);

        m_rows->setSortOrder(by(0, false, localeAware));
        QTEST(linesOf(*m_rows), "up");
        m_rows->setSortOrder(by(0, true, localeAware));
        QTEST(linesOf(*m_rows), "down");
        m_rows->setSortOrder({});
        QCOMPARE(m_rows->sourceIndex(0, 0).row(), 0);
    }

    void rowsStandAsTheyAreArranged_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("lines");
        testRow("stable upwards", "sort 2", "e a c b d");
        testRow("stable downwards", "sort 2 down", "d e a c b");
        testRow("changed value finds its place", "sort 0, change 1", "b c d e z");
        testRow("groups are closed first", "group 1", "[SZ 3] [SH 2]");
        testRow("row revealed", "group 1, reveal 2", "[SZ 3] e d b [SH 2]");
        testRow("sorted within groups", "group 1, open, sort 0", "[SZ 3] b d e [SH 2] a c");
        testRow("sorted by the groups", "group 1, open, sort 1", "[SH 2] a c [SZ 3] e d b");
        testRow("nested", "group 1 2, open", "[SZ 3] [x 2] e b [y 1] d [SH 2] [x 2] a c");
        testRow("inner closed", "group 1 2, open, close 1", "[SZ 3] [x 2] [y 1] d [SH 2] [x 2] a c");
        testRow("row comes to an open group", "group 1, reveal 1, add", "[SZ 3] [SH 3] a c f");
    }

    void rowsStandAsTheyAreArranged()
    {
        QFETCH(QString, steps);
        m_rows->setSource(m_model.get(), {});
        fillShares(*m_model);

        for (const QString &step : steps.split(", "))
            act(step.section(' ', 0, 0), step.section(' ', 1));

        QFETCH(QString, lines);
        QTRY_COMPARE(linesOf(*m_rows), lines);
    }

    void rowModelKeepsTheRulesOfModels()
    {
        QAbstractItemModelTester tester(m_rows.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        m_rows->setSource(m_model.get(), {});
        fillShares(*m_model);

        m_model->insertRow(1, share({"n", "BJ", "z"}));
        m_model->removeRow(0);
        m_rows->setSortOrder(by(0));
        m_model->appendRow(share({"m", "BJ", "z"}));
        m_model->removeRow(0);
        m_rows->setGroupColumns({1});
        m_rows->setOpen(1, true);
        m_rows->setOpen(1, false);
        m_rows->setAllOpen(true);
        m_rows->setRowFilter([](int row) { return row % 2 == 0; });
        m_rows->setAllOpen(false);
        m_rows->setRowFilter(nullptr);
        m_model->insertColumn(1);
        m_model->clear();

        QCOMPARE(m_rows->rowCount(), 0);
        m_rows->setSource(nullptr, {});
        QCOMPARE(m_rows->columnCount(), 0);
    }

    void silentlyExchangedRowsAreSeen()
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
        m_rows->setSource(&model, {});

        model.exchange(5);
        QCOMPARE(m_rows->rowCount(), 5);
        m_rows->setSortOrder(by(0));
        model.exchange(3);
        QCOMPARE(m_rows->rowCount(), 3);
        m_rows->setSource(nullptr, {});
    }

    void rootThatVanishesLeavesAnEmptyTable()
    {
        setValues({"root"});
        m_model->item(0)->appendRow(new QStandardItem("child"));
        m_rows->setSource(m_model.get(), m_model->index(0, 0));
        QCOMPARE(linesOf(*m_rows), QString("child"));

        m_model->clear();
        QCOMPARE(m_rows->rowCount(), 0);
        // Set twice, it must be left in peace after its end too.
        m_model.reset();
        QCOMPARE(m_rows->columnCount(), 0);
    }

    void arrangingReadsEachRowOnceAndPlainOrderNone()
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
        QVERIFY(rows.order().isPlain());
        QCOMPARE(model.reads, 0);

        rows.setSortOrder({QuoteModel::Name, QuoteModel::valueRole, false, true, QLocale(QLocale::Chinese)});
        QCOMPARE(model.reads, 1000);
        rows.setSortOrder({});
        rows.setGroupColumns({QuoteModel::Board});
        rows.setAllOpen(true);
        QCOMPARE(model.reads, 2000);
        QCOMPARE(rows.rowCount(), 1004);
    }

private:
    void setValues(const QVariantList &values)
    {
        for (const QVariant &value : values) {
            auto *item = new QStandardItem;
            item->setData(value, Qt::DisplayRole);
            m_model->appendRow(item);
        }
        m_rows->setSource(m_model.get(), {});
    }

    void act(const QString &what, const QString &with)
    {
        const int number = with.section(' ', 0, 0).toInt();
        if (what == "sort")
            m_rows->setSortOrder(by(number, with.endsWith("down")));
        else if (what == "group")
            m_rows->setGroupColumns(with == "1 2" ? QVector<int>{1, 2} : QVector<int>{number});
        else if (what == "open")
            m_rows->setAllOpen(true);
        else if (what == "close")
            m_rows->setOpen(number, false);
        else if (what == "reveal")
            m_rows->reveal(number);
        else if (what == "change")
            m_model->item(number)->setText("z");
        else if (what == "add")
            m_model->appendRow(share({"f", "SH", "x"}));
    }

    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<RowModel> m_rows;
};

SUBJECT_TEST_MAIN(GridRowsTest)
#include "tst_gridrows.moc"
