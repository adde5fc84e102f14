#include "tfsubjectsetting.h"

#include "filterwidget/tfbasefilterwidget.h"
#include "net/tfdm.h"
#include "net/tfjsp.h"
#include "net/tfuc.h"
#include "records/tfcategories.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfviewscrollbarexpand.h"
#include "tfframesubjectzhp.h"
#include "tfsubjectsettingargs.h"
#include "ui_tfsubjectsetting.h"

namespace {
constexpr QLatin1String captionKey("NODE_CAP");
constexpr QLatin1String viewIdKey("OBJ_VW_ID");

constexpr int leastBarHeight = 36; ///< one line of controls
constexpr int mostBarHeight = 104; ///< three lines, then it scrolls

TFJsonObjNode *nodeOf(const QTreeWidgetItem *item)
{
    return item->data(0, TFSettingTree::NodeRole).value<TFJsonObjNodePtr>();
}

qint64 viewIdOf(const TFJsonObjNode *node)
{
    return node->object.value(viewIdKey).toVariant().toLongLong();
}
} // namespace

TFSubjectSetting::TFSubjectSetting(const QString &list, QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::TFSubjectSetting>())
    , m_dm(std::make_unique<TFDm>(this))
{
    qRegisterMetaType<TFJsonObjNodePtr>("TFJsonObjNodePtr");
    m_ui->setupUi(this);
    fillTopics(list);
    connectControls();
    m_ui->cbNodeCode->setCurrentIndex(0);
    TFCore::instance()->addStyle2View(this, QStringLiteral("subject/subject.css"));
    new TFViewScrollbarExpand(m_ui->twNavTree, this);
}

TFSubjectSetting::~TFSubjectSetting() = default;

void TFSubjectSetting::fillTopics(const QString &list)
{
    const QString topics =
        list.isEmpty()
            ? TFCore::instance()->value(QStringLiteral("zhp.ini:Settings/list"), QString()).toString()
            : list;
    m_ui->cbNodeCode->clear();
    m_ui->cbNodeCode->addItems(topics.split(QLatin1Char(',')));
    m_ui->cbNodeCode->setCurrentIndex(-1);
}

void TFSubjectSetting::connectControls()
{
    m_ui->fmFilter->installEventFilter(this);
    connect(m_ui->twNavTree, &QTreeWidget::currentItemChanged, this,
            &TFSubjectSetting::slotCurrentItemChanged);
    connect(m_ui->cbNodeCode, &QComboBox::currentTextChanged, this, &TFSubjectSetting::loadTree);
    connect(m_ui->cbHideFilterBar, &QCheckBox::clicked, this, &TFSubjectSetting::on_cbHideFilterBar_clicked);
    connect(m_ui->cbHideMainView, &QCheckBox::clicked, this, &TFSubjectSetting::on_cbHideMainView_clicked);
    connect(m_ui->cbHideChildView, &QCheckBox::clicked, this, &TFSubjectSetting::on_cbHideChildView_clicked);
    connect(m_ui->cbHidePageBar, &QCheckBox::clicked, this, &TFSubjectSetting::on_cbHidePageBar_clicked);
    connect(m_ui->pbBindGl, &QPushButton::clicked, this, &TFSubjectSetting::on_pbBindGl_clicked);
    connect(m_ui->pbPreView, &QPushButton::clicked, this, &TFSubjectSetting::on_pbPreView_clicked);
}

void TFSubjectSetting::applySkinStyle(const QVariant &style)
{
    if (style.isValid())
        setStyleSheet(style.toString());
}

void TFSubjectSetting::setFrame(TFFrameSubjectZHP *frame)
{
    m_frame = frame;
}

void TFSubjectSetting::setPartsVisible(bool mainView, bool filterBar, bool childViews, bool pageBar)
{
    m_ui->cbHideMainView->setChecked(!mainView);
    m_ui->cbHideFilterBar->setChecked(!filterBar);
    m_ui->cbHideChildView->setChecked(!childViews);
    m_ui->cbHidePageBar->setChecked(!pageBar);
}

void TFSubjectSetting::setCurrentView(qint64 objVwId, const QString &caption)
{
    m_objVwId = objVwId;
    m_caption = caption;
    if (objVwId != 0)
        m_ui->lbUserSelectedTip->setText(QStringLiteral("%1|%2").arg(caption, QString::number(objVwId)));
}

void TFSubjectSetting::setBindingEnabled(bool enabled)
{
    m_ui->pbBindGl->setEnabled(enabled);
}

void TFSubjectSetting::loadTree(const QString &topic)
{
    if (topic.isEmpty())
        return;
    const QStringList parts = topic.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const QString rootCode = parts.isEmpty() ? QString() : parts.last();
    m_dm->startRequest(TFUc::navigationRequest(rootCode.toInt()),
                       [this, topic](bool isOk, const QByteArray &data) { takeTree(topic, isOk, data); });
}

void TFSubjectSetting::takeTree(const QString &topic, bool isOk, const QByteArray &data)
{
    if (topic != m_ui->cbNodeCode->currentText()) {
        qCDebug(lcScreen) << "reply for a topic that was left:" << topic;
        return;
    }
    if (!isOk) {
        qCDebug(lcScreen) << "isOk:" << isOk << data;
        return;
    }
    QJsonArray rows;
    const bool isTree = TFJSP::parseNavTree(data, rows);
    qCDebug(lcScreen) << "isOk:" << isTree;
    m_ui->twNavTree->clear();
    m_nodes.clear();
    if (!isTree)
        return;
    QList<TFJsonObjNode *> roots;
    m_nodes = TFSettingTree::make(rows, roots, TFSettingTree::NavigationRows);
    if (roots.isEmpty())
        qCWarning(lcScreen) << "topic" << topic << "has" << rows.size() << "rows, none of them of level 1";
    TFSettingTree::fill(m_ui->twNavTree, roots, captionKey);
    slotChangeToDefaultItem();
}

void TFSubjectSetting::slotCurrentItemChanged(QTreeWidgetItem *current, QTreeWidgetItem *)
{
    if (!current || current->childCount() > 0)
        return;
    const TFJsonObjNode *node = nodeOf(current);
    qCDebug(lcScreen) << "nav Item clicked:" << node->object;
    const qint64 objVwId = viewIdOf(node);
    const QString caption = node->object.value(captionKey).toString();
    m_ui->lbUserSelectedTip->setText(QStringLiteral("%1|%2").arg(caption, QString::number(objVwId)));
    emit signalObjVwIdChanged(objVwId, caption);
}

void TFSubjectSetting::slotChangeToDefaultItem()
{
    if (m_objVwId == 0 || m_caption.isEmpty())
        return;
    const QList<QTreeWidgetItem *> items =
        m_ui->twNavTree->findItems(m_caption, Qt::MatchFixedString | Qt::MatchRecursive, 0);
    for (QTreeWidgetItem *item : items) {
        if (item->childCount() > 0 || viewIdOf(nodeOf(item)) != m_objVwId)
            continue;
        m_ui->twNavTree->setCurrentItem(item);
        emit signalRefreashPage();
    }
}

void TFSubjectSetting::on_cbHideFilterBar_clicked(bool checked)
{
    emit signalFilterWidgetVisibleSettingChanged(!checked);
}

void TFSubjectSetting::on_cbHideMainView_clicked(bool checked)
{
    emit signalMainViewVisibleSettingChanged(!checked);
}

void TFSubjectSetting::on_cbHideChildView_clicked(bool checked)
{
    emit signalSubViewVisibleSettingChanged(!checked);
}

void TFSubjectSetting::on_cbHidePageBar_clicked(bool checked)
{
    emit signalPageBarVisibleChanged(!checked);
}

void TFSubjectSetting::on_pbBindGl_clicked()
{
    emit signalBindGlBtnClicked();
}

void TFSubjectSetting::on_pbPreView_clicked()
{
    emit signalPreviewFilters();
    qCDebug(lcScreen) << "preview clicked";
}

void TFSubjectSetting::on_txtTitle_textChanged(QString arg1)
{
    emit signalTitleChanged(arg1);
}

void TFSubjectSetting::setFilterRows(QList<TFTableModelData::FilterData> rows)
{
    const QVariantMap arguments = m_frame ? m_frame->glFilterArgs() : QVariantMap();
    for (TFTableModelData::FilterData &row : rows) {
        const auto argument = arguments.constFind(row.FieldName);
        if (argument != arguments.constEnd())
            row.DefualtValue = TFSettingArguments::asDefault(row, argument.value());
    }
    m_ui->fmFilter->setFilterData(rows);
    // Buttons that act on a table have none here.
    for (TFBaseFilterWidget *control : m_ui->fmFilter->findChildren<TFBaseFilterWidget *>()) {
        if (TFSettingArguments::isPassedOver(control->objectName()))
            control->hide();
    }
}

QVariantMap TFSubjectSetting::filterArguments() const
{
    return TFSettingArguments::read(m_ui->fmFilter->getCntrls());
}

void TFSubjectSetting::fitFilterBar()
{
    const QSize inside = m_ui->saFilter->maximumViewportSize();
    const int edge = m_ui->saFilter->height() - inside.height();
    const int wanted = m_ui->fmFilter->heightForWidth(inside.width());
    m_ui->saFilter->setFixedHeight(qBound(leastBarHeight, wanted, mostBarHeight) + edge);
}

bool TFSubjectSetting::eventFilter(QObject *watched, QEvent *event)
{
    // New controls take part in the layout only once they are shown.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        fitFilterBar();
    return QFrame::eventFilter(watched, event);
}
