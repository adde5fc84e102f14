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

/// The page bar: figures of a reply, what its controls signal, and the choice that it keeps.
class PaginationBarTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_host = std::make_unique<TestHost>();
        m_bar = std::make_unique<TFPaginationBar>();
    }

    void cleanup()
    {
        m_bar.reset();
        m_host.reset();
        endMessages();
    }

    void figuresAndControlsGiveThePage_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("signalled");
        QTest::addColumn<QString>("shown");
        testRow("no rows are one page", 0, 1, 200, "", "", "1/1 200");
        testRow("a full page", 200, 1, 200, "", "", "1/1 200");
        testRow("one row more", 201, 2, 200, "", "", "2/2 200 head prev");
        testRow("other size", 1001, 2, 500, "", "", "2/3 500 head prev next tail");
        testRow("page beyond", 500, 7, 200, "", "", "3/3 200 head prev");
        testRow("next", 1000, 1, 200, "nextButton", "2/200", "2/5 200 head prev next tail");
        testRow("previous", 1000, 3, 200, "prevButton", "2/200", "2/5 200 head prev next tail");
        testRow("last", 1000, 2, 200, "tailButton", "5/200", "5/5 200 head prev");
        testRow("first", 1000, 2, 200, "headButton", "1/200", "1/5 200 next tail");
        testRow("asked beyond", 1000, 1, 200, "page 9", "5/200", "5/5 200 head prev");
        testRow("page zero means an empty result", 1000, 3, 200, "page 0", "1/0", "1/1 200");
        testRow("chosen size asks again", 1000, 5, 200, "size 500", "2/500", "2/2 500 head prev");
        testRow("typed page", 1000, 1, 200, "type 4", "4/200", "4/5 200 head prev next tail");
        testRow("typed page that stands", 1000, 4, 200, "type 4", "", "4/5 200 head prev next tail");
    }

    void figuresAndControlsGiveThePage()
    {
        QFETCH(int, rows);
        QFETCH(int, page);
        QFETCH(int, size);
        QFETCH(QString, control);
        QFETCH(QString, signalled);
        showReply(rows, page, size);
        QSignalSpy spy(m_bar.get(), &TFPaginationBar::signalCurrentPageChanged);
        if (signalled.isEmpty() && !control.isEmpty())
            expectWarning("^current page not changed$");

        act(control);

        QStringList all;
        for (const QList<QVariant> &one : qAsConst(spy))
            all.append(one.at(0).toString() + '/' + one.at(1).toString());
        QCOMPARE(all.join(' '), signalled);
        QTEST(state(), "shown");
    }

    void sizeOutsideTheListBecomesTheOnlyChoice()
    {
        showReply(1000, 1, 300);

        QCOMPARE(state(), QString("1/4 300 next tail"));
        QCOMPARE(sizes()->count(), 1);
        m_bar->reset();
        QCOMPARE(sizes()->count(), 1);
    }

    void choiceIsKeptWhereTheNumberOfChoicesStands()
    {
        for (const int count : {4, 1}) {
            sizes()->setCurrentIndex(2);
            m_bar.reset();
            QSettings settings("TFPaginationBar", "curpage");
            QCOMPARE(settings.value("Settings/index").toInt(), 2);
            QCOMPARE(settings.value("Settings/count").toInt(), 4);

            settings.setValue("Settings/count", count);
            settings.sync();
            m_bar = std::make_unique<TFPaginationBar>();

            QCOMPARE(sizes()->currentIndex(), count == 4 ? 2 : 0);
        }
    }

private:
    void showReply(int rows, int page, int size)
    {
        const QSignalBlocker blocker(m_bar.get());
        m_bar->reset();
        m_bar->setTotalCount(rows);
        m_bar->setCurrentPage(page);
        m_bar->setPerCnt(size);
    }

    void act(const QString &control)
    {
        const QString last = control.section(' ', -1);
        if (QPushButton *pressed = button(control)) {
            pressed->click();
        } else if (control.startsWith("page")) {
            m_bar->setCurrentPage(last.toInt());
        } else if (control.startsWith("size")) {
            sizes()->setCurrentText(last);
            emit sizes()->activated(sizes()->currentIndex());
        } else if (control.startsWith("type")) {
            field()->clear();
            QTest::keyClicks(field(), last + '\r');
        }
    }

    /// "page/pages rows", and the buttons that are enabled.
    QString state() const
    {
        QString all = field()->text() + '/' + m_bar->findChild<QLabel *>("totalPage")->text() + ' ' +
                      sizes()->currentText();
        for (const char *name : {"headButton", "prevButton", "nextButton", "tailButton"})
            all += button(name)->isEnabled() ? QString(" ") + QString(name).left(4) : QString();
        return all;
    }

    QComboBox *sizes() const { return m_bar->findChild<QComboBox *>("totalPageCombox"); }
    QLineEdit *field() const { return m_bar->findChild<QLineEdit *>("currentPage"); }
    QPushButton *button(const QString &name) const { return m_bar->findChild<QPushButton *>(name); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFPaginationBar> m_bar;
};

SUBJECT_TEST_MAIN(PaginationBarTest)
#include "test_paginationbar.moc"
