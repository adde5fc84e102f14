#include "options.h"
#include "settings.h"

#include "subjecttest.h"

#include <QTemporaryDir>

class OptionsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void wrongUsageNamesTheOption_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        testRow("unknown", QStringList{"--colour", "red"}, "colour");
        testRow("no value", QStringList{"--service"}, "service");
        testRow("no address", QStringList{"--service", "data"}, "--service");
        testRow("file address", QStringList{"--service", "file:///etc"}, "--service");
        testRow("language", QStringList{"--language", "fr"}, "--language");
        testRow("size", QStringList{"--size", "0x900"}, "--size");
        testRow("stray word", QStringList{"view://subjectpage"}, "view://subjectpage");
    }

    void wrongUsageNamesTheOption()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        const ParsedOptions parsed = parseOptions(QStringList{"subject-terminal"} + arguments);
        QCOMPARE(parsed.outcome, ParsedOptions::WrongUsage);
        QVERIFY2(parsed.fault.contains(named), qPrintable(parsed.fault));
    }

    void whatIsNotGivenStaysUnset()
    {
        const ParsedOptions parsed = parseOptions({"subject-terminal", "--token", "", "--page", "view://a",
                                                   "--page", "view://b", "--size", "800x600"});
        QCOMPARE(parsed.outcome, ParsedOptions::Start);
        QVERIFY(parsed.options.token && parsed.options.token->isEmpty());
        QVERIFY(!parsed.options.service && !parsed.options.skin);
        QCOMPARE(parsed.options.pages, QStringList({"view://a", "view://b"}));
        QCOMPARE(parsed.options.size, QSize(800, 600));
    }

    void settingsComeBackAndOnlyTheirUserMayReadThem()
    {
        QTemporaryDir folder;
        const QString inner = folder.filePath("new/folder");
        const Endpoint endpoint{QUrl("https://data:1"), "用户", "p,q", "secret;token"};
        Settings(inner).setEndpoint(endpoint);
        Settings(inner).setSkin("black");

        QVERIFY(Settings(inner).endpoint() == endpoint);
        QCOMPARE(Settings(inner).skin(), QString("black"));
        QCOMPARE(Settings(inner).language(), QString("zh"));
        const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther;
        QCOMPARE(QFile::permissions(inner + "/terminal.ini") & others, QFile::Permissions());
    }
};

SUBJECT_TEST_MAIN(OptionsTest)
#include "tst_options.moc"
