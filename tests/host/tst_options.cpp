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
        const QStringList render{"--render", "view://subjectpage?objvwid=260"};
        testRow("no folder", render, "--out");
        testRow("nothing to render", QStringList{"--xlsx"}, "--xlsx needs --render");
        testRow("both ways", render + QStringList{"--out", "o", "--page", "view://a"}, "--page");
        testRow("second address", render + QStringList{"http://a", "--out", "o"}, "http://a");
        testRow("row", render + QStringList{"--out", "o", "--select-row", "-1"}, "--select-row");
        testRow("time", render + QStringList{"--out", "o", "--timeout", "nan"}, "--timeout");
        testRow("no script", render + QStringList{"--out", "o", "--script", "/none.json"}, "/none.json");
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

    void wrongScriptIsLocated_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fault");
        testRow("syntax", "[\n  {'do': 'query'},\n  {]", "s:3:4: ");
        testRow("no array", "{}", "s: is no array of steps");
        testRow("no object", "[1]", "s: step 1: is no object");
        testRow("word", "[{'do': 'query'}, {'do': 'Page'}]", "s: step 2: 'do': 'Page' is not one of");
        testRow("missing", "[{'do': 'page'}]", "s: step 1: page: 'number' is missing");
        testRow("type", "[{'do': 'row', 'index': 1.5}]", "'index' wants a whole number from 0");
        testRow("stray key", "[{'do': 'query', 'row': 1}]", "'row' means nothing here");
        testRow("both", "[{'do': 'open', 'node': ['a'], 'url': 'view://a'}]", "'node' or 'url'");
        testRow("file name", "[{'do': 'snapshot', 'name': '../a'}]", "'name' wants");
        testRow("taken", "[{'do': 'snapshot', 'name': 'a'}, {'do': 'snapshot', 'name': 'a'}]",
                "step 2: snapshot: the name 'a' is taken");
    }

    void wrongScriptIsLocated()
    {
        QFETCH(QString, text);
        QFETCH(QString, fault);
        const RenderScript script = RenderScript::parse(text.replace('\'', '"').toUtf8(), "s");
        QVERIFY2(script.fault.contains(fault.replace('\'', '"')), qPrintable(script.fault));
        QVERIFY(script.steps.isEmpty());
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
