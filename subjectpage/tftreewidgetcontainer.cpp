#include "tftreewidgetcontainer.h"

#include <QJsonArray>
#include <QPainter>
#include <QStyleOption>

#include "records/tfcategories.h"
#include "tfmenucfg.h"
#include "tfsubjecttreewidget.h"
#include "tftreeitem.h"
#include "tftreemodel.h"

namespace {
const QString keyFilterBlock = QStringLiteral("filterBlock");
} // namespace

TFTreeWidgetContainer::TFTreeWidgetContainer(QWidget *parent)
    : TFVerticalContainer(parent)
    , m_mainTree(new TFSubjectTreeWidget(false, this))
    , m_blockTree(new TFSubjectTreeWidget(true, this))
{
    setObjectName(QStringLiteral("TreeContainer"));
    m_mainTree->setObjectName(QStringLiteral("SubjectTree"));
    m_blockTree->setObjectName(QStringLiteral("BlockTree"));
    addWidget(m_mainTree);
    addWidget(m_blockTree);
    m_blockTree->hide();

    connect(m_mainTree, &TFSubjectTreeWidget::signalItemClicked, this,
            &TFTreeWidgetContainer::slotMainTreeItemClicked);
    connect(m_mainTree, &TFSubjectTreeWidget::currentTopNodeTextChanged, this,
            &TFTreeWidgetContainer::groupChanged);
}

bool TFTreeWidgetContainer::setMainRows(const QJsonValue &rows, int rootCode)
{
    auto *model = new TFSubjectTreeModel(m_mainTree);
    const bool isBuilt = model->build(rows, rootCode, false);
    m_mainTree->setModel(model);
    return isBuilt;
}

bool TFTreeWidgetContainer::loadMainTreeByName(const MenuItem &record, const QJsonValue &rows, int rootCode,
                                               const QString &text)
{
    const bool isBuilt = setMainRows(rows, rootCode);
    m_mainTree->selectByName(record, text);
    return isBuilt;
}

bool TFTreeWidgetContainer::loadMainTreeByCode(const QString &code, const QJsonValue &rows, int rootCode,
                                               const QString &text)
{
    const bool isBuilt = setMainRows(rows, rootCode);
    m_mainTree->selectByCode(code, text);
    return isBuilt;
}

void TFTreeWidgetContainer::loadBlockTree(const QJsonValue &rows)
{
    if (rows.isNull() && m_blockTree->hasRows())
        return;
    auto *model = new TFSubjectTreeModel(m_blockTree);
    model->build(rows, 0, true);
    m_blockTree->setModel(model);
}

FilterParam::DataSourceFilter TFTreeWidgetContainer::blockFilter() const
{
    return {keyFilterBlock, QJsonArray::fromVariantList(m_blockTree->checkedCodes())};
}

void TFTreeWidgetContainer::setRootSector(const QString &rootItem)
{
    if (!m_blockTree->hasRows())
        return;
    m_blockTree->show();
    m_blockTree->setRootSector(rootItem);
}

void TFTreeWidgetContainer::slotSetSector(const QString &sectorNum)
{
    if (!m_blockTree->hasRows())
        return;
    m_blockTree->show();
    m_blockTree->reset();
    m_blockTree->slotCheckItem(sectorNum);
}

void TFTreeWidgetContainer::slotMainTreeItemClicked(QStandardItem *item)
{
    if (!item)
        return;
    const qint64 viewId = item->data(TFTreeItem::ViewIdRole).toLongLong();
    const QString text = item->text();
    const QString url = item->data(TFTreeItem::UrlRole).toString();
    qCDebug(lcPage) << "main tree item clicked obj_vm_id:" << viewId << " previewId:" << m_lastViewId
                    << " cap:" << text << url;
    if (!url.isEmpty()) {
        qCDebug(lcPage) << "in here--------->1";
    } else if (viewId == 0) {
        return;
    } else if (viewId == m_lastViewId) {
        m_mainTree->setOpenItem(item); // the tree may be a new one
        return;
    } else {
        qCDebug(lcPage) << "in here--------->2";
        m_blockTree->hide();
        m_blockTree->reset();
    }
    m_lastViewId = viewId;
    m_mainTree->setOpenItem(item);
    emit signalItemClicked(viewId, text, url);
}

void TFTreeWidgetContainer::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    const int blockHeight = height() / 3;
    setSizes({2 * blockHeight, blockHeight});
}
