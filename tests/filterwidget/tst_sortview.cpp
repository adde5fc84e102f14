#include "filterwidget/tfcomboxview.h"
#include "filterwidget/tfsecuritytablemodel.h"
#include "filterwidget/tfsortview.h"
#include "subjecttest.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

namespace {
/// "field order" a row, with a star before the selected one.
QStringList rows(const TFSortView &view)
{
    const auto *table = view.findChild<QTableView *>();
    QStringList lines;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        const QString mark = table->selectionModel()->isRowSelected(row, {}) ? "*" : "";
        lines << mark + table->model()->index(row, 0).data().toString() + ' ' +
                     table->model()->index(row, 1).data().toString();
    }
    return lines;
}

/// Chooses as the user does, in the list that stands in the cell.
void choose(const TFSortView &view, int row, int column, const QString &text)
{
    const auto *table = view.findChild<QTableView *>();
    auto *list = qobject_cast<TFComboxView *>(table->indexWidget(table->model()->index(row, column)));
    QVERIFY(list);
    list->setCurrentText(text);
}

QString text(const TFSortView::Order &order)
{
    QStringList terms;
    for (const auto &term : order)
        terms << QString::number(term.first) + (term.second ? "-" : "+");
    return terms.join(' ');
}
} // namespace

class TestSortView : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<Qt::CheckState>(); }

    void modelKeepsItsRowsByKeyAndTicksThem()
    {
        TFSecurityTableModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(model.insertRecord({"1", 0, "价格", "升序"}));
        QVERIFY(model.insertRecord({"2", 0, "名称", "降序"}));
        QVERIFY(!model.insertRecord({"1", 0, "再来", "升序"}));
        QVERIFY(!model.removeRecord(-1));
        QVERIFY(!model.removeRecord(2));
        QVERIFY(model.removeRecord(0));
        QVERIFY(model.insertRecord({"1", 0, "价格", "升序"}));
        QCOMPARE(model.index(0, 0).data().toString(), QString("名称"));
        QCOMPARE(model.recordsByKey().first().field, QString("价格"));

        QSignalSpy state(&model, &TFSecurityTableModel::signalCheckStateChanged);
        QVERIFY(model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(state.takeFirst().first().value<Qt::CheckState>(), Qt::PartiallyChecked);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.slotCheckStateChanged(Qt::Checked);
        QCOMPARE(model.index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().at(1).toModelIndex().row(), 1);
    }

    void addedRowsAreEditedInPlaceAndConfirmed()
    {
        TFSortView view({"价格", "名称"});
        view.on_pushButton_2_clicked();
        view.on_pushButton_2_clicked();
        QCOMPARE(rows(view), (QStringList{"价格 升序", "*价格 升序"}));
        choose(view, 1, 0, "名称");
        choose(view, 1, 1, "降序");
        QCOMPARE(rows(view), (QStringList{"价格 升序", "*名称 降序"}));
        QCOMPARE(text(view.order()), QString("0+ 1-"));
        view.findChild<QPushButton *>("pushButton_6")->click();
        QCOMPARE(view.result(), int(QDialog::Accepted));
    }

    void selectionGoesRoundAndFollowsTheRemovedRow()
    {
        TFSortView view({"a", "b"});
        view.on_pushButton_3_clicked();
        for (int i = 0; i < 3; ++i)
            view.on_pushButton_2_clicked();
        view.on_moveDown_clicked();
        QCOMPARE(rows(view), (QStringList{"*a 升序", "a 升序", "a 升序"}));
        view.on_moveUp_clicked();
        QCOMPARE(rows(view), (QStringList{"a 升序", "a 升序", "*a 升序"}));
        view.on_pushButton_3_clicked();
        QCOMPARE(rows(view), (QStringList{"*a 升序", "a 升序"}));
        view.on_pushButton_3_clicked();
        view.on_pushButton_3_clicked();
        QCOMPARE(rows(view), QStringList());
        QVERIFY(!view.findChild<QTableView *>()->selectionModel()->hasSelection());
        view.on_moveDown_clicked();
    }

    void keysAreTextsAndOrderTheResult()
    {
        QStringList fields;
        for (int i = 0; i < 11; ++i)
            fields << QString(QChar('a' + i));
        TFSortView view(fields);
        for (int i = 0; i < 11; ++i) {
            view.on_pushButton_2_clicked();
            choose(view, i, 0, fields.at(i));
        }
        QVERIFY(text(view.order()).startsWith("0+ 1+ 10+ 2+"));
    }

    void repeatedColumnIsRefusedWithAWarning_data()
    {
        QTest::addColumn<int>("count");
        testRow("no row at all", 0);
        testRow("one field, both directions", 2);
    }
    void repeatedColumnIsRefusedWithAWarning()
    {
        QFETCH(int, count);
        TFSortView view({"a", "b"});
        view.show();
        for (int i = 0; i < count; ++i)
            view.on_pushButton_2_clicked();
        if (count == 2)
            choose(view, 1, 1, "降序");
        QString shown;
        int width = 0;
        QTimer::singleShot(0, &view, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            shown = box->windowTitle() + '|' + box->text();
            width = box->width();
            box->accept();
        });
        view.on_pushButton_6_clicked();
        QCOMPARE(shown, QString("Warning|排序列重复出现\n请清空重复排序列后重试!"));
        QCOMPARE(width, 300);
        QVERIFY(view.isVisible());
    }
};

SUBJECT_TEST_MAIN(TestSortView)
#include "tst_sortview.moc"
