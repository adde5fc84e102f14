#include "screencomponent.h"

#include "pluginmanager.h"
#include "screen/argumentsdialog.h"
#include "screen/componentcatalog.h"
#include "screen/screencell.h"
#include "screen/screenfile.h"
#include "screen/screenstore.h"
#include "screen/screentab.h"
#include "screen/screenview.h"
#include "tfcore/invokerbase.h"
#include "tfcore/tffactory.h"

#include "subjecttest.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

namespace {
const char Stub[] = "Stub";

QString textOf(const ScreenNode &node)
{
    if (node.kind == ScreenNode::Cell)
        return node.component.className + node.component.state.value("title").toString();
    QStringList parts;
    for (size_t i = 0; i < node.children.size(); ++i)
        parts.append(QString("%1 %2").arg(node.shares[int(i)]).arg(textOf(node.children[i])));
    return (node.kind == ScreenNode::Row ? "row(" : "column(") + parts.join(", ") + ')';
}

QString textOf(const std::optional<ScreenNode> &layout)
{
    return layout ? textOf(*layout) : QString("empty");
}

ScreenComponentStub *stubIn(const ScreenCell *cell)
{
    return static_cast<ScreenComponentStub *>(cell->widget());
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class ScreensTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TFFactory<QWidget>::constructors().insert(
            Stub, [](QWidget *parent) { return new ScreenComponentStub(parent); });
    }

    void init()
    {
        beginMessages();
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath("a.screen.json");
        makeTab();
    }

    void cleanup()
    {
        m_tab.reset();
        endMessages();
    }

    void screenComesBackAsItWas()
    {
        ScreenCell *first = m_tab->view().add(Stub);
        ScreenCell *second = m_tab->view().add(Stub);
        m_tab->view().add(Stub, Qt::Vertical, first);
        m_tab->arguments().setValues({{"product", "螺纹钢"}, {"list", QVariantList{"a", "b"}}});
        const QVariantMap state{
            {"title", "T"},       {"flag", true},  {"objVwId", Q_INT64_C(9007199254740993)}, {"text", "12"},
            {"none", QVariant()}, {"share", 0.25}, {"map", QVariantMap{{"$int", "x"}}}};
        stubIn(second)->state = state;
        QVERIFY(InvokerBase().invoke(stubIn(second)->screen, "settingsChanged"));
        const QString layout = textOf(m_tab->view().layoutState());
        QCOMPARE(layout, QString("row(0.5 column(0.5 Stub, 0.5 Stub), 0.5 StubT)"));
        QVERIFY(m_tab->mayClose());

        makeTab();

        QCOMPARE(textOf(m_tab->view().layoutState()), layout);
        ScreenComponentStub *restored = stubIn(m_tab->view().cells().last());
        QCOMPARE(restored->state, state);
        QCOMPARE(restored->state.value("objVwId").type(), QVariant::LongLong);
        QCOMPARE(restored->state.value("text").type(), QVariant::String);
        QCOMPARE(restored->argsAtRestore.value("product").toString(), QString("螺纹钢"));
        QCOMPARE(m_tab->view().cells().last()->title(), QString("T"));
        m_tab->reload();
        QCOMPARE(textOf(m_tab->view().layoutState()), layout);
    }

    void onlyWhatTellsOfNewSettingsIsAsked()
    {
        ScreenCell *told = m_tab->view().add(Stub);
        ScreenCell *silent = m_tab->view().add(Stub);
        stubIn(told)->state = {{"title", "new"}};
        stubIn(silent)->state = {{"title", "half loaded"}};
        QVERIFY(InvokerBase().invoke(stubIn(told)->screen, "settingsChanged"));

        makeTab();

        QCOMPARE(textOf(m_tab->view().layoutState()), QString("row(0.5 Stubnew, 0.5 Stub)"));
    }

    void damagedFileOpensWhatIsUsableAndIsKept_data()
    {
        const QString good = R"({"class": "Stub", "state": {"title": "A"}})";
        const QString head = R"({"format": "composite-screen", "version": 1, "name": "N", "args": {}, )";
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("layout");
        const auto screen = [&](const QString &layout) { return head + "\"layout\": " + layout + '}'; };
        const auto row = [](const char *name, const QString &text, const QString &place,
                            const QString &layout) { testRow(name, text, place, layout); };
        const QString deep = QString(R"({"row": [)").repeated(70) + good + QString("]}").repeated(70);
        const QString two = R"({"column": [%1, %1], "shares": [-1, 2]})";
        row("cut off", "{\n\"format\": \"comp", "line 2", "empty");
        row("not a screen", "{}", "format: ", "empty");
        row("newer", screen(good).replace(": 1,", ": 2,"), "version: ", "StubA");
        row("no name", R"({"format": "composite-screen", "version": 1})", "name: ", "empty");
        row("args", screen(good).replace("{},", "[],"), "args: ", "StubA");
        row("class", screen(R"({"row": [{"class": 5}, %1], "shares": [1, 1]})").replace("%1", good),
            "layout/row\\[0\\]/class: ", "StubA");
        row("node", screen("5"), "layout: ", "empty");
        row("shares", screen(two).replace("%1", good), "layout/shares: ", "column(0.5 StubA, 0.5 StubA)");
        row("whole number", screen(R"({"class": "Stub", "state": {"a": [{"$int": "x"}]}})"),
            "layout/state/a\\[0\\]: ", "Stub");
        row("depth", screen(deep), "nested", "empty");
    }

    void damagedFileOpensWhatIsUsableAndIsKept()
    {
        QFETCH(QString, text);
        QFETCH(QString, place);
        QFETCH(QString, layout);
        m_tab.reset();
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text.toUtf8());
        file.close();

        expectWarning(place);
        makeTab();
        QVERIFY(m_told.contains(m_path));
        QCOMPARE(textOf(m_tab->view().layoutState()), layout);
        QVERIFY(m_tab->mayClose());
        QCOMPARE(contents(m_path), text.toUtf8());

        m_tab->view().add(Stub);
        QVERIFY(m_tab->save());
        QCOMPARE(contents(m_path + ".kept-1"), text.toUtf8());
        QVERIFY(ScreenFile(m_path).load().problems.isEmpty());
    }

    void fileOfAnotherTerminalIsNotLost()
    {
        m_tab->view().add(Stub);
        QVERIFY(m_tab->save());
        ScreenFile other(m_path);
        ScreenState state = other.load().state;
        state.name = "other";
        QCOMPARE(other.save(state), QString());

        m_tab->view().add(Stub);
        QVERIFY(m_tab->save());

        QCOMPARE(ScreenFile(m_path + ".kept-1").load().state.name, QString("other"));
    }

    void saveThatFailsLeavesTheLastGoodStateAndTells()
    {
        m_tab->view().add(Stub);
        QVERIFY(m_tab->save());
        const QByteArray good = contents(m_path);
        m_tab->view().add(Stub);
        // A folder stands where the copy of a foreign file would go.
        QVERIFY(QFile::rename(m_path, m_path + ".good"));
        QVERIFY(QDir().mkdir(m_path));

        expectWarning("cannot be saved.*a\\.screen\\.json");
        QVERIFY(!m_tab->save());
        QVERIFY(m_told.contains(m_path));

        QVERIFY(QDir().rmdir(m_path));
        QVERIFY(QFile::rename(m_path + ".good", m_path));
        QVERIFY(m_tab->mayClose());
        QVERIFY(contents(m_path) != good);
    }

    void unknownComponentKeepsItsState()
    {
        ScreenState state = ScreenFile(m_path).load().state;
        ScreenNode node;
        node.component = {"Gone", {{"title", "kept"}}};
        state.layout = node;
        QCOMPARE(ScreenFile(m_path).save(state), QString());

        expectWarning("Gone");
        makeTab();
        QVERIFY(m_tab->findChild<QLabel *>("CellPlaceholder")->text().contains("Gone"));
        m_tab->rename("again");

        QCOMPARE(textOf(ScreenFile(m_path).load().state.layout), QString("Gonekept"));
    }

    void cellsAreAddedAndRemovedInRowsAndColumns()
    {
        ScreenView &view = m_tab->view();
        QVERIFY(m_tab->findChild<QWidget *>("EmptyScreen")->isVisible());
        ScreenCell *a = named(view.add(Stub), "a");
        QVERIFY(!m_tab->findChild<QWidget *>("EmptyScreen")->isVisible());
        ScreenCell *b = named(view.add(Stub, Qt::Horizontal, a), "b");
        ScreenCell *c = named(view.add(Stub, Qt::Horizontal, a), "c");
        QCOMPARE(layout(), QString("row(0.25 Stuba, 0.25 Stubc, 0.5 Stubb)"));
        ScreenCell *d = named(view.add(Stub, Qt::Vertical, b), "d");
        QCOMPARE(layout(), QString("row(0.25 Stuba, 0.25 Stubc, 0.5 column(0.5 Stubb, 0.5 Stubd))"));
        for (ScreenCell *cell : {a, b, c, d})
            QVERIFY(cell->isVisible());

        view.remove(b);
        QCOMPARE(layout(), QString("row(0.25 Stuba, 0.25 Stubc, 0.5 Stubd)"));
        QCOMPARE(view.currentCell(), c);
        view.remove(a);
        view.remove(d);
        QCOMPARE(layout(), QString("Stubc"));
        QVERIFY(c->isVisible());
        view.remove(c);
        QCOMPARE(layout(), QString("empty"));
        QVERIFY(m_tab->findChild<QWidget *>("EmptyScreen")->isVisible());
    }

    void changeOfAnArgumentTellsOnlyTheDifference()
    {
        m_tab->arguments().setValues({{"a", "1"}, {"b", "2"}});
        ScreenComponentStub *stub = stubIn(m_tab->view().add(Stub));
        m_tab->arguments().setValues({{"a", "1"}, {"c", "3"}});
        QCOMPARE(stub->changes, (QList<QVariantMap>{{{"b", QVariant()}, {"c", "3"}}}));
        QCOMPARE(stub->screen->property("args").toMap(), (QVariantMap{{"a", "1"}, {"c", "3"}}));
        m_tab->arguments().setValues({{"a", "1"}, {"c", "3"}});
        QCOMPARE(stub->changes.size(), 1);

        const QList<QLineEdit *> fields = m_tab->findChildren<QLineEdit *>("ArgumentField");
        fields.last()->setText("4");
        QTest::keyClick(fields.last(), Qt::Key_Return);
        QCOMPARE(stub->changes.mid(1), (QList<QVariantMap>{{{"c", "4"}}}));
    }

    void componentBindsToAnArgumentThatTheUserMakes()
    {
        m_tab->arguments().setValues({{"a", "1"}, {"b", "2"}});
        ScreenComponentStub *stub = stubIn(m_tab->view().add(Stub));
        QTimer::singleShot(0, this, [] {
            auto *dialog = qobject_cast<ArgumentsDialog *>(QApplication::activeModalWidget());
            QAbstractItemModel *model = dialog->findChild<QTableView *>("ArgumentTable")->model();
            QPushButton *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
            QCOMPARE(dialog->chosenKey(), QString("b"));
            dialog->findChild<QPushButton *>("AddArgument")->click();
            for (const char *wrong : {"a", " "}) {
                model->setData(model->index(2, 0), wrong);
                QVERIFY(!ok->isEnabled());
            }
            model->setData(model->index(2, 0), "view");
            model->setData(model->index(2, 1), "油价|260");
            ok->click();
        });

        QString current = "b";
        QString chosen;
        QVERIFY(InvokerBase()
                    .bind("QString", &current)
                    .bind("QString", &chosen)
                    .invoke(stub->screen, "getArgsDlg"));

        QCOMPARE(chosen, QString("view"));
        QCOMPARE(stub->changes, (QList<QVariantMap>{{{"view", "油价|260"}}}));
    }

    void settingsKeyGoesToTheCellWithTheKeyboard()
    {
        ScreenCell *first = m_tab->view().add(Stub);
        ScreenCell *second = m_tab->view().add(Stub);
        QVERIFY(QTest::qWaitForWindowActive(m_tab.get()));
        QTest::keyClick(second, Qt::Key_P, Qt::ControlModifier);
        QTest::mouseClick(stubIn(first), Qt::LeftButton);
        QCOMPARE(m_tab->view().currentCell(), first);
        QTest::keyClick(first, Qt::Key_P, Qt::ControlModifier);
        first->findChild<QWidget *>("CellSettings")->setFocus();
        QTest::mouseClick(first->findChild<QWidget *>("CellSettings"), Qt::LeftButton);
        QCOMPARE(stubIn(first)->settingsOpened, 2);
        QCOMPARE(stubIn(second)->settingsOpened, 1);
    }

    void savedScreensAreListedRenamedAndDeleted()
    {
        QVERIFY(m_tab->save());
        ScreenStore store(m_folder->path());
        QCOMPARE(store.rename(m_path, "另一个"), QString());
        QCOMPARE(store.list().size(), 1);
        QCOMPARE(store.list().first().name, QString("另一个"));
        QVERIFY(store.freePath({}) != m_path);
        QCOMPARE(store.remove(m_path), QString());
        QVERIFY(store.list().isEmpty());
        QVERIFY(store.remove(m_path).contains(m_path));
    }

private:
    void makeTab()
    {
        m_told.clear();
        m_tab = std::make_unique<ScreenTab>(&m_catalog, m_path, "first");
        connect(m_tab.get(), &ScreenTab::told, this, [this](const QString &text) { m_told = text; });
        m_tab->resize(900, 600);
        m_tab->show();
        m_tab->open();
    }

    QString layout() { return textOf(m_tab->view().layoutState()); }

    static ScreenCell *named(ScreenCell *cell, const QString &title)
    {
        stubIn(cell)->state = {{"title", title}};
        InvokerBase().invoke(stubIn(cell)->screen, "settingsChanged");
        return cell;
    }

    PluginManager m_plugins;
    ComponentCatalog m_catalog{&m_plugins};
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    QString m_told;
    std::unique_ptr<ScreenTab> m_tab;
};

SUBJECT_TEST_MAIN(ScreensTest)
#include "tst_screens.moc"
