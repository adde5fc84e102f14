#include "subjecttest.h"

#include <QProcess>
#include <QTemporaryDir>

/// Every text of the terminal has a translation.
class CataloguesTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("catalogue");
        testRow("Chinese", "terminal_zh_CN.ts");
        testRow("English", "terminal_en.ts");
    }

    void everyTextIsTranslated()
    {
        QFETCH(QString, catalogue);
        const QString sources = PROJECT_SOURCE_DIR "/host/terminal";
        QTemporaryDir folder;
        const QString copy = folder.filePath(catalogue);
        QVERIFY(QFile::copy(sources + "/i18n/" + catalogue, copy));

        QProcess update;
        update.start(LUPDATE, {sources, "-silent", "-no-obsolete", "-ts", copy});
        QVERIFY(update.waitForFinished(60000));

        QCOMPARE(update.exitCode(), 0);
        QFile file(copy);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString source;
        QStringList missing;
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.contains("<source>"))
                source = QString::fromUtf8(line.trimmed());
            if (line.contains("type=\"unfinished\""))
                missing.append(source);
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
    }
};

SUBJECT_TEST_MAIN(CataloguesTest)
#include "tst_catalogues.moc"
