#include "tftreedescription.h"

#include "tfsubjecttreewidget.h"
#include "tftreeitem.h"
#include "tftreemodel.h"
#include "tftreewidgetcontainer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTreeView>

namespace {
QJsonArray nodesBelow(const QAbstractItemModel &model, const QModelIndex &parent)
{
    QJsonArray nodes;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const TFTreeItem *item = TFSubjectTreeModel::itemFromIndex(index);
        nodes.append(QJsonObject{{"caption", index.data().toString()},
                                 {"level", item->level()},
                                 {"viewId", item->viewId()},
                                 {"url", item->url()},
                                 {"checked", index.data(Qt::CheckStateRole).toInt() == Qt::Checked},
                                 {"children", nodesBelow(model, index)}});
    }
    return nodes;
}

QJsonArray nodesOf(const TFSubjectTreeWidget &tree)
{
    const QAbstractItemModel *model = tree.view()->model();
    return model ? nodesBelow(*model, tree.view()->rootIndex()) : QJsonArray();
}

QJsonArray captionsTo(QModelIndex index)
{
    QJsonArray captions;
    for (; index.isValid(); index = index.parent())
        captions.prepend(index.data().toString());
    return captions;
}
} // namespace

namespace TFTreeDescription {

QJsonObject mainTree(const TFTreeWidgetContainer &pane)
{
    return {{"title", pane.title()},
            {"nodes", nodesOf(*pane.mainTree())},
            {"selected", captionsTo(pane.mainTree()->view()->currentIndex())}};
}

QJsonValue blockTree(const TFTreeWidgetContainer &pane)
{
    const TFSubjectTreeWidget *tree = pane.blockTree();
    if (!tree->hasRows())
        return {};
    return QJsonObject{{"visible", !tree->isHidden()}, {"nodes", nodesOf(*tree)}};
}

} // namespace TFTreeDescription
