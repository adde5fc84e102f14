#include "processes.h"
#include "renderprogram.h"
#include "subjecttest.h"

#include <QImage>

#include <csignal>

namespace {
constexpr char kUrl[] = "view://subjectpage?pnodecode=61&nodecode=6031";

/// The child process of that name, 0 for none.
qint64 childOf(qint64 parent, const QByteArray &name)
{
    for (const qint64 child : Processes::children(parent)) {
        if (Processes::told(child, "comm") == name)
            return child;
    }
    return 0;
}

/// A process that has ended and that nobody has asked after has no command line any more.
bool runs(qint64 process)
{
    return !Processes::told(process, "cmdline").isEmpty();
}

int redPixels(const QImage &picture)
{
    int red = 0;
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        const QRgb pixel = picture.pixel(i % picture.width(), i / picture.width());
        red += qRed(pixel) > 150 && qGreen(pixel) < 80 && qBlue(pixel) < 80;
    }
    return red;
}
} // namespace

/// Charts, drawn by the web engine on the display that the program makes for itself.
class RenderChartsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(DemoData::isThere(), "tools/demo-data makes the demonstration database"); }

    void chartIsDrawnWithoutADisplay()
    {
        RenderProgram program;
        program.useOwnDisplay();
        const int status =
            program.run(RenderProgram::demonstration() + QStringList{"--xlsx", "--render", kUrl});

        QVERIFY2(status == 0, qPrintable(program.errors));
        const QString difference = program.difference("page.json", "chart");
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QVERIFY(QFile::exists(program.path("宏观经济专题_图表.xlsx")));
        QVERIFY2(redPixels(QImage(program.path("page.png"))) > 5000, "the columns are not in the picture");
    }

    void displayGoesWithAProgramThatIsKilled()
    {
        RenderProgram program;
        program.useOwnDisplay();
        program.start(RenderProgram::demonstration() + QStringList{"--render", kUrl});
        QVERIFY(program.process().waitForStarted());
        const qint64 terminal = program.process().processId();
        QTRY_VERIFY_WITH_TIMEOUT(childOf(terminal, "subject-service") != 0, RenderProgram::PatienceMs);
        const qint64 display = childOf(terminal, "Xvfb");
        QVERIFY(runs(display));

        ::kill(pid_t(terminal), SIGKILL);

        QVERIFY(program.process().waitForFinished());
        QTRY_VERIFY(!runs(display));
    }
};

SUBJECT_TEST_MAIN(RenderChartsTest)
#include "tst_rendercharts.moc"
