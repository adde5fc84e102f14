#include "argumentsdialog.h"

#include "argumentsmodel.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>

namespace {
constexpr QSize FirstSize(520, 360);
constexpr int NameWidth = 180;
constexpr int RowHeight = 24;

template <typename Widget> Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(name);
    return widget;
}

QTableView *makeTable(ArgumentsModel *model)
{
    auto *table = named(new QTableView, "ArgumentTable");
    table->setModel(model);
    table->verticalHeader()->setMinimumSectionSize(RowHeight);
    table->verticalHeader()->setDefaultSectionSize(RowHeight);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setSectionsClickable(false);
    table->setColumnWidth(ArgumentsModel::Name, NameWidth);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                           QAbstractItemView::AnyKeyPressed);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    return table;
}
} // namespace

ArgumentsDialog::ArgumentsDialog(const QVariantMap &args, const QStringList &proposals, QWidget *parent)
    : QDialog(parent)
    , m_model(new ArgumentsModel(args, this))
    , m_task(new QLabel(tr("Components that follow an argument show its value at once.")))
    , m_table(makeTable(m_model))
    , m_hint(named(new QLabel(tr("There are no global arguments yet.")), "ArgumentHint"))
    , m_add(named(new QPushButton(tr("Add")), "AddArgument"))
    , m_remove(named(new QPushButton(tr("Remove")), "RemoveArgument"))
    , m_propose(named(new QToolButton, "ProposeValue"))
    , m_fault(named(new QLabel, "ArgumentFault"))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName("ArgumentsDialog");
    setWindowTitle(tr("Global arguments"));
    resize(FirstSize);
    m_propose->setText(tr("View of a component"));
    m_propose->setPopupMode(QToolButton::InstantPopup);
    m_propose->setToolTip(tr("Sets the argument to a view that a component of this screen shows"));
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    m_buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    for (QPushButton *button : {m_add, m_remove})
        button->setAutoDefault(false);
    layOut();
    fillProposals(proposals);
    connectParts();
    m_table->selectRow(0);
    check();
}

void ArgumentsDialog::layOut()
{
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *over = new QVBoxLayout(m_table->viewport());
    over->addWidget(m_hint);

    auto *commands = new QHBoxLayout;
    commands->setSpacing(8);
    commands->addWidget(m_add);
    commands->addWidget(m_remove);
    commands->addStretch(1);
    commands->addWidget(m_propose);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(8);
    layout->addWidget(m_task);
    layout->addWidget(m_table, 1);
    layout->addLayout(commands);
    layout->addWidget(m_fault);
    layout->addWidget(m_buttons);
}

void ArgumentsDialog::connectParts()
{
    connect(m_add, &QPushButton::clicked, this, &ArgumentsDialog::add);
    connect(m_remove, &QPushButton::clicked, this, &ArgumentsDialog::removeCurrent);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &ArgumentsDialog::check);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &ArgumentsDialog::check);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &ArgumentsDialog::check);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ArgumentsDialog::check);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ArgumentsDialog::fillProposals(const QStringList &proposals)
{
    auto *menu = new QMenu(m_propose);
    for (const QString &proposal : proposals) {
        QAction *action = menu->addAction(QString(proposal).replace('&', "&&"));
        connect(action, &QAction::triggered, this, [this, proposal] { setCurrentValue(proposal); });
    }
    m_propose->setMenu(menu);
    m_propose->setVisible(!proposals.isEmpty());
}

void ArgumentsDialog::letChoose(const QString &currentKey)
{
    m_isChoice = true;
    m_task->setText(tr("Choose the argument that the component follows."));
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Follow"));
    const int row = m_model->rowOf(currentKey);
    if (row >= 0)
        m_table->selectRow(row);
    check();
}

QVariantMap ArgumentsDialog::args() const
{
    return m_model->args();
}

QString ArgumentsDialog::chosenKey() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : m_model->nameAt(rows.first().row());
}

void ArgumentsDialog::add()
{
    const QModelIndex name = m_model->index(m_model->add(), ArgumentsModel::Name);
    m_table->setCurrentIndex(name);
    m_table->setFocus();
    m_table->edit(name);
}

void ArgumentsDialog::removeCurrent()
{
    const int row = m_table->currentIndex().row();
    m_model->removeRows(row, 1);
    m_table->selectRow(qMin(row, m_model->rowCount() - 1));
}

void ArgumentsDialog::setCurrentValue(const QString &value)
{
    m_model->setData(m_model->index(m_table->currentIndex().row(), ArgumentsModel::Value), value);
}

void ArgumentsDialog::check()
{
    const bool hasRow = !m_table->selectionModel()->selectedRows().isEmpty();
    const QString fault = m_model->fault();
    m_hint->setVisible(m_model->rowCount() == 0);
    m_remove->setEnabled(hasRow);
    m_propose->setEnabled(hasRow);
    m_fault->setText(fault);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(fault.isEmpty() && (hasRow || !m_isChoice));
}
