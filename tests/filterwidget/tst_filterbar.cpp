#include "filterrows.h"
#include "filterwidget/flowlayout.h"
#include "filterwidget/tfbasefilterwidget.h"
#include "filterwidget/tffilterwidget.h"
#include "screenobject.h"
#include "subjecttest.h"
#include "tfframesubjectzhp.h"
#include "tfsubjectmainframe.h"

#include <QLineEdit>

namespace {
Row dataSource(Row r)
{
    r.ParameterCategory = "1";
    return r;
}

/// "key=value" a data-source key, "field op param values" a condition.
QStringList filters(TFFilterWidget &bar)
{
    QList<FilterParam::DataSourceFilter> keys;
    QList<FilterParam::CustomFilter> conditions;
    bar.finalFilter(keys, conditions);
    QStringList lines;
    for (const auto &key : keys)
        lines.append(key.key + '=' + text(key.value));
    for (const auto &c : conditions)
        lines.append(QString("%1 %2 %3 %4").arg(c.fieldName, c.op, c.paramName, text(QVariant(c.values))));
    return lines;
}
} // namespace

class TestFilterBar : public SubjectTest
{
    Q_OBJECT

private slots:
    void keysAndConditionsGoTheirWays()
    {
        TFFilterWidget bar;
        bar.setFilterData({row("TextEdit", "", "ab"), row("TextEdit", "NAME", "x"),
                           dataSource(row("VirtualCntrl", "MARKET", "=12")),
                           dataSource(row("LabelControl", "LABEL", "1")),
                           row("DecimalTextEditInterval", "PE", "1;5", "decimal"),
                           row("VirtualCntrl", "IDS", "1;2", "decimal"), row("SimpleButtonGetData", "", ""),
                           row("SimpleButtonSort", "", ""), row("GroupFlagControl", "G", "1"),
                           row("DateTimeInterval", "DAY", "date'2020-01-01';date'2020-01-31'", "datetime"),
                           row("TextEdit", "PROVINCE", "未选择"), row("TextEdit", "AREA2", "未选择")});
        QCOMPARE(filters(bar),
                 (QStringList{"keywords=ab", "MARKET=12", "NAME == NAME_0 [x]", "PE >= PE_0 [1]",
                              "PE <= PE_1 [5]", "IDS == IDS_0 [1|2]", "DAY >= DAY_0 [[2020-01-01 00:00:00]]",
                              "DAY <= DAY_1 [[2020-01-31 23:59:59]]", "AREA2 == AREA2_0 [未选择]"}));
    }

    void dynamicDefaultFollowsAnotherControl()
    {
        TFFilterWidget bar;
        bar.setFilterData({row("TextEdit", "DAY", "2019-07-01"),
                           row("VirtualCntrl", "N", "=$ofyear([NOBODY])"),
                           row("VirtualCntrl", "YEAR", "=$ofyear([DAY])")});
        QCOMPARE(filters(bar).mid(1),
                 (QStringList{"N == N_0 [=$ofyear([NOBODY])]", "YEAR == YEAR_0 [2019]"}));
        bar.findChild<QLineEdit *>()->setText("2015-01-01");
        QCOMPARE(filters(bar).last(), QString("YEAR == YEAR_0 [2015]"));
    }

    void globalArgumentsReplaceWhatTheControlHolds()
    {
        ScreenObject screen;
        screen.setArgs({{"A", "global"}, {"B", ""}});
        QWidget holder;
        screen.offerOn(&holder);
        TFFrameSubjectZHP_CQ frame(&holder);
        TFFilterWidget bar(&frame);
        bar.setFilterData(
            {row("TextEdit", "A", "own"), row("TextEdit", "B", "own"), row("TextEdit", "C", "own")});
        QCOMPARE(filters(bar), (QStringList{"A == A_0 [global]", "B == B_0 []", "C == C_0 [own]"}));
    }

    void pageArgumentsReachTheF9ControlsAlone()
    {
        TFSubjectMainFrame frame;
        TFFilterWidget bar(&frame);
        bar.setFilterData({row("F9SecuIdCntrl", "SECU", "1"), row("F9COMIDCntrl", "COM", "2"),
                           row("VirtualCntrl", "OTHER", "3")});
        frame.setF9Arguments({{"SECU", "600000"}, {"COM", ""}, {"OTHER", "9"}});
        QCOMPARE(filters(bar),
                 (QStringList{"SECU == SECU_0 [600000]", "COM == COM_0 [2]", "OTHER == OTHER_0 [3]"}));
    }

    void secondListLeavesOnlyItsOwnControls()
    {
        TFFilterWidget bar;
        bar.setFilterData({row("TextEdit", "A", "1"), row("TextEdit", "B", "2")});
        bar.setFilterData({row("TextEdit", "C", "3")});
        QCOMPARE(filters(bar), QStringList{"C == C_0 [3]"});
        QCOMPARE(bar.findChildren<TFBaseFilterWidget *>().size(), 1);
    }

    void flowWrapsAtTheRightEdge()
    {
        QWidget box;
        auto *flow = new FlowLayout(5, 12, 5, &box);
        QList<QWidget *> cells;
        for (int i = 0; i < 3; ++i) {
            auto *cell = new QWidget;
            cell->setFixedSize(100, 20);
            flow->addWidget(cell);
            cells.append(cell);
        }
        QCOMPARE(flow->heightForWidth(222), 5 + 20 + 5 + 20 + 5);
        QCOMPARE(flow->heightForWidth(334), 5 + 20 + 5);
        box.resize(222, 60);
        box.show();
        QTRY_COMPARE(cells.at(2)->pos(), QPoint(5, 30));
        QCOMPARE(cells.at(1)->pos(), QPoint(117, 5));
    }
};

SUBJECT_TEST_MAIN(TestFilterBar)
#include "tst_filterbar.moc"
