#include "loggedservice.h"
#include "mainwindow.h"
#include "options.h"
#include "pagetab.h"
#include "pagetabs.h"
#include "terminal.h"

#include "subjecttest.h"

#include <QTemporaryDir>

namespace {
constexpr int PatienceMs = 20000;
} // namespace

/// What a selected row of the main table sends to its child views, as the service receives it.
class ChildViewsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(DemoData::isThere(), "tools/demo-data makes the demonstration database"); }

    void init()
    {
        m_config = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", m_config->path().toUtf8());
        beginMessages();
        allowWarnings("frozen count");
        m_service = std::make_unique<LoggedService>();
        QVERIFY(m_service->start());
        Options options;
        options.service = m_service->address();
        options.pages = QStringList{"view://subjectpage?pnodecode=2&objvwid=260"};
        m_terminal = std::make_unique<Terminal>(options);
        m_terminal->start();
    }

    void cleanup()
    {
        m_terminal.reset();
        m_service.reset();
        endMessages();
    }

    void firstRowAndChosenRowReachTheChildren()
    {
        // The first row has come down to all four children.
        QTRY_VERIFY_WITH_TIMEOUT(!m_service->rowRequests(2604).isEmpty(), PatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(!m_service->rowRequests(2601).isEmpty(), PatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(mainGrid() && mainRows() > 2, PatienceMs);
        QCOMPARE(LoggedService::boundValue(m_service->rowRequests(2601).last(), "SYMBOL"),
                 textAt(0, "SYMBOL"));

        QTRY_VERIFY_WITH_TIMEOUT(nextRowReachedTheChild(), PatienceMs);
        const QJsonObject peers = m_service->rowRequests(2604).last();
        QCOMPARE(peers.value("page").toInt(), 1);
        QCOMPARE(peers.value("size").toInt(), 200);
    }

private:
    QWidget *page() { return m_terminal->window().tabs().current(); }

    QWidget *mainGrid()
    {
        const QWidget *mainView = page() ? page()->findChild<QWidget *>("mainView") : nullptr;
        return mainView ? mainView->findChild<QWidget *>("tfGridView") : nullptr;
    }

    QAbstractItemModel *mainModel()
    {
        const QWidget *mainView = page()->findChild<QWidget *>("mainView");
        for (QAbstractItemModel *model : mainView->findChildren<QAbstractItemModel *>()) {
            if (model->inherits("TFSubjectTableModel"))
                return model;
        }
        return nullptr;
    }

    int mainRows() { return mainModel() ? mainModel()->rowCount() : 0; }

    static QWidget *focusableIn(QWidget *grid)
    {
        for (QWidget *widget : grid->findChildren<QWidget *>()) {
            if (widget->focusPolicy() == Qt::StrongFocus && widget->isVisible())
                return widget;
        }
        return grid->focusPolicy() == Qt::StrongFocus ? grid : nullptr;
    }

    /// Raw value of a field in a row of the main table; the model names its fields under a role.
    QString textAt(int row, const QString &field)
    {
        QAbstractItemModel *model = mainModel();
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            if (index.data(Qt::UserRole + 10).toString() == field)
                return index.data(Qt::UserRole + 13).toString();
        }
        return {};
    }

    /// Moves one row down, in whatever grid stands now, and tells whether the child was asked for another row
    /// than the first.
    bool nextRowReachedTheChild()
    {
        QWidget *rows = mainGrid() ? focusableIn(mainGrid()) : nullptr;
        if (rows)
            QTest::keyClick(rows, Qt::Key_Down);
        const QString asked = LoggedService::boundValue(m_service->rowRequests(2601).last(), "SYMBOL");
        for (int row = 1; row < mainRows(); ++row) {
            if (textAt(row, "SYMBOL") == asked)
                return true;
        }
        return false;
    }

    std::unique_ptr<QTemporaryDir> m_config;
    std::unique_ptr<LoggedService> m_service;
    std::unique_ptr<Terminal> m_terminal;
};

SUBJECT_TEST_MAIN(ChildViewsTest)
#include "tst_childviews.moc"
