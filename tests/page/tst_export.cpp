#include "pageservice.h"
#include "subjecttest.h"
#include "testhost.h"
#include "tst_exportworkbook.h"
#include "viewdocument.h"

#include "filterwidget/tffilterwidget.h"
#include "mulittable/tfheaderdatastruct.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "records/tfclock.h"
#include "tfsubjectmainframe.h"
#include "tfsubjecttableexport.h"
#include "tfsubjecttablewidget.h"

#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QTimer>

#include <csignal>
#include <memory>
#include <sys/resource.h>

using Rows = QList<QList<QVariant>>;
static constexpr qint64 Much = 1 << 30;

/// The export of a table, from the button to the file.
class ExportTest : public SubjectTest
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened = url.toLocalFile(); }

private slots:
    void init();
    void cleanup();
    void chosenFileHoldsAllRowsAsOnTheScreen();
    void quickExportReplacesTheOldFileAndOpensIt();
    void nothingIsWrittenWithoutRowsOrName_data();
    void nothingIsWrittenWithoutRowsOrName();
    void savingWithoutAPathAsksForOne();
    void failureIsTold_data();
    void failureIsTold();
    void nameIsMadeUnique_data();
    void nameIsMadeUnique();
    void exportThatEndsEarlyLeavesTheOldFile_data();
    void exportThatEndsEarlyLeavesTheOldFile();

private:
    void press(int type);
    void serve();
    void setRoomForFiles(qint64 bytes) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }
    TFSubjectTableExport *tableExport() const { return m_table->tableExport(); }
    QDialog *progress() const { return m_table->findChild<QDialog *>("exportProgress"); }
    void closeBoxes();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFSubjectMainFrame> m_frame;
    TFSubjectTableWidget *m_table = nullptr;
    std::unique_ptr<QSignalSpy> m_ended;
    QTimer m_boxCloser;
    QStringList m_boxes; ///< title and text of every message box
    QStringList m_asked; ///< what the chooser was asked
    QString m_answer;    ///< of the chooser
    QString m_opened;
};

void ExportTest::init()
{
    beginMessages();
    allowWarnings("^frozen count is invaild: 0$");
    m_folder = std::make_unique<QTemporaryDir>();
    m_service = std::make_unique<PageService>();
    m_host = std::make_unique<TestHost>(m_service.get());
    m_frame = std::make_unique<TFSubjectMainFrame>();
    m_table = new TFSubjectTableWidget(m_frame.get(), true);
    m_table->initLayout();
    m_table->setViewId(260);
    m_frame->setWindowTitle(QString());
    m_frame->show();
    m_boxes.clear();
    m_asked.clear();
    m_answer = path("chosen");
    m_opened.clear();
    QDesktopServices::setUrlHandler("file", this, "open");
    tableExport()->setChooser(
        [this](QWidget *, const QString &caption, const QString &start, const QString &filter) {
            m_asked = QStringList{caption, start, filter};
            return m_answer;
        });
    m_ended = std::make_unique<QSignalSpy>(tableExport(), &TFSubjectTableExport::ended);
    connect(&m_boxCloser, &QTimer::timeout, this, &ExportTest::closeBoxes, Qt::UniqueConnection);
    m_boxCloser.start(5);
}

void ExportTest::cleanup()
{
    m_boxCloser.stop();
    m_ended.reset();
    m_frame.reset();
    m_service.reset();
    m_host.reset();
    TFClock::setNow({});
    QDesktopServices::unsetUrlHandler("file");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_folder.reset();
    endMessages();
}

void ExportTest::closeBoxes()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    m_boxes.append(box->windowTitle() + '|' + box->text());
    box->accept();
}

void ExportTest::press(int type)
{
    emit m_table->filterBar()->signalSimpleButtonSaveToExcel(type, "excel");
}

/// As much as a disk has left, for each file.
void ExportTest::setRoomForFiles(qint64 bytes) const
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{rlim_t(bytes), RLIM_INFINITY};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

/// A view of five rows, of which a page shows two.
void ExportTest::serve()
{
    ViewDocument document;
    document.fields = {
        {"B", "String", "Band"}, {"CODE", "String", "", "B"}, {"PRICE", "Decimal", "", "B"}, {"NAME"}};
    m_service->answer({{}, 1, document.id}, [document](const PageService::Request &request) {
        const bool isWhole = !request.body.contains("page");
        return PageService::data(document.rows(0, isWhole ? 5 : 2, 5));
    });
    m_table->parseConfig(document.config(), true);
    QTRY_VERIFY(m_table->model() && m_table->model()->rowCount() == 2);
}

void ExportTest::chosenFileHoldsAllRowsAsOnTheScreen()
{
    serve();
    QSignalSpy saved(tableExport(), &TFSubjectTableExport::saved);

    press(1);

    QTRY_COMPARE(m_boxes.join(' '), QString("保存成功|文件保存成功"));
    QCOMPARE(
        m_asked.join('|'),
        QString("选择文件|%1/新建工作簿.xlsx|Excel (*.xlxs)").arg(QCoreApplication::applicationDirPath()));
    QCOMPARE(saved.at(0).at(0).toString(), path("chosen.xlsx"));
    QCOMPARE(files().join(' '), QString("chosen.xlsx"));
    const ExportedWorkbook workbook(path("chosen.xlsx"));
    QStringList expected{"A1 'B'* | B1 -*", "A2 'CODE'* | B2 'PRICE'* | C2 'NAME'*"};
    for (int i = 0; i < 5; ++i)
        expected.append(
            QString("A%1 'CODE%2'%3 | B%1 %2 d | C%1 'NAME%2' d").arg(i + 3).arg(i).arg(i ? " d" : ""));
    QCOMPARE(workbook.rows().join('\n'), expected.join('\n'));
    QCOMPARE(workbook.merges, QString("A1:B1"));
}

void ExportTest::quickExportReplacesTheOldFileAndOpensIt()
{
    serve();
    m_frame->setWindowTitle("页:进/出\\报表");
    const QString target = QCoreApplication::applicationDirPath() + "/页_进_出_报表.xlsx";
    QFile old(target);
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();

    press(0);

    QTRY_COMPARE(m_opened, target);
    QCOMPARE(ExportedWorkbook(target).rows().size(), 7);
    QVERIFY(m_boxes.isEmpty() && m_asked.isEmpty());
    QVERIFY(QFile::remove(target));
}

void ExportTest::nothingIsWrittenWithoutRowsOrName_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("warning");
    testRow("failed", 500, QByteArray(), "");
    testRow("refused", 200, QByteArray(R"({"state":0,"msg":"no","data":null})"), "^parse data failed$");
    testRow("no name chosen", 200, QByteArray(R"({"state":1,"msg":"","data":{"Data":[]}})"), "");
}

void ExportTest::nothingIsWrittenWithoutRowsOrName()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(QString, warning);
    serve();
    if (!warning.isEmpty())
        expectWarning(warning);
    PageService::Answer answer;
    answer.status = status;
    answer.text = body;
    m_service->answer({}, answer);
    m_answer.clear();

    press(1);

    QTRY_COMPARE(m_ended->size(), 1);
    QVERIFY(files().isEmpty() && m_boxes.isEmpty());
    QVERIFY(!tableExport()->isBusy());
}

void ExportTest::savingWithoutAPathAsksForOne()
{
    TFClock::setNow([] { return QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7)); });
    const TFTreeStruct header{QString()};

    tableExport()->saveWithMessage(QString(), header, {{1}});

    QVERIFY2(m_asked.at(1).endsWith("/新建工作簿_20210304050307"), "the month stands for the minutes");
    QCOMPARE(m_asked.at(0) + '|' + m_asked.at(2), QString("文件保存|Excel工作簿(*.xlsx)"));
    QTRY_COMPARE(m_boxes.join(' '), QString("保存成功|文件保存成功"));
    QCOMPARE(files().join(' '), QString("chosen.xlsx"));
}

void ExportTest::failureIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<qint64>("room");
    testRow("cancelled", QString(), "u8用户已取消", "", Much);
    testRow("held by somebody", "held.xlsx", "文件处于占用状态", "", Much);
    testRow("held, without a suffix", "held", "文件处于占用状态", "", Much);
    testRow("no such folder", "none/a.xlsx", "u8写入内容失败", "^export failed: .*none/a.xlsx", Much);
    testRow("disk full before the header", "a.xlsx", "u8写入表头失败", "^export failed: .*a.xlsx",
            qint64(1000));
    testRow("disk full after it", "a.xlsx", "u8写入内容失败", "^export failed: .*a.xlsx", qint64(50000));
}

void ExportTest::failureIsTold()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    QFETCH(QString, warning);
    QFETCH(qint64, room);
    if (!warning.isEmpty())
        expectWarning(warning);
    // A folder can't be written to, whoever runs the test.
    QDir(m_folder->path()).mkdir("held.xlsx");
    m_answer.clear();
    setRoomForFiles(room);
    Rows rows;
    for (int i = 0; i < 20000; ++i)
        rows.append({QString::number(i * 7919 % 104729)});

    tableExport()->saveWithMessage(name.isEmpty() ? name : path(name), TFTreeStruct(QString()), rows);

    QTRY_COMPARE(m_boxes.join(' '), "保存失败|" + message);
    setRoomForFiles(Much);
    QVERIFY(files().isEmpty());
    QVERIFY(!tableExport()->isBusy());
}

void ExportTest::nameIsMadeUnique_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("held");
    QTest::addColumn<QString>("unique");
    testRow("free", "a.xlsx", QStringList{}, "a.xlsx");
    testRow("held", "a.xlsx", QStringList{"a.xlsx"}, "a(1)xlsx");
    testRow("held twice", "a.xlsx", QStringList{"a.xlsx", "a(1)xlsx"}, "a(1)");
    testRow("with a number", "a(1).xlsx", QStringList{"a(1).xlsx"}, "a(1)(1)xlsx");
    testRow("number within", "a(1)b.xlsx", QStringList{"a(1)b.xlsx"}, "a(1)xlsx");
    testRow("a number alone", "7.xlsx", QStringList{"7.xlsx"}, "7(8)xlsx");
    testRow("two suffixes", "a.b.xlsx", QStringList{"a.b.xlsx"}, "a(1)b.xlsx");
}

void ExportTest::nameIsMadeUnique()
{
    QFETCH(QString, name);
    QFETCH(QStringList, held);
    QFETCH(QString, unique);
    for (const QString &folder : held)
        QVERIFY(QDir(m_folder->path()).mkdir(folder));
    QCOMPARE(TFSubjectTableExport::uniqueFileName(path(name)), path(unique));
}

void ExportTest::exportThatEndsEarlyLeavesTheOldFile_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<bool>("isTableGone");
    for (const char *step : {"正在取数据...", "正在整理数据...", "正在写入..."}) {
        testRow(qPrintable(step + QString(" given up")), step, false);
        testRow(qPrintable(step + QString(" closed")), step, true);
    }
}

void ExportTest::exportThatEndsEarlyLeavesTheOldFile()
{
    QFETCH(QString, step);
    QFETCH(bool, isTableGone);
    const QByteArray row = R"({"A":1.25,"B":"text","C":"another text"})";
    PageService::Answer answer;
    answer.text = R"({"state":1,"msg":"","data":{"Data":[)" + (row + ',').repeated(100000) + row + "]}}";
    const bool isHeld = step == "正在取数据...";
    m_service->answer({}, isHeld ? PageService::held(answer) : answer);
    QFile old(path("a.xlsx"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();

    if (step == "正在写入...") {
        Rows rows;
        while (rows.size() < 100000)
            rows.append({1, 2, 3, 4, 5, 6, 7, 8});
        tableExport()->saveWithMessage(path("a.xlsx"), TFTreeStruct(QString()), rows);
    } else {
        press(1);
        press(1);
    }
    QTRY_COMPARE(progress()->findChild<QLabel *>()->text(), step);
    QTRY_COMPARE(m_service->heldCount(), int(isHeld));
    if (isTableGone) {
        m_ended.reset();
        m_frame.reset();
    } else {
        progress()->reject();
        QVERIFY(m_ended->size() == 1 && !tableExport()->isBusy());
    }
    if (isHeld)
        m_service->release();

    QTRY_COMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
    QTRY_COMPARE(files().join(' '), QString("a.xlsx"));
    QCOMPARE(QFileInfo(path("a.xlsx")).size(), 3);
    QVERIFY(m_boxes.isEmpty() && m_asked.isEmpty());
}

SUBJECT_TEST_MAIN(ExportTest)
#include "tst_export.moc"
