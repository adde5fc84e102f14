#include "subjecttest.h"
#include "testhost.h"

#include "pagination/tfpaginationbar.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>

#include <memory>

/// The page bar: figures of a reply, what the buttons signal, and the choice that it keeps.
class PaginationBarTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pagesFollowRowsAndSize_data();
    void pagesFollowRowsAndSize();
    void buttonsSignalTheirPage();
    void buttonsAreEnabledWhereTheyLead();
    void pageZeroMeansAnEmptyResult();
    void sizeOutsideTheListBecomesTheOnlyChoice();
    void chosenSizeAsksForThePageAgain();
    void typedPageIsSignalledOnce();
    void choiceIsKeptWhereTheNumberOfChoicesStands_data();
    void choiceIsKeptWhereTheNumberOfChoicesStands();

private:
    void showReply(int rows, int page, int size);
    QString signalled(const QSignalSpy &spy) const;
    QComboBox *sizes() const { return m_bar->findChild<QComboBox *>("totalPageCombox"); }
    QLineEdit *field() const { return m_bar->findChild<QLineEdit *>("currentPage"); }
    QPushButton *button(const char *name) const { return m_bar->findChild<QPushButton *>(name); }
    QString pages() const { return m_bar->findChild<QLabel *>("totalPage")->text(); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFPaginationBar> m_bar;
};

void PaginationBarTest::init()
{
    beginMessages();
    m_host = std::make_unique<TestHost>();
    m_bar = std::make_unique<TFPaginationBar>();
}

void PaginationBarTest::cleanup()
{
    m_bar.reset();
    m_host.reset();
    endMessages();
}

void PaginationBarTest::showReply(int rows, int page, int size)
{
    const QSignalBlocker blocker(m_bar.get());
    m_bar->reset();
    m_bar->setTotalCount(rows);
    m_bar->setCurrentPage(page);
    m_bar->setPerCnt(size);
}

QString PaginationBarTest::signalled(const QSignalSpy &spy) const
{
    QStringList all;
    for (const QList<QVariant> &one : spy)
        all.append(QString("%1/%2").arg(one.at(0).toInt()).arg(one.at(1).toInt()));
    return all.join(' ');
}

void PaginationBarTest::pagesFollowRowsAndSize_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("shown");
    testRow("no rows are one page", 0, 1, 200, "1/1");
    testRow("a full page", 200, 1, 200, "1/1");
    testRow("one row more", 201, 2, 200, "2/2");
    testRow("other size", 1001, 2, 500, "2/3");
    testRow("page beyond", 500, 7, 200, "3/3");
}

void PaginationBarTest::pagesFollowRowsAndSize()
{
    QFETCH(int, rows);
    QFETCH(int, page);
    QFETCH(int, size);
    QFETCH(QString, shown);

    showReply(rows, page, size);

    QCOMPARE(field()->text() + '/' + pages(), shown);
    QCOMPARE(m_bar->perCnt(), size);
    QCOMPARE(sizes()->currentText(), QString::number(size));
}

void PaginationBarTest::buttonsSignalTheirPage()
{
    showReply(1000, 2, 200);
    QSignalSpy spy(m_bar.get(), &TFPaginationBar::signalCurrentPageChanged);

    for (const char *name : {"nextButton", "prevButton", "tailButton", "headButton"})
        button(name)->click();

    m_bar->setCurrentPage(9);

    QCOMPARE(signalled(spy), QString("3/200 2/200 5/200 1/200 5/200"));
    QCOMPARE(field()->text(), QString("5"));
}

void PaginationBarTest::buttonsAreEnabledWhereTheyLead()
{
    const auto enabled = [this] {
        QStringList names;
        for (const char *name : {"headButton", "prevButton", "nextButton", "tailButton"}) {
            if (button(name)->isEnabled())
                names.append(name);
        }
        return names.join(' ');
    };

    showReply(600, 1, 200);
    QCOMPARE(enabled(), QString("nextButton tailButton"));
    showReply(600, 3, 200);
    QCOMPARE(enabled(), QString("headButton prevButton"));
    showReply(10, 1, 200);
    QCOMPARE(enabled(), QString());
}

void PaginationBarTest::pageZeroMeansAnEmptyResult()
{
    showReply(1000, 3, 200);
    QSignalSpy spy(m_bar.get(), &TFPaginationBar::signalCurrentPageChanged);

    m_bar->setCurrentPage(0);

    QCOMPARE(signalled(spy), QString("1/0"));
    QCOMPARE(field()->text() + '/' + pages(), QString("1/1"));
}

void PaginationBarTest::sizeOutsideTheListBecomesTheOnlyChoice()
{
    showReply(1000, 1, 300);

    QCOMPARE(sizes()->count(), 1);
    QCOMPARE(sizes()->currentText() + " of " + pages(), QString("300 of 4"));
    m_bar->reset();
    QCOMPARE(sizes()->count(), 1);
}

void PaginationBarTest::chosenSizeAsksForThePageAgain()
{
    showReply(1000, 5, 200);
    QSignalSpy spy(m_bar.get(), &TFPaginationBar::signalCurrentPageChanged);

    sizes()->setCurrentIndex(2);
    emit sizes()->activated(2);

    QCOMPARE(signalled(spy), QString("2/500"));
    QCOMPARE(pages(), QString("2"));
}

void PaginationBarTest::typedPageIsSignalledOnce()
{
    showReply(1000, 1, 200);
    QSignalSpy spy(m_bar.get(), &TFPaginationBar::signalCurrentPageChanged);
    expectWarning("^current page not changed$");

    field()->clear();
    QTest::keyClicks(field(), "4\r");
    QTest::keyClick(field(), Qt::Key_Return);

    QCOMPARE(signalled(spy), QString("4/200"));
}

void PaginationBarTest::choiceIsKeptWhereTheNumberOfChoicesStands_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    testRow("four choices", 4, 2);
    testRow("another number", 1, 0);
}

void PaginationBarTest::choiceIsKeptWhereTheNumberOfChoicesStands()
{
    QFETCH(int, count);
    QFETCH(int, index);
    sizes()->setCurrentIndex(2);
    m_bar.reset();
    QSettings settings("TFPaginationBar", "curpage");
    QCOMPARE(settings.value("Settings/index").toInt(), 2);
    QCOMPARE(settings.value("Settings/count").toInt(), 4);

    settings.setValue("Settings/count", count);
    settings.sync();
    m_bar = std::make_unique<TFPaginationBar>();

    QCOMPARE(sizes()->currentIndex(), index);
}

SUBJECT_TEST_MAIN(PaginationBarTest)
#include "test_paginationbar.moc"
