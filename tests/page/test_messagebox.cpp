#include "subjecttest.h"

#include "tfcore/tfadwidget.h"
#include "tfmessagebox.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QTimer>

#include <functional>

/// The borderless message box and the window templates under it.
class MessageBoxTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void boxShowsItsTextsAndCloses_data()
    {
        QTest::addColumn<bool>("byKey");
        testRow("by the button", false);
        testRow("by escape", true);
    }

    void boxShowsItsTextsAndCloses()
    {
        QFETCH(bool, byKey);
        bool isClosed = false;
        QVERIFY(show([&](QDialog *dialog) {
            auto *text = dialog->findChild<QTextBrowser *>("tbMsg");
            QCOMPARE(dialog->findChild<QLabel *>("lbTitle")->text(), QString("导出"));
            QCOMPARE(text->toPlainText(), QString("文件已保存"));
            QCOMPARE(dialog->size(), QSize(300, 200));
            if (byKey)
                QTest::keyClick(text, Qt::Key_Escape);
            else
                QTest::mouseClick(dialog->findChild<QPushButton *>("pbMsgClose"), Qt::LeftButton);
            isClosed = !dialog->isVisible();
        }));
        QVERIFY(isClosed);
    }

    void boxOpensAtTheCursorOrAwayFromTheCorner_data()
    {
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QPoint>("expected");

        const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
        const int right = screen.width() - 10, bottom = screen.height() - 10;
        testRow("room everywhere", QPoint(40, 50), QPoint(40, 50));
        testRow("right edge", QPoint(right, 50), QPoint(right - 300, 50));
        testRow("bottom edge", QPoint(40, bottom), QPoint(40, bottom - 200));
        testRow("corner", QPoint(right, bottom), QPoint(right - 300, bottom - 200));
        testRow("just room", QPoint(screen.width() - 300, screen.height() - 200),
                QPoint(screen.width() - 300, screen.height() - 200));
    }

    void boxOpensAtTheCursorOrAwayFromTheCorner()
    {
        QFETCH(QPoint, cursor);
        QFETCH(QPoint, expected);
        QCursor::setPos(cursor);

        QPoint position;
        QVERIFY(show([&](QDialog *dialog) { position = dialog->pos(); }));

        QCOMPARE(position, expected);
    }

    void onlyPlainWidgetsAreTakenAsContent()
    {
        expectWarning("^can not init with QMainWidget$");
        expectWarning("^the widget is not widget type!$");
        TFAdWidget<QDialog> dialog;
        QMainWindow window;
        QObject object;

        dialog.initContentWithWidget(&window);
        dialog.initContentWithWidget(&object);

        QVERIFY(!dialog.layout());
        QVERIFY(!window.parent());
    }

    void missingChildIsLoggedWithItsType()
    {
        QWidget parent;
        auto *label = new QLabel(&parent);
        label->setObjectName("pbOk");
        expectWarning("^not found pbOk with typename:QPushButton$");

        QVERIFY(!CommonTemplate::get<QPushButton>(&parent, "pbOk"));
        QCOMPARE(CommonTemplate::get<QLabel>(&parent, "pbOk"), label);
    }

    void shadowFollowsSizeAndWindowState()
    {
        TFShadow<QDialog> dialog;
        dialog.setShadowMargin(6);
        dialog.setBlurRadius(4);
        dialog.applyShadow();
        dialog.resize(200, 100);
        dialog.show();
        const auto *shadow = dialog.findChild<QFrame *>();

        QCOMPARE(shadow->geometry(), QRect(4, 4, 192, 92));
        QCOMPARE(dialog.contentsMargins(), QMargins(6, 6, 6, 6));

        dialog.setWindowState(Qt::WindowMaximized);
        QTRY_COMPARE(dialog.contentsMargins(), QMargins());
        dialog.setWindowState(Qt::WindowNoState);
        QTRY_COMPARE(dialog.contentsMargins(), QMargins(6, 6, 6, 6));
    }

private:
    /// Shows a box, runs \a look on it once it is on the screen, and returns whether it came up and closed.
    /// A box that \a look leaves open is closed.
    bool show(const std::function<void(QDialog *)> &look)
    {
        bool seen = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (seen || !dialog || !dialog->isVisible())
                return;
            seen = true;
            look(dialog);
            dialog->close();
        });
        watch.start(1);
        TFMessageBox::showMsg("导出", "文件已保存");
        return seen && !QApplication::activeModalWidget();
    }
};

SUBJECT_TEST_MAIN(MessageBoxTest)
#include "test_messagebox.moc"
