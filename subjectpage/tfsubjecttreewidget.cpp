#include "tfsubjecttreewidget.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

#include "records/tfcategories.h"
#include "tfcore/tfcore.h"
#include "tfmenucfg.h"
#include "tfrowdelegate.h"
#include "tfsearchwidget.h"
#include "tftreefilterproxymodel.h"
#include "tftreeitem.h"
#include "tftreemodel.h"

namespace {
constexpr int topGroupLevel = 1;
constexpr int indentation = 16;

QRegularExpression searchPattern(const QString &text)
{
    if (text.isEmpty())
        return {};
    const QRegularExpression pattern(text + QLatin1Char('+'), QRegularExpression::CaseInsensitiveOption);
    if (pattern.isValid())
        return pattern;
    qCDebug(lcPage) << "search text is no pattern:" << text << "offset" << pattern.patternErrorOffset()
                    << pattern.errorString();
    static const QRegularExpression nothing(QStringLiteral("(?!)"));
    return nothing;
}
} // namespace

TFSubjectTreeWidget::TFSubjectTreeWidget(bool isBlock, QWidget *parent)
    : QWidget(parent)
    , m_isBlock(isBlock)
    , m_view(new QTreeView(this))
    , m_proxy(new TFTreeFilterProxyModel(this))
    , m_outerLayout(new QVBoxLayout(this))
    , m_innerLayout(new QVBoxLayout)
    , m_search(new TFSearchWidget(this))
    , m_delegate(new TFRowDelegate(isBlock, m_view))
{
    setObjectName(QStringLiteral("TreeWidget"));
    buildLayout();
    buildView();
    connectAll();
}

TFSubjectTreeWidget::~TFSubjectTreeWidget() = default;

void TFSubjectTreeWidget::buildLayout()
{
    m_outerLayout->setSpacing(0);
    m_outerLayout->setContentsMargins(0, 0, 0, 1);
    m_innerLayout->setSpacing(0);
    m_innerLayout->setContentsMargins(12, 0, 12, 0);
    m_innerLayout->addWidget(m_view);
    m_outerLayout->addWidget(m_search);
    m_outerLayout->addLayout(m_innerLayout);
    setTabOrder(m_search, m_view);
}

void TFSubjectTreeWidget::buildView()
{
    m_view->setObjectName(m_isBlock ? QStringLiteral("BlockTreeView") : QStringLiteral("SubjectTreeView"));
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setAnimated(true);
    m_view->setExpandsOnDoubleClick(false); // the view would close what slotDoubleClicked() has opened
    m_view->setHeaderHidden(true);
    m_view->header()->setMinimumSectionSize(indentation); // else a narrow tree scrolls sideways
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_view->setIndentation(indentation);
    m_view->setUniformRowHeights(true);
    m_view->setMouseTracking(true);
    m_view->setItemDelegate(m_delegate);
    m_view->installEventFilter(this);
}

void TFSubjectTreeWidget::connectAll()
{
    connect(m_search, &TFSearchWidget::signalSearch, this, &TFSubjectTreeWidget::slotSearch);
    connect(m_view, &QTreeView::clicked, this, &TFSubjectTreeWidget::slotItemClicked);
    connect(m_view, &QTreeView::doubleClicked, this, &TFSubjectTreeWidget::slotDoubleClicked);
    connect(m_view, &QTreeView::expanded, this, &TFSubjectTreeWidget::slotExpanded);
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &TFSubjectTreeWidget::loadSkin);

    const auto *find =
        new QShortcut(QKeySequence::Find, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, m_search, [this] { m_search->setFocus(Qt::ShortcutFocusReason); });
}

void TFSubjectTreeWidget::loadSkin()
{
    m_delegate->loadMarkers();
    m_view->viewport()->update();
}

void TFSubjectTreeWidget::setAccentColor(const QColor &color)
{
    m_accentColor = color;
    m_delegate->setAccentColor(color);
    m_view->viewport()->update();
}

void TFSubjectTreeWidget::setOpenItem(const QStandardItem *item)
{
    m_delegate->setOpenItem(item);
    m_view->viewport()->update();
}

void TFSubjectTreeWidget::setModel(TFSubjectTreeModel *model)
{
    if (!model || model == m_model)
        return;
    setOpenItem(nullptr);
    model->setParent(this);
    delete std::exchange(m_model, model);
    m_proxy->setSourceModel(model);
    m_proxy->setFilterKeyColumn(0);
    m_proxy->setFilterRole(Qt::DisplayRole);
    m_view->setModel(m_proxy);
}

bool TFSubjectTreeWidget::hasRows() const
{
    return m_model && m_model->rowCount() > 0;
}

QVariantList TFSubjectTreeWidget::checkedCodes() const
{
    return m_model ? m_model->checkedCodes() : QVariantList();
}

void TFSubjectTreeWidget::reset()
{
    if (m_model)
        m_model->clearChecks();
    m_view->collapseAll();
}

void TFSubjectTreeWidget::slotSearch(const QString &text)
{
    m_proxy->setFilterRegularExpression(searchPattern(text));
    m_view->collapseAll();
    QModelIndex leaf;
    for (QModelIndex index = m_proxy->index(0, 0); index.isValid(); index = m_proxy->index(0, 0, index)) {
        m_view->expand(index);
        leaf = index;
    }
    m_view->setCurrentIndex(leaf);
    slotItemClicked(leaf);
}

void TFSubjectTreeWidget::slotItemClicked(const QModelIndex &index)
{
    TFTreeItem *item = TFSubjectTreeModel::itemFromIndex(index);
    if (!item)
        return;
    // What a receiver does may give the tree another model; the item is then gone.
    const QPersistentModelIndex guard(index);
    emit signalItemClicked(item);
    if (!guard.isValid() || item->hasChildren())
        return;
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent()) {
        if (isTopGroup(parent)) {
            emit currentTopNodeTextChanged(parent.data().toString());
            return;
        }
    }
}

bool TFSubjectTreeWidget::isTopGroup(const QModelIndex &index) const
{
    const TFTreeItem *item = TFSubjectTreeModel::itemFromIndex(index);
    return item && item->level() == topGroupLevel;
}

void TFSubjectTreeWidget::slotDoubleClicked(const QModelIndex &index)
{
    // A top group opens with all below it, see slotExpanded().
    if (m_proxy->hasChildren(index))
        m_view->setExpanded(index, !m_view->isExpanded(index));
}

void TFSubjectTreeWidget::slotExpanded(const QModelIndex &index)
{
    if (isTopGroup(index))
        m_view->expandRecursively(index);
}

QModelIndexList TFSubjectTreeWidget::matches(int role, const QVariant &value, Qt::MatchFlags flags) const
{
    const QModelIndex first = m_proxy->index(0, 0);
    return first.isValid() ? m_proxy->match(first, role, value, -1, flags | Qt::MatchRecursive)
                           : QModelIndexList();
}

QModelIndex TFSubjectTreeWidget::findByText(const QString &text, int viewId) const
{
    if (text.isEmpty())
        return {};
    const QModelIndexList hits = matches(Qt::DisplayRole, text, Qt::MatchExactly);
    const auto hit = std::find_if(hits.begin(), hits.end(), [viewId](const QModelIndex &index) {
        return TFSubjectTreeModel::itemFromIndex(index)->viewId() == viewId;
    });
    return hit == hits.end() ? QModelIndex() : *hit;
}

QModelIndex TFSubjectTreeWidget::findFirstByText(const QString &text) const
{
    return text.isEmpty() ? QModelIndex() : matches(Qt::DisplayRole, text, Qt::MatchExactly).value(0);
}

QModelIndex TFSubjectTreeWidget::findForCheck(const QString &text) const
{
    const QModelIndexList hits = matches(Qt::DisplayRole, text, Qt::MatchFixedString);
    return hits.isEmpty() ? matches(TFTreeItem::CodeRole, text.toInt(), Qt::MatchExactly).value(0)
                          : hits.first();
}

void TFSubjectTreeWidget::selectByName(const MenuItem &record, const QString &text)
{
    QModelIndex index;
    if (hasRows()) {
        index = findByText(record.itemName, record.obj_vw_id);
        if (!index.isValid())
            index = findFirstByText(record.sectorName);
    }
    open(index, text);
}

void TFSubjectTreeWidget::selectByCode(const QString &code, const QString &text)
{
    QModelIndex index;
    if (hasRows())
        index = matches(TFTreeItem::CodeRole, code, Qt::MatchExactly).value(0);
    open(index, text);
}

void TFSubjectTreeWidget::open(QModelIndex index, const QString &text)
{
    if (!index.isValid())
        index = m_proxy->index(0, 0);
    bool isFound = !index.isValid();
    while (!isFound && m_proxy->hasChildren(index)) {
        QModelIndex next = m_proxy->index(0, 0, index);
        for (int row = 0; !isFound && !text.isEmpty() && row < m_proxy->rowCount(index); ++row) {
            const QModelIndex child = m_proxy->index(row, 0, index);
            isFound = child.data().toString() == text;
            if (isFound)
                next = child;
        }
        index = next;
    }
    // A page that opens has nothing to move: an animation would paint it anew for a quarter of a second.
    const bool isAnimated = m_view->isAnimated();
    m_view->setAnimated(false);
    m_view->expand(index);
    m_view->setCurrentIndex(index);
    m_view->setAnimated(isAnimated);
    slotItemClicked(index);
}

void TFSubjectTreeWidget::setRootSector(const QString &rootItem)
{
    if (rootItem.isEmpty())
        return;
    const QModelIndex index = findForCheck(rootItem);
    if (index.isValid())
        m_view->setRootIndex(index);
}

void TFSubjectTreeWidget::slotCheckItem(const QString &text)
{
    if (text.isEmpty() || !m_model)
        return;
    QModelIndex index = findForCheck(text);
    m_proxy->setData(index, Qt::Checked, Qt::CheckStateRole);
    for (; index.isValid(); index = index.parent())
        m_view->expand(index);
    m_view->setCurrentIndex(index);
}

bool TFSubjectTreeWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openCurrent();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void TFSubjectTreeWidget::openCurrent()
{
    const QModelIndex index = m_view->currentIndex();
    slotDoubleClicked(index);
    slotItemClicked(index);
}
