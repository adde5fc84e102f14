#include "tfsubjectsettingtree.h"

#include "records/tfcategories.h"

#include <QMap>
#include <QMessageBox>
#include <QTreeWidget>

namespace {
constexpr QLatin1String nodeCodeKey("NODE_CODE");
constexpr QLatin1String nodeParentKey("P_NODE_CODE");
constexpr QLatin1String levelKey("LEVEL");
constexpr QLatin1String blockCodeKey("SECT_ID");
constexpr QLatin1String blockParentKey("P_SECT_ID");
constexpr QLatin1String blockNameKey("SECT_NAME");

enum Column { CaptionColumn, CodeColumn, ParentCodeColumn, ColumnCount = 5 };
constexpr int lastHiddenColumn = 3;
constexpr int deepest = 200; ///< the toolkit deletes its items by recursion

QString codeText(const QJsonObject &row, QLatin1String key)
{
    return QString::number(row.value(key).toVariant().toUInt());
}

/// Codes of the row before stay for a type that has none.
void readCodes(const QJsonObject &row, int type, TFJsonObjNode &codes)
{
    if (type == TFSettingTree::NavigationRows) {
        codes.code = codeText(row, nodeCodeKey);
        codes.parentCode = codeText(row, nodeParentKey);
        codes.isRoot = row.value(levelKey).toVariant().toInt() == 1;
    } else if (type == TFSettingTree::BlockRows) {
        codes.code = codeText(row, blockCodeKey);
        codes.parentCode = codeText(row, blockParentKey);
        codes.isRoot = row.value(blockParentKey).toVariant().toUInt() == 0;
    }
}

QTreeWidgetItem *makeItem(TFJsonObjNode *node, const QString &captionKey, int depth)
{
    const QString caption = node->object.value(captionKey).toVariant().toString();
    auto *item = new QTreeWidgetItem({caption, node->code, node->parentCode});
    if (captionKey == blockNameKey)
        item->setCheckState(CaptionColumn, Qt::Unchecked);
    item->setData(CaptionColumn, TFSettingTree::NodeRole, QVariant::fromValue<TFJsonObjNodePtr>(node));
    item->setToolTip(CaptionColumn, caption);
    if (depth == deepest) {
        qCWarning(lcScreen) << "the rows below code" << node->code << "lie too deep and are left out";
        return item;
    }
    for (TFJsonObjNode *child : qAsConst(node->children))
        item->addChild(makeItem(child, captionKey, depth + 1));
    return item;
}

/// An item spans only once it is in a view.
void spanColumns(QTreeWidgetItem *item)
{
    item->setFirstColumnSpanned(true);
    for (int i = 0; i < item->childCount(); ++i)
        spanColumns(item->child(i));
}
} // namespace

std::vector<std::unique_ptr<TFJsonObjNode>> TFSettingTree::make(const QJsonArray &rows,
                                                                QList<TFJsonObjNode *> &roots, int type)
{
    std::vector<std::unique_ptr<TFJsonObjNode>> nodes;
    if (type == 0 || type == 5) {
        QMessageBox::warning(nullptr, QStringLiteral("warning"), QStringLiteral("not tree struct"),
                             QMessageBox::Ok);
        return nodes;
    }
    TFJsonObjNode codes;
    QMap<QString, TFJsonObjNode *> byCode;
    for (const QJsonValue &row : rows) {
        if (!row.isObject())
            continue;
        readCodes(row.toObject(), type, codes);
        nodes.push_back(std::make_unique<TFJsonObjNode>(codes));
        nodes.back()->object = row.toObject();
        byCode.insert(codes.code, nodes.back().get());
    }
    for (TFJsonObjNode *node : qAsConst(byCode)) {
        if (node->isRoot) {
            roots.append(node);
        } else if (TFJsonObjNode *parent = byCode.value(node->parentCode)) {
            node->parent = parent;
            parent->children.append(node);
        }
    }
    return nodes;
}

void TFSettingTree::fill(QTreeWidget *view, const QList<TFJsonObjNode *> &roots, const QString &captionKey)
{
    view->clear();
    if (roots.isEmpty())
        return;
    view->setColumnCount(ColumnCount);
    QList<QTreeWidgetItem *> items;
    for (TFJsonObjNode *root : roots)
        items.append(makeItem(root, captionKey, 1));
    view->insertTopLevelItems(0, items);
    for (QTreeWidgetItem *item : qAsConst(items))
        spanColumns(item);
    view->setHeaderHidden(true);
    for (int column = CodeColumn; column <= lastHiddenColumn; ++column)
        view->setColumnHidden(column, true);
}
