#include "screenlistdialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {
constexpr QSize FirstSize(520, 360);
constexpr int NameWidth = 260;
constexpr int PathRole = Qt::UserRole;
constexpr int NameRole = Qt::UserRole + 1; ///< as it was before it is edited

enum Column { Name, Changed };

/// Names are edited, times are not.
class NameOnlyTree : public QTreeWidget
{
public:
    using QTreeWidget::QTreeWidget;

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override
    {
        return index.column() == Name && QTreeWidget::edit(index, trigger, event);
    }
};
} // namespace

ScreenListDialog::ScreenListDialog(QWidget *parent)
    : QDialog(parent)
    , m_list(new NameOnlyTree)
    , m_open(makeButton("OpenScreen", tr("Open")))
    , m_rename(makeButton("RenameScreen", tr("Rename")))
    , m_delete(makeButton("DeleteScreen", tr("Delete")))
{
    setObjectName("ScreenListDialog");
    setWindowTitle(tr("Composite screens"));
    resize(FirstSize);
    m_list->setObjectName("ScreenList");
    m_list->setHeaderLabels({tr("Name"), tr("Last change")});
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_list->setColumnWidth(Name, NameWidth);
    m_open->setDefault(true);
    layOut();
    connect(m_open, &QPushButton::clicked, this, &ScreenListDialog::openCurrent);
    connect(m_rename, &QPushButton::clicked, this, [this] { m_list->editItem(m_list->currentItem(), Name); });
    connect(m_delete, &QPushButton::clicked, this, &ScreenListDialog::deleteCurrent);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &ScreenListDialog::openCurrent);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &ScreenListDialog::check);
    connect(m_list, &QTreeWidget::itemChanged, this, &ScreenListDialog::takeName);
}

QPushButton *ScreenListDialog::makeButton(const char *name, const QString &text)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void ScreenListDialog::layOut()
{
    auto *close = makeButton("CloseList", tr("Close"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto *commands = new QHBoxLayout;
    commands->setSpacing(8);
    commands->addWidget(m_rename);
    commands->addWidget(m_delete);
    commands->addStretch(1);
    commands->addWidget(close);
    commands->addWidget(m_open);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(8);
    layout->addWidget(m_list, 1);
    layout->addLayout(commands);
}

void ScreenListDialog::setEntries(const QList<ScreenStore::Entry> &entries)
{
    const QString current = currentPath();
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const ScreenStore::Entry &entry : entries) {
        const QString time = QLocale().toString(entry.changed, QLocale::ShortFormat);
        auto *item =
            new QTreeWidgetItem(m_list, {entry.name, entry.isDamaged ? tr("%1, damaged").arg(time) : time});
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setData(Name, PathRole, entry.path);
        item->setData(Name, NameRole, entry.name);
        item->setToolTip(Name, entry.path);
        if (entry.path == current || m_list->topLevelItemCount() == 1)
            m_list->setCurrentItem(item);
    }
    check();
}

QString ScreenListDialog::currentPath() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? item->data(Name, PathRole).toString() : QString();
}

void ScreenListDialog::openCurrent()
{
    const QString path = currentPath();
    if (path.isEmpty())
        return;
    accept();
    emit openRequested(path);
}

void ScreenListDialog::deleteCurrent()
{
    const QTreeWidgetItem *item = m_list->currentItem();
    if (!item)
        return;
    const auto answer = QMessageBox::question(this, windowTitle(),
                                              tr("Delete %1? This cannot be undone.").arg(item->text(Name)),
                                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes)
        emit deleteRequested(currentPath());
}

/// An empty name is no name: the former one stays.
void ScreenListDialog::takeName(QTreeWidgetItem *item)
{
    const QString former = item->data(Name, NameRole).toString();
    const QString name = item->text(Name).trimmed();
    if (name == former)
        return;
    if (name.isEmpty())
        return item->setText(Name, former);
    const QString path = item->data(Name, PathRole).toString();
    // The editor is still at work on the item.
    QMetaObject::invokeMethod(
        this, [this, path, name] { emit renameRequested(path, name); }, Qt::QueuedConnection);
}

void ScreenListDialog::check()
{
    const bool any = m_list->currentItem() != nullptr;
    for (QPushButton *button : {m_open, m_rename, m_delete})
        button->setEnabled(any);
}
