#include "activitypanel.h"

#include "activitymodels.h"
#include "pluginmanager.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QJsonDocument>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>

namespace {
constexpr int RowHeight = 24;

void setWidths(QHeaderView *header, const QVector<int> &widths)
{
    for (int i = 0; i < widths.size(); ++i)
        header->resizeSection(i, widths.at(i));
}

/// Keeps the newest row in sight, unless the user has scrolled away from it.
void followEnd(QTableView *table)
{
    table->scrollToBottom();
    QObject::connect(table->model(), &QAbstractItemModel::rowsAboutToBeInserted, table, [table] {
        const QScrollBar *bar = table->verticalScrollBar();
        table->setProperty("atEnd", bar->value() == bar->maximum());
    });
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, table, [table] {
        if (table->property("atEnd").toBool())
            table->scrollToBottom();
    });
}
} // namespace

ActivityPanel::ActivityPanel(QWidget *parent)
    : QDockWidget(parent)
    , m_requests(new RequestModel(this))
    , m_messages(new MessageModel(this))
{
    setObjectName("ActivityPanel");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::RightDockWidgetArea);
    setWindowTitle(tr("What happened"));
}

void ActivityPanel::makeParts()
{
    m_tabs = new QTabWidget;
    m_requestTable = makeTable(m_requests, "RequestTable");
    m_messageTable = makeTable(m_messages, "MessageTable");
    m_body = new QPlainTextEdit;
    m_plugins = new QTreeWidget;
    m_plugins->setObjectName("PluginTable");
    m_plugins->setRootIsDecorated(false);
    m_plugins->setUniformRowHeights(true);
    m_plugins->setColumnCount(5);
    m_tabs->setObjectName("ActivityTabs");
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(makeRequestPage(), QString());
    m_tabs->addTab(m_messageTable, QString());
    m_tabs->addTab(m_plugins, QString());
    setWidget(m_tabs);
    setWidths(m_requestTable->horizontalHeader(), {96, 150, 300, 260, 80, 64});
    setWidths(m_messageTable->horizontalHeader(), {96, 120, 700, 160});
    m_requestTable->horizontalHeader()->setSectionResizeMode(RequestModel::StatusColumn,
                                                             QHeaderView::Stretch);
    m_messageTable->horizontalHeader()->setSectionResizeMode(MessageModel::TextColumn, QHeaderView::Stretch);
    setWidths(m_plugins->header(), {140, 72, 96, 420, 420});
    fillPlugins();
    retranslate();
}

void ActivityPanel::setVisible(bool visible)
{
    if (visible && !m_tabs)
        makeParts();
    QDockWidget::setVisible(visible);
}

QTableView *ActivityPanel::makeTable(QAbstractItemModel *model, const QString &name)
{
    auto *table = new QTableView;
    table->setObjectName(name);
    table->setModel(model);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(RowHeight);
    table->verticalHeader()->setDefaultSectionSize(RowHeight);
    table->horizontalHeader()->setHighlightSections(false);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QWidget::customContextMenuRequested, this, [this, table](const QPoint &position) {
        QMenu menu;
        menu.addAction(tr("Clear"), this, &ActivityPanel::clear);
        menu.exec(table->viewport()->mapToGlobal(position));
    });
    followEnd(table);
    return table;
}

QWidget *ActivityPanel::makeRequestPage()
{
    m_body->setObjectName("RequestBody");
    m_body->setReadOnly(true);
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(m_requestTable);
    splitter->addWidget(m_body);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    splitter->setHandleWidth(1);
    connect(m_requestTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { showBody(current.row()); });
    return splitter;
}

void ActivityPanel::addRequest(const TFRequestRecord &record)
{
    m_requests->add(record);
}

void ActivityPanel::addMessage(const LogMessage &message)
{
    m_messages->add(message);
}

void ActivityPanel::showPlugins(const PluginManager &plugins)
{
    m_manager = &plugins;
    if (m_tabs)
        fillPlugins();
}

void ActivityPanel::fillPlugins()
{
    m_plugins->clear();
    if (!m_manager)
        return;
    for (const PluginInfo &info : m_manager->plugins()) {
        const QString state = QCoreApplication::translate("PluginInfo", PluginInfo::stateName(info.state));
        auto *item = new QTreeWidgetItem(
            m_plugins, {info.name, info.version.toString(), state, info.reason, info.filePath});
        item->setToolTip(3, info.reason);
        item->setToolTip(4, info.filePath);
    }
}

void ActivityPanel::showBody(int row)
{
    if (row < 0)
        return m_body->clear();
    const TFRequestRecord &record = m_requests->record(row);
    const QJsonDocument body = QJsonDocument::fromJson(record.body);
    m_body->setPlainText(QString::fromUtf8(body.isNull() ? record.body : body.toJson()));
}

void ActivityPanel::clear()
{
    m_requests->clear();
    m_messages->clear();
    m_body->clear();
}

void ActivityPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDockWidget::changeEvent(event);
}

void ActivityPanel::retranslate()
{
    setWindowTitle(tr("What happened"));
    if (!m_tabs)
        return;
    m_tabs->setTabText(0, tr("Requests"));
    m_tabs->setTabText(1, tr("Warnings"));
    m_tabs->setTabText(2, tr("Plug-ins"));
    m_body->setPlaceholderText(tr("Pick a request to see what it asked"));
    m_plugins->setHeaderLabels({tr("Name"), tr("Version"), tr("State"), tr("Reason"), tr("File")});
    emit m_requests->headerDataChanged(Qt::Horizontal, 0, RequestModel::ColumnCount - 1);
    emit m_messages->headerDataChanged(Qt::Horizontal, 0, MessageModel::ColumnCount - 1);
}
