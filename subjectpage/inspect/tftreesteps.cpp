#include "tftreesteps.h"

#include "tfsearchwidget.h"
#include "tfsubjecttreewidget.h"
#include "tftreewidgetcontainer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTreeView>

namespace {
QModelIndex childOf(const QAbstractItemModel &model, const QModelIndex &parent, const QString &caption,
                    QString *reason)
{
    QStringList captions;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        captions.append(index.data().toString());
        if (captions.last() == caption)
            return index;
    }
    *reason = QStringLiteral("there is no node \"%1\" among: %2").arg(caption, captions.join(", "));
    return {};
}
} // namespace

namespace TFTreeSteps {

bool open(TFTreeWidgetContainer &pane, const QJsonObject &step, QString *reason)
{
    QTreeView *view = pane.mainTree()->view();
    if (!view->model()) {
        *reason = QStringLiteral("the page has no navigation tree");
        return false;
    }
    QModelIndex index;
    const QJsonArray captions = step.value(QLatin1String("node")).toArray();
    for (const QJsonValue &caption : captions) {
        index = childOf(*view->model(), index, caption.toString(), reason);
        if (!index.isValid())
            return false;
        view->expand(index.parent());
    }
    view->setCurrentIndex(index);
    pane.mainTree()->slotItemClicked(index);
    return true;
}

bool search(TFTreeWidgetContainer &pane, const QJsonObject &step, QString *reason)
{
    auto *line = pane.mainTree()->findChild<TFSearchWidget *>();
    if (!line || !pane.mainTree()->hasRows()) {
        *reason = QStringLiteral("the page has no navigation tree");
        return false;
    }
    line->setText(step.value(QLatin1String("text")).toString());
    emit line->signalSearch(line->text());
    return true;
}

bool check(TFTreeWidgetContainer &pane, const QJsonObject &step, QString *reason)
{
    const TFSubjectTreeWidget *tree = pane.blockTree();
    if (tree->isHidden() || !tree->hasRows()) {
        *reason = QStringLiteral("the page shows no blocks");
        return false;
    }
    const QString caption = step.value(QLatin1String("block")).toString();
    QAbstractItemModel *model = tree->view()->model();
    const QModelIndex root = tree->view()->rootIndex();
    const QModelIndexList hits = model->match(model->index(0, 0, root), Qt::DisplayRole, caption, 1,
                                              Qt::MatchExactly | Qt::MatchRecursive);
    if (hits.isEmpty()) {
        *reason = QStringLiteral("there is no block \"%1\"").arg(caption);
        return false;
    }
    const bool isChecked = step.value(QLatin1String("checked")).toBool(true);
    model->setData(hits.first(), isChecked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    return true;
}

} // namespace TFTreeSteps
