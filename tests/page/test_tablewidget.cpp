#include "pageservice.h"
#include "subjecttest.h"
#include "testhost.h"
#include "viewdocument.h"

#include "filterwidget/tffilterwidget.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "tfcore/tfcore.h"
#include "tfloadingline.h"
#include "tfsubjecttablewidget.h"

#include <gridcontrol/grid.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

/// Keeps the address that a page asks the terminal to open.
class OpenWindow : public QMainWindow
{
    Q_OBJECT

public:
    QString opened;
    Q_INVOKABLE void openStringUrl(const QString &url) { opened = url; }
};

/// The table widget against a service: requests, rows on the screen, states, replies out of turn.
class TableWidgetTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        allowWarnings("^frozen count is invaild: 0$");
        m_service = std::make_unique<PageService>();
        m_host = std::make_unique<TestHost>(m_service.get());
        makeTable();
    }

    void cleanup()
    {
        m_table.reset();
        m_service.reset();
        m_host.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        endMessages();
    }

    void configurationAndPageBarBringPages()
    {
        QSignalSpy children(m_table.get(), &TFSubjectTableWidget::updateChildren);
        serve({}, 1201);

        m_table->parseConfig(ViewDocument().config(), true);
        QVERIFY(state().startsWith("加载中... (起始时间: "));
        QVERIFY(isLoading());

        QTRY_VERIFY(state().startsWith("耗时 "));
        QVERIFY(!isLoading());
        QCOMPARE(rowText(199), QString("CODE199 | NAME199 | 199.00"));
        QCOMPARE(m_table->model()->rowCount(), 200);
        QCOMPARE(m_table->total(), 1201);
        QCOMPARE(m_table->caption(), QString("视图"));
        QCOMPARE(children.size(), 1);
        QCOMPARE(asked({"auth", "flag", "obj_vw_id"}),
                 QString(R"({"auth":{"prodId":"product","userId":"tester"},"flag":1,"obj_vw_id":260})"));

        m_table->findChild<QPushButton *>("nextButton")->click();
        QTRY_COMPARE(rowText(0), QString("CODE200 | NAME200 | 200.00"));
        auto *field = m_table->findChild<QLineEdit *>("currentPage");
        QCOMPARE(field->text(), QString("2"));
        field->clear();
        QTest::keyClicks(field, "6\r");
        QTRY_COMPARE(rowText(0), QString("CODE1000 | NAME1000 | 1,000.00"));
        QCOMPARE(asked({"page", "size"}),
                 QString(R"({"page":1,"size":200} {"page":2,"size":200} {"page":6,"size":200})"));

        // The same query again goes to the service, and the reply brings a new grid with a model of its own.
        const QPointer<QObject> grid(m_table->grid()), model(m_table->model());
        m_table->filterBar()->slotSimpleButtonGetDataClicked();
        QTRY_VERIFY(grid.isNull() && model.isNull());
        QTRY_COMPARE(rowText(0), QString("CODE0 | NAME0 | 0.00"));
        QCOMPARE(m_service->requests().size(), 4);
    }

    void replyWithoutRowsShowsNoData()
    {
        expectWarning("respone is not json obj:");
        for (const QByteArray &body : {QByteArray(), QByteArray("<html>"), QByteArray("{}"),
                                       PageService::envelope(3), PageService::envelope(QJsonObject())}) {
            PageService::Answer answer;
            answer.status = body.isEmpty() ? 500 : 200;
            answer.text = body;
            m_service->answer({}, answer);

            m_table->parseConfig(ViewDocument().config(), true);

            QVERIFY(isLoading());
            QTRY_COMPARE(state(), QString("无数据!"));
            QVERIFY(!isLoading());
            QVERIFY(!m_table->model() || m_table->model()->rowCount() == 0);
        }
    }

    void identicalRequestInFlightIsDropped()
    {
        const ViewDocument document;
        m_service->answer({}, PageService::held(PageService::data(document.rows(0, 3, 3))));
        m_table->parseConfig(document.config(), true);
        m_table->load({});
        QTRY_COMPARE(m_service->heldCount(), 2);

        m_service->release();
        QTRY_VERIFY(m_table->grid());
        const QPointer<TFSujectTableView> grid = m_table->grid();
        m_table->startLoading();
        m_service->release();

        QTRY_VERIFY(state().startsWith("耗时"));
        QCOMPARE(m_table->grid(), grid.data());
        QCOMPARE(rowText(2), QString("CODE2 | NAME2 | 2.00"));
    }

    void orderedViewWaits()
    {
        ViewDocument document;
        document.properties = {{"isOrder", "1"}, {"Order", "PRICE DESC"}};
        serve(document, 3);
        QSignalSpy cleared(m_table.get(), &TFSubjectTableWidget::clearChildren);

        m_table->parseConfig(document.config(), true);
        m_table->load({"filterBlock", QJsonArray{"A"}});

        QTRY_COMPARE(m_table->total(), 3);
        QCOMPARE(asked({"filterBlock", "order"}), QString(R"({"filterBlock":["A"],"order":{"PRICE":-1}})"));
        QCOMPARE(cleared.size(), 1);
    }

    void crossViewAsksForTheWholeSet()
    {
        ViewDocument document;
        document.properties = {{"IsCross", "1"}};
        QJsonObject whole = document.config();
        const QJsonObject rows = document.rows(0, 2, 2);
        for (const QString &key : rows.keys())
            whole.insert(key, rows.value(key));
        m_service->answer({{}, 2, 260}, PageService::data(whole));

        m_table->parseConfig(document.config(), true);

        QTRY_COMPARE(rowText(1), QString("CODE1 | NAME1 | 1.00"));
        QVERIFY(!m_service->requests().at(0).body.contains("page"));

        m_service->answer({}, PageService::failure());
        m_table->load({});
        QTRY_VERIFY(debugLines().filter("emitResult:").size() == 2);
        QCoreApplication::processEvents();
        QVERIFY(state().startsWith("加载中") && isLoading());
    }

    void faultsOfTheConfigurationAreLogged()
    {
        expectWarning("^json parse error$");
        QVERIFY(!m_table->parseConfig(QJsonValue(QJsonValue::Undefined), true));
        QVERIFY(state().startsWith("耗时"));

        ViewDocument document;
        document.properties = {{"FrozenCount", "3"}};
        expectWarning("^frozen count is invaild: 3$");
        show(document, 3);
        QCOMPARE(view()->getColumn(0)->fixedKind(), int(Qtitan::NotFixed));
    }

    void linkOpensInTheTerminal()
    {
        OpenWindow window;
        TFCore::instance()->setMainWindow(&window);
        ViewDocument document;
        document.fields = {{"CODE"}, {"NAME", "String", "HyperLinkEdit"}};
        show(document, 3);

        QVERIFY(view()->followLink(2, view()->getColumn(1)));
        QCOMPARE(window.opened, QString("view://subjectpage?code=CODE2"));

        emit m_table->grid()->linkActivated(QString());
        QVERIFY(!window.opened.isEmpty());
        expectWarning("this args is not vaild!!!");
        m_table->grid()->editorLinkActivated(nullptr);
        TFCore::instance()->setMainWindow(nullptr);
    }

    void headerGroupsAndUnitsReachTheGrid()
    {
        const QJsonObject inYuan{{"UnitCategory", 1},
                                 {"PrevUnitFactor", 10000},
                                 {"ShowUnitFactor", 1},
                                 {"CaptionShowType", 1},
                                 {"ShowUnit", "元"}};
        ViewDocument document;
        document.fields = {{"B", "String", "Band"},
                           {"CODE", "String", "", "B"},
                           {"PRICE", "Decimal", "BandedGridColumnWithUnit", "B", true, inYuan},
                           {"NAME", "String", "MemoExEdit"}};
        document.properties = {{"IsGroup", "1"}, {"GroupFields", "CODE"}, {"FrozenCount", "1"}};
        show(document, 3);
        const auto columns = [this] {
            QStringList all;
            for (int i = 0; i < view()->getColumnCount(); ++i) {
                const Qtitan::GridColumn *column = view()->getColumn(i);
                all.append(view()->headerPath(column).join('/') + (column->fixedKind() ? "!" : "") +
                           (column->isVisible() ? "" : "-") + (column->buttonCount() ? "*" : ""));
            }
            return all.join(' ');
        };

        QCOMPARE(columns(), QString("B/CODE! B/PRICE(元) NAME* CODE-"));
        QVERIFY(rowText(2).startsWith("CODE2 | 20,000.00 | NAME2"));
        QCOMPARE(view()->getColumn(3)->groupIndex(), 0);
        QVERIFY(view()->getColumn(0)->parentBand()->isVisible());

        emit m_table->filterBar()->signalComboBoxChanged(1004, 1);
        QCOMPARE(columns(), QString("B/CODE! B/PRICE(万元) NAME* CODE-"));
        QVERIFY(rowText(2).startsWith("CODE2 | 2.00 | NAME2"));
    }

    void childTableTakesRowsAndStaysQuiet()
    {
        makeTable(false);
        const ViewDocument document;
        QSignalSpy children(m_table.get(), &TFSubjectTableWidget::updateChildren);

        QVERIFY(m_table->parseConfig(document.config(), true));
        QVERIFY(m_table->handleReply(document.config(), QString(), 0));
        QVERIFY(m_table->handleReply(document.rows(0, 2, 2), QString(), 1));
        QCOMPARE(rowText(1), QString("CODE1 | NAME1 | 1.00"));
        QVERIFY(!m_table->handleReply(document.rows(0, 2, 2), QString(), 3));
        QCOMPARE(state(), QString("无数据!"));

        QCOMPARE(m_service->requests().size(), 0);
        QCOMPARE(children.size(), 0);
        QVERIFY(!m_table->filterBar()->isVisible());
    }

    void keyboardStaysInTheGridAcrossPages()
    {
        show({}, 300);
        QSignalSpy rows(m_table.get(), &TFSubjectTableWidget::sigRowData);
        m_table->activateWindow();
        m_table->grid()->focusRows();
        QAbstractItemView *items = view()->itemView();
        QTRY_VERIFY(items->hasFocus());

        QTest::keyClick(items, Qt::Key_Down);
        QTest::keyClick(items, Qt::Key_Down);
        QVERIFY(rows.size() >= 1);
        const RowData row = rows.last().at(0).value<RowData>();
        QVERIFY(row.value(0).value.toString().startsWith("CODE"));

        m_table->findChild<QPushButton *>("nextButton")->click();
        QTRY_COMPARE(rowText(0), QString("CODE200 | NAME200 | 200.00"));
        QTRY_VERIFY(m_table->grid()->isAncestorOf(QApplication::focusWidget()));
        QWidget *next = QApplication::focusWidget();
        do
            next = next->nextInFocusChain();
        while (!next->isEnabled() || !next->isVisible() || !(next->focusPolicy() & Qt::TabFocus));
        QCOMPARE(next->objectName(), QString("headButton"));
    }

private:
    void makeTable(bool isMain = true)
    {
        m_table = std::make_unique<TFSubjectTableWidget>(nullptr, isMain);
        m_table->initLayout();
        m_table->setViewId(260);
        m_table->resize(700, 400);
        m_table->show();
    }

    void serve(const ViewDocument &document, int rows)
    {
        m_service->answer({{}, 1, document.id}, [document, rows](const PageService::Request &request) {
            const int page = request.body.value("page").toInt();
            const int size = request.body.value("size").toInt();
            const int first = (page - 1) * size;
            return PageService::data(document.rows(first, qMin(size, rows - first), rows, page, size));
        });
    }

    void show(const ViewDocument &document, int rows)
    {
        serve(document, rows);
        m_table->parseConfig(document.config(), true);
        QTRY_VERIFY(state().startsWith("耗时") && m_table->model());
    }

    QString state() const { return m_table->findChild<QLabel *>("TimeSpendLabel")->text(); }
    bool isLoading() const
    {
        const bool waits = m_table->cursor().shape() == Qt::WaitCursor;
        const bool shown = m_table->findChild<TFLoadingLine *>()->isVisibleTo(m_table.get());
        [&] { QCOMPARE(shown, waits); }();
        return shown;
    }

    QString rowText(int row) const
    {
        QStringList texts;
        const TFSubjectTableModel *model = m_table->model();
        for (int column = 0; model && column < model->columnCount(); ++column)
            texts.append(model->index(row, column).data().toString());
        return texts.join(" | ");
    }

    Qtitan::GridViewBase *view() const { return m_table->grid()->grid()->rootView(); }
    /// What the requests so far have under \a keys.
    QString asked(std::initializer_list<const char *> keys) const
    {
        QStringList all;
        for (const PageService::Request &request : m_service->requests()) {
            QJsonObject part;
            for (const char *key : keys)
                part.insert(QLatin1String(key), request.body.value(QLatin1String(key)));
            all.append(QString::fromUtf8(QJsonDocument(part).toJson(QJsonDocument::Compact)));
        }
        return all.join(' ');
    }

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFSubjectTableWidget> m_table;
};

SUBJECT_TEST_MAIN(TableWidgetTest)
#include "test_tablewidget.moc"
