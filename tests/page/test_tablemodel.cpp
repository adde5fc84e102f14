#include "subjecttest.h"
#include "testhost.h"

#include "mulittable/tfcellstyle.h"
#include "mulittable/tfheaderdatastruct.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfunits.h"
#include "records/tfrowstore.h"
#include "tfcore/tfcore.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QJSEngine>
#include <QSignalSpy>

#include <memory>
#include <random>

using Cell = TFTableModelData::tagCellValue;

namespace {
/// The model with the flags that the model tester wants of an index that is none; the table's are fixed.
class TestableModel : public TFSubjectTableModel
{
public:
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? TFSubjectTableModel::flags(index) : Qt::ItemFlags();
    }
};
} // namespace

/// How a cell of the table looks: text, alignment, colour, order.
class TableModelTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_host = std::make_unique<TestHost>();
        m_tree = std::make_unique<TFTreeStruct>(QString());
        m_model = std::make_unique<TFSubjectTableModel>();
    }

    void cleanup()
    {
        m_model.reset();
        m_tree.reset();
        m_host.reset();
        endMessages();
    }

    void valuesShowByTypeAndFormat_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("shown");
        QTest::addColumn<QString>("aligned");
        const auto add = [](const char *name, const char *type, const char *format, const QVariant &value,
                            const QVariant &shown, const char *aligned) {
            testRow(name, QString(type), QString(format), value, shown, aligned);
        };
        add("groups and two decimals", "Decimal", "", 1234567.891, "1,234,567.89", "130");
        add("precision in capitals", "decimal", "N4", 1.5, "1.5000", "132");
        add("no decimals", "Decimal", "n0", 2.6, "3", "130");
        add("number above twenty", "Decimal", "n21", 1, "1.00", "130");
        add("number as text", "Decimal", "", "12.5", "12.50", "130");
        add("no number stays", "Decimal", "", "--", "--", "130");
        add("invalid shows nothing", "UInt64", "", QVariant(), QVariant(), "130");
        add("null shows nothing", "String", "", QVariant::fromValue(nullptr), QVariant(), "129");
        add("text is trimmed", "String", "", "  a b ", "a b", "129");
        add("any string type", "xStringy", "", 5, "5", "132");
        add("day", "DateTime", "", 1577808000000.0, "2020-01-01", "132");
        add("day of the epoch", "datetime", "yyyy-MM-dd hh:mm", 0, "1970-01-01 08:00", "132");
        add("other types stay", "Int32", "n2", 7, 7, "130");
    }

    void valuesShowByTypeAndFormat()
    {
        QFETCH(QString, type);
        QFETCH(QString, format);
        QFETCH(QVariant, value);
        QFETCH(QVariant, shown);
        QFETCH(QString, aligned);

        setColumns({{"F", type, format}});
        QStringList alignments;
        for (int alignment = 0; alignment < 4; ++alignment) {
            RowData cells = row({value});
            cells[0].textAlignment = alignment;
            m_model->setRows(QList<RowData>{cells});
            alignments.append(at(0, 0, Qt::TextAlignmentRole).toString());
        }

        QCOMPARE(at(0, 0), shown);
        const QString tip =
            shown.isValid() ? "<p style='color:#0060E3'>" + shown.toString() + "</p>" : QString();
        QCOMPARE(at(0, 0, Qt::ToolTipRole).toString(), tip);
        QCOMPARE(alignments.join(' '), aligned + " 129 132 130");
    }

    void unitColumnsFollowTheChosenUnit_data()
    {
        QTest::addColumn<int>("unitCode");
        QTest::addColumn<QString>("shown");
        testRow("as configured", 0, "万元 123.46");
        testRow("another unit of the category", 1008, "亿元 0.01");
        testRow("factor 1", 1000, "元 1,234,560.00");
        testRow("other category leaves the number raw", 2008, "万元 1,234,560.00");
        testRow("exponent below zero is factor 0", 7005, "万元 1,234,560.00");
    }

    void unitColumnsFollowTheChosenUnit()
    {
        QFETCH(int, unitCode);
        QFETCH(QString, shown);
        setColumns({{"F", "Decimal", "", "", true}});
        m_model->setRows(QList<RowData>{row({1234560})});

        if (unitCode) {
            m_tree->updateUnit(TFUnits::unitNameOfCode(unitCode), unitCode / 1000);
            m_model->setHeader(m_tree.get());
            m_model->setUnit(TFUnits::unitExponentOfCode(unitCode), unitCode / 1000);
        }

        const QString unit = m_model->headerData(0, Qt::Horizontal).toString().section('(', 1).chopped(1);
        QCOMPARE(unit + ' ' + at(0, 0).toString(), shown);
    }

    void compiledExpressionEqualsTheEvaluatedOne()
    {
        const QStringList pieces =
            QString("$A~$B~$C~$名~$~$skin~'red'~'blue'~ + ~ > ~ ? ~ : ~(~)~1~this.~eval('$A')~typeof ~, ~"
                    "function(){return $B}~() => $C~\\u0024A~$A = ~x~; ~arguments.length~.length~"
                    "'$use_default_color'~null~ || ~!~//~-~(function(){throw 'red'})()")
                .split('~');
        const QStringList values = {"", "red", "5", "-1.5", "#123456", "none", "'"};
        const QVector<QString> fields = {"A", "B", "名", "C", "LAST"};
        std::mt19937 random(11);
        const auto pick = [&random](const QStringList &texts) {
            return texts.at(int(random() % unsigned(texts.size())));
        };
        QJSEngine script;
        script.globalObject().setProperty("$skin", TFCore::instance()->getCurrentSkinId());
        int coloured = 0;
        for (int round = 0; round < 5000; ++round) {
            QString expression = random() % 2 ? "$A > $B ? 'red' : " : "";
            for (unsigned i = 0; i < 1 + random() % 6; ++i)
                expression += pick(pieces);
            QList<QVariant> cells;
            for (unsigned i = 0; i < 5; ++i)
                cells.append(pick(values));
            const TFRowStore store = TFRowStore::fromRows({row(cells)});
            for (int i = 0; i < 4; ++i)
                script.globalObject().setProperty("$" + fields.at(i), cells.at(i).toString());
            QJSValue told = script.evaluate("(" + expression + ")", QString(), 1);
            if (told.isCallable())
                told = told.call();
            const bool isColour =
                told.isString() && !told.toString().isEmpty() && told.toString() != "$use_default_color";

            const QVariant colour = TFCellStyle(expression, fields).colour(store, 0);

            QVERIFY2(colour == (isColour ? QVariant(QColor(told.toString())) : QVariant()),
                     qPrintable(expression));
            coloured += isColour;
        }
        QVERIFY2(coloured > 300, qPrintable(QString::number(coloured)));
    }

    void expressionsSeeTheRowButItsLastCellAndTheSkin()
    {
        setColumns({{"P", "Decimal", "", "$P > 1 ? 'red' : $skin == 'black' ? 'white' : 'blue'"},
                    {"HIDDEN", "Decimal", "", "function() { return $HIDDEN ? 'red' : 'blue'; }"}});
        m_model->setRows(QList<RowData>{row({2, 3}), row({2, 3}, 1), row({0, 3}, 2), {}});
        const auto colours = [this] {
            QStringList all;
            for (int i = 0; i < 6; ++i) {
                const QVariant colour = at(i / 2, i % 2, Qt::ForegroundRole);
                all.append(colour.isValid() ? colour.value<QColor>().name() : "none");
            }
            return all.join(' ');
        };

        QCOMPARE(colours(), QString("#ff0000 none #ff0000 #ff0000 #0000ff #ff0000"));
        TFCore::instance()->setCurrentSkin("black");
        QCOMPARE(colours(), QString("#ff0000 none #ff0000 #ff0000 #ffffff #ff0000"));
    }

    void endlessExpressionIsInterruptedOnce()
    {
        setColumns({{"A", "Decimal", "", "(function() { while (true) ; })()"}, {"B"}});
        QList<RowData> rows;
        for (int i = 0; i < 50; ++i)
            rows.append(row({i, 1}));
        m_model->setRows(rows);
        expectWarning("style expression does not end, ignored from now on:");

        for (int i = 0; i < rows.size(); ++i)
            QVERIFY(!at(i, 0, Qt::ForegroundRole).isValid());
    }

    void rolesTellTheCell()
    {
        setColumns({{"A"}, {"NAME", "String"}});
        RowData cells = row({"12", "十二个字的名字比十个字长"});
        cells[0].url = "view://x";
        cells[0].secuId = 77;
        m_model->setRows(QList<RowData>{cells});

        QStringList told;
        for (const int role : {266, 268, 269, 270, 272, 274})
            told.append(at(0, 0, role).toString());
        QCOMPARE(told.join(' '), QString("A view://x 12 77  12"));
        QCOMPARE(at(0, 0, 267).value<RowData>().value(1).value, QVariant("十二个字的名字比十个字长"));
        QCOMPARE(at(0, 1, 274), QVariant("十二个字的名字比十个"));
        QVERIFY(m_model->data(QModelIndex(), 271).canConvert<QColor>());
        QCOMPARE(int(m_model->flags(QModelIndex())), 33);
    }

    void headerAndRowsAreTold()
    {
        m_model = std::make_unique<TestableModel>();
        auto tester = std::make_unique<QAbstractItemModelTester>(m_model.get());
        QStringList header;
        connect(m_model.get(), &QAbstractItemModel::headerDataChanged, this,
                [&header](Qt::Orientation, int first, int last) {
                    header.append(QString("%1-%2").arg(first).arg(last));
                });
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        QCOMPARE(m_model->headerData(0, Qt::Horizontal), QVariant(0));

        setColumns({{"A"}, {"B", "String"}});
        m_model->setRows(QList<RowData>{row({1, "x"}, 2), row({3})});

        QCOMPARE(header.join(' '), QString("0-1 0-1"));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(1).toModelIndex(), m_model->index(1, 1));
        QCOMPARE(m_model->headerData(1, Qt::Vertical), QVariant("B"));
        QCOMPARE(m_model->headerData(9, Qt::Horizontal, Qt::TextAlignmentRole), QVariant(132));
        QVERIFY(!at(1, 1).isValid());
        QList<QList<QVariant>> selected;
        m_model->getAllSelectedData(&selected);
        QCOMPARE(selected, (QList<QList<QVariant>>{{"1.00", "x"}, {"3.00"}}));

        m_model->clear();
        QCOMPARE(reset.size(), 1);
        QCOMPARE(m_model->rowCount(), 0);
        tester.reset();
        m_model->setHeader(nullptr);
        QCOMPARE(m_model->columnCount(), 0);
    }

private:
    struct Column
    {
        QString field;
        QString type = "Decimal";
        QString format = QString();
        QString style = QString();
        bool isUnit = false;
    };

    void setColumns(const QList<Column> &columns)
    {
        m_columns = columns;
        m_tree->clearChildren();
        for (const Column &column : columns) {
            HeaderFieldInfo info;
            info.fieldName = info.caption = column.field;
            info.valueType = column.type;
            info.formatString = column.format;
            info.cellStyleExpression = column.style;
            info.visible = true;
            if (column.isUnit) {
                info.columnType = "BandedGridColumnWithUnit";
                info.unitCategory = 1;
                info.prevUnitFactor = 1;
                info.showUnitFactor = 10000;
                info.showUnit = "万元";
                info.captionShowType = 1;
            }
            m_tree->addChild(new TFTreeStruct(info));
        }
        m_model->setHeader(m_tree.get());
    }

    RowData row(const QVariantList &values, int extra = 0) const
    {
        RowData cells;
        for (int i = 0; i < values.size() + extra; ++i) {
            Cell cell;
            cell.fieldName = m_columns.value(i).field;
            cell.valueType = i < m_columns.size() ? m_columns.at(i).type : QString();
            cell.value = values.value(i);
            cells.append(cell);
        }
        return cells;
    }

    QVariant at(int row, int column, int role = Qt::DisplayRole) const
    {
        return m_model->index(row, column).data(role);
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFTreeStruct> m_tree;
    std::unique_ptr<TFSubjectTableModel> m_model;
    QList<Column> m_columns;
};

SUBJECT_TEST_MAIN(TableModelTest)
#include "test_tablemodel.moc"
