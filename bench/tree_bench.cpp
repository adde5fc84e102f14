// The navigation tree from its flat rows, against a bare tree of plain nodes that a hash ties together.

#include "comparison.h"
#include "tftreemodel.h"
#include "trees.h"

#include <QGuiApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <memory>
#include <vector>

namespace {
struct BareNode
{
    qint64 code = 0;
    qint64 parent = 0;
    qint64 type = 0;
    qint64 level = 0;
    qint64 view = 0;
    QString caption;
    QString url;
    std::vector<BareNode *> children;
};

using BareTree = std::vector<std::unique_ptr<BareNode>>;

BareTree bareTree(const QJsonArray &rows)
{
    BareTree nodes;
    QHash<qint64, BareNode *> byCode;
    const auto add = [&](std::unique_ptr<BareNode> node) {
        byCode.insert(node->code, node.get());
        nodes.push_back(std::move(node));
    };
    add(std::make_unique<BareNode>(BareNode{Bench::NavigationRoot, -1, 0, 0, 0, {}, {}, {}}));
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        const auto integer = [&row](const char *key) {
            return row.value(QLatin1String(key)).toVariant().toLongLong();
        };
        add(std::make_unique<BareNode>(BareNode{integer("NODE_CODE"),
                                                integer("P_NODE_CODE"),
                                                integer("NODE_TYP"),
                                                integer("LEVEL"),
                                                integer("OBJ_VW_ID"),
                                                row.value(QLatin1String("NODE_CAP")).toString(),
                                                row.value(QLatin1String("NODE_URL")).toString(),
                                                {}}));
    }
    for (const auto &node : nodes) {
        if (BareNode *parent = byCode.value(node->parent))
            parent->children.push_back(node.get());
    }
    return nodes;
}

double buildTime(const QJsonArray &rows)
{
    TFSubjectTreeModel model;
    const double time = Bench::milliseconds([&] { model.build(rows, Bench::NavigationRoot, false); });
    if (model.rowCount() != Bench::NavigationChildren)
        qFatal("the tree was not built");
    return time;
}

double bareTime(const QJsonArray &rows)
{
    BareTree tree;
    return Bench::milliseconds([&] { tree = bareTree(rows); });
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QJsonArray some = Bench::navigation(10000);
    const QJsonArray many = Bench::navigation(100000);
    Bench::compareTimed(
        {"navigation tree of 100000 rows", "bare hash build", 3}, 9, [&] { return bareTime(many); },
        [&] { return buildTime(many); });
    Bench::compareTimed(
        {"navigation tree of 100000 rows, linear", "ten times the tree of 10000", 1.5}, 9,
        [&] { return 10 * buildTime(some); }, [&] { return buildTime(many); });
    return 0;
}
