#include "subjecttest.h"

#include <QTemporaryDir>

#include "tfcore/tfserviceconfig.h"
#include "tfmenucfg.h"

namespace {
const char twoMenus[] = R"({"windowTitle": "x", "menubar": [
    {"menu": "股票专题", "menu_en": "Stocks", "P_NODE_CODE": 2, "menuItem": [
        {"sectorName": "行情", "sectorCode": "Q", "itemName": "日线", "obj_vw_id": "260"},
        {"sectorName": "两处", "sectorCode": "B", "itemName": "后", "obj_vw_id": "1641"}]},
    "no menu", {"menu": "无项", "P_NODE_CODE": 5},
    {"menu": "F9测试", "menu_en": "", "P_NODE_CODE": 190, "menuItem": [
        7, {"sectorName": "F9测试", "sectorCode": "F9TEST", "itemName": "F9", "obj_vw_id": "1641"}]},
    {"menu": "旧", "P_NODE_CODE": 61, "menuItem": [{"itemName": "旧项", "obj_vw_id": "300"}]},
    {"menu": "新", "P_NODE_CODE": 61, "menuItem": [{"itemName": "新项", "obj_vw_id": "301"}]}]})";
}

class TestMenuCfg : public SubjectTest
{
    Q_OBJECT

private slots:
    void viewsAreLookedUpInTheMenu();
    void shippedMenuServesWhereNoFileIs();
    void englishHostGetsEnglishNames();
    void brokenMenuLeavesTheTablesEmpty();

private:
    void writeMenu(const QByteArray &json)
    {
        QFile file(m_folder.filePath("menu.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(json);
    }

    QTemporaryDir m_folder;
};

void TestMenuCfg::viewsAreLookedUpInTheMenu()
{
    writeMenu(twoMenus);
    const TFMenuCfg menu(m_folder.path());
    const auto found = [&menu](const QString &view) {
        const MenuItem item = menu.itemOfView(view);
        const int topic = menu.topicOfView(view);
        return QString("%1 %2 %3/%4/%5/%6")
            .arg(topic)
            .arg(menu.topicName(topic), item.sectorName, item.sectorCode, item.itemName)
            .arg(item.obj_vw_id);
    };
    QCOMPARE(found("260"), QString("2 股票专题 行情/Q/日线/260"));
    QCOMPARE(found("1641"), QString("2 股票专题 两处/B/后/1641")); // in two menus
    QCOMPARE(found("01641"), QString("-1  两处/B/后/1641"));
    QCOMPARE(found("300"), QString("-1  //旧项/300")); // its menu is replaced by a later one of that code
    QCOMPARE(found("301"), QString("61 新 //新项/301"));
    QCOMPARE(found("abc"), QString("-1  ///0"));
    QCOMPARE(menu.topicName(5), QString());
}

void TestMenuCfg::shippedMenuServesWhereNoFileIs()
{
    const TFMenuCfg menu(m_folder.filePath("nowhere"));

    for (int code : {190, 2, 61, 311, 50, 758, 4781, 159, 4782, 4785, 4808, 4837})
        QVERIFY2(!menu.topicName(code).isEmpty(), qPrintable(QString::number(code)));
    QCOMPARE(menu.topicName(2), QString("股票专题"));
    QCOMPARE(menu.topicOfView("260"), 2);
    QCOMPARE(menu.itemOfView("1641").sectorCode, QString("F9TEST"));
}

void TestMenuCfg::englishHostGetsEnglishNames()
{
    writeMenu(twoMenus);
    const int before = TFServiceConfig::instance()->getCurrentLang();
    TFServiceConfig::instance()->setCurrentLang(TFServiceConfig::English);

    const TFMenuCfg menu(m_folder.path());
    TFServiceConfig::instance()->setCurrentLang(before);

    QCOMPARE(menu.topicName(2), QString("Stocks"));
    QCOMPARE(menu.topicName(190), QString());
    QCOMPARE(menu.topicOfView("301"), 61);
}

void TestMenuCfg::brokenMenuLeavesTheTablesEmpty()
{
    // An empty object beside the application hides the resource as well.
    for (const QByteArray &json : {QByteArray(), QByteArray("{}"), QByteArray("[1]"),
                                   QByteArray(twoMenus).left(200), QByteArray(R"({"menubar": {}})")}) {
        writeMenu(json);
        const TFMenuCfg menu(m_folder.path());
        QCOMPARE(menu.topicOfView("260"), -1);
        QCOMPARE(menu.topicName(2), QString());
        QCOMPARE(menu.itemOfView("260").obj_vw_id, 0);
    }
}

SUBJECT_TEST_MAIN(TestMenuCfg)
#include "tst_menucfg.moc"
