#include "subjecttest.h"

#include "tfcore/tfcore.h"
#include "tfcore/tfglobalcss.h"
#include "tfcore/tfskinpalette.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMovie>

#include <cmath>

namespace {

const QString skinRoot = QStringLiteral(PROJECT_BINARY_DIR "/bin/skins");
const QString tokenFile = QStringLiteral(PROJECT_SOURCE_DIR "/host/skins/tokens.json");

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Relative luminance of an sRGB colour, 0 to 1.
double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Pictures that any source of the plug-in names, and those that the page's contract promises.
QStringList picturesOfThePlugin()
{
    QSet<QString> files{"subject.png",       "subject/download_hover.png",   "subject/loading.gif",
                        "subject/save.png",  "subject/tree_item_normal.png", "subject/tree_item_normal_2.png",
                        "subject/search.png"};
    static const QRegularExpression name("\"(subject(?:/\\w+)?\\.(?:png|gif))\"");
    QDirIterator sources(PROJECT_SOURCE_DIR "/subjectpage", {"*.cpp"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString text = QString::fromUtf8(content(sources.next()));
        for (auto it = name.globalMatch(text); it.hasNext();)
            files.insert(it.next().captured(1));
    }
    QStringList sorted = files.values();
    sorted.sort();
    return sorted;
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one), b = luminance(other);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

} // namespace

/// The skins as they stand next to the programs.
class SkinsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TFCore::instance()->setSkinRoot(skinRoot);
        QCOMPARE(TFCore::instance()->skins(), (QStringList{"black", "mid", "white"}));
    }

    void textIsReadable_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("grounds");
        testRow("on surfaces", QStringList{"text", "muted", "accent", "link", "rise", "fall", "warning"},
                QStringList{"window", "panel", "header", "alternate", "hover", "control"});
        testRow("on the selected row", QStringList{"selectedText"}, QStringList{"selected"});
        testRow("on filled buttons", QStringList{"onAccent"},
                QStringList{"accent", "accentHover", "accentDown"});
        testRow("on tool tips", QStringList{"text"}, QStringList{"tip"});
    }

    void textIsReadable()
    {
        QFETCH(QStringList, texts);
        QFETCH(QStringList, grounds);
        const QJsonObject tokens = QJsonDocument::fromJson(content(tokenFile)).object();
        const auto color = [&](const QString &token, const QString &skin) {
            return QColor(tokens.value(token).toObject().value(skin).toString());
        };

        QStringList faint;
        for (const QString &skin : TFCore::instance()->skins()) {
            for (const QString &text : texts) {
                for (const QString &ground : grounds) {
                    const double ratio = contrast(color(text, skin), color(ground, skin));
                    if (!(ratio >= 4.5))
                        faint << QString("%1: %2 on %3 is %4 : 1").arg(skin, text, ground).arg(ratio);
                }
            }
        }

        QCOMPARE(faint.join('\n'), QString());
    }

    void fileIsInEverySkin_data() { addSkinRows(picturesOfThePlugin()); }

    void fileIsInEverySkin()
    {
        QFETCH(QString, skin);
        QFETCH(QString, file);
        const QString path = skinRoot + '/' + skin + '/' + file;

        const QImage image(path);
        QVERIFY(!image.isNull());
        if (file.endsWith(".gif")) {
            QCOMPARE(image.size(), QSize(32, 32));
            QVERIFY(QMovie(path).frameCount() > 1);
            return;
        }
        const QImage doubled(QString(path).replace(".png", "@2x.png"));
        QCOMPARE(doubled.size(), image.size() * 2);
    }

    void sheetIsWholeAndUnderstood_data()
    {
        addSkinRows({"subject/subject.css", "subject/pagination.css", "terminal.css"});
    }

    void sheetIsWholeAndUnderstood()
    {
        QFETCH(QString, skin);
        QFETCH(QString, file);
        const QDir folder(skinRoot + '/' + skin);
        const QString sheet = QString::fromUtf8(content(folder.filePath(file)));
        QVERIFY(!sheet.isEmpty());

        QStringList missing;
        static const QRegularExpression url("url\\(\"([^\"]*)\"\\)");
        for (auto it = url.globalMatch(sheet); it.hasNext();) {
            const QString icon = it.next().captured(1);
            if (QImage(folder.filePath(icon)).isNull())
                missing << icon;
        }
        QCOMPARE(missing, QStringList());
        QVERIFY2(!sheet.contains('@'), "a placeholder is left");
        QWidget widget;
        widget.setStyleSheet(sheet);
        widget.ensurePolished();
    }

    void skinGivesColoursToPaintedCode()
    {
        for (const QString &skin : TFCore::instance()->skins()) {
            QVERIFY(TFCore::instance()->setCurrentSkin(skin));

            const QPalette palette = TFSkinPalette::current(QPalette());
            const double text =
                contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
            QVERIFY2(text >= 4.5, qPrintable(skin));
            QCOMPARE(TFGlobalCss::getTipsColorByIndex(1), palette.color(QPalette::WindowText));
            QCOMPARE(TFGlobalCss::getTipsColorByIndex(2), palette.color(QPalette::Mid));
        }
        QVERIFY(TFCore::instance()->setCurrentSkin("black"));
        QCOMPARE(TFSkinPalette::current(QPalette()).color(QPalette::Window), QColor("#080B10"));
    }

private:
    static void addSkinRows(const QStringList &files)
    {
        QTest::addColumn<QString>("skin");
        QTest::addColumn<QString>("file");
        for (const QString &skin : TFCore::instance()->skins()) {
            for (const QString &file : files)
                QTest::addRow("%s %s", qPrintable(skin), qPrintable(file)) << skin << file;
        }
    }
};

// The toolkit warns about a sheet that it cannot parse, and an unannounced warning fails the test.
SUBJECT_TEST_MAIN(SkinsTest)
#include "test_skins.moc"
