#include "demodata.h"

#include "subjecttest.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {
const char Program[] = PROJECT_BINARY_DIR "/bin/subject-terminal";
constexpr int PatienceMs = 60000;
} // namespace

/// The program as a user starts it.
class TerminalProgramTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void helpNeedsNoDisplay()
    {
        QProcess program;
        QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
        bare.insert("QT_QPA_PLATFORM", "xcb");
        bare.remove("DISPLAY");
        program.setProcessEnvironment(bare);
        program.start(Program, {"--help"});
        QVERIFY(program.waitForFinished(PatienceMs));
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(program.readAllStandardOutput().contains("--screenshot"));
    }

    void screenshotShowsTheHomePage()
    {
        QVERIFY2(DemoData::isThere(), "tools/demo-data makes the demonstration database");
        QTemporaryDir folder;
        const QString file = folder.filePath("start.png");
        QProcess program;
        start(&program, folder.path(), {"--screenshot", file, "--size", "1200x800"});
        QVERIFY(program.waitForFinished(PatienceMs));

        QVERIFY2(program.exitCode() == 0, program.readAllStandardError());
        const QImage picture(file);
        QCOMPARE(picture.size(), QSize(1200, 800));
        QSet<QRgb> colors;
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, 400));
        QVERIFY2(colors.size() > 10, "a row through the middle of the page is nearly empty");
    }

    void screenshotThatCannotBeWrittenFails()
    {
        QTemporaryDir folder;
        QProcess program;
        start(&program, folder.path(),
              {"--service", "http://127.0.0.1:1", "--screenshot", "/no/such/folder/a.png"});
        QVERIFY(program.waitForFinished(PatienceMs));
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(program.readAllStandardError().contains("/no/such/folder/a.png"));
    }

private:
    static void start(QProcess *program, const QString &config, const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", config);
        program->setProcessEnvironment(environment);
        program->start(Program,
                       QStringList{"--db", DemoData::database(), "--views", DemoData::views()} + arguments);
    }
};

SUBJECT_TEST_MAIN(TerminalProgramTest)
#include "tst_terminalprogram.moc"
