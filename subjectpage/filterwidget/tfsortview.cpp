#include "tfsortview.h"

#include "tfcustomsortfilterproxymodel.h"
#include "tfsecuritytablemodel.h"
#include "tfsortviewdelegate.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

namespace {
constexpr int WarningWidth = 300;
constexpr int RowHeight = 30;
} // namespace

TFSortView::TFSortView(const QStringList &fields, QWidget *parent)
    : QDialog(parent)
    , m_fields(fields)
    , m_orders{tr("升序"), tr("降序")}
    , m_model(new TFSecurityTableModel(this))
    , m_proxy(new TFCustomSortFilterProxyModel(this))
    , m_table(new QTableView(this))
{
    setWindowTitle(tr("Sort"));
    m_proxy->setSourceModel(m_model);
    buildTable();
    buildForm();
    resize(420, 320);
}

TFSortView::~TFSortView() = default;

void TFSortView::buildTable()
{
    m_table->setModel(m_proxy);
    m_table->setItemDelegate(new TFSortViewDelegate(m_fields, m_orders, m_table));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->verticalHeader()->setDefaultSectionSize(RowHeight);
}

void TFSortView::buildForm()
{
    auto *tools = new QHBoxLayout;
    addButton(tools, QStringLiteral("pushButton_2"), tr("Add"), &TFSortView::on_pushButton_2_clicked);
    addButton(tools, QStringLiteral("pushButton_3"), tr("Remove"), &TFSortView::on_pushButton_3_clicked);
    addButton(tools, QStringLiteral("moveUp"), tr("Move up"), &TFSortView::on_moveUp_clicked);
    addButton(tools, QStringLiteral("moveDown"), tr("Move down"), &TFSortView::on_moveDown_clicked);
    tools->addStretch();
    addButton(tools, QStringLiteral("closeBtn"), QStringLiteral("×"), &TFSortView::on_closeBtn_clicked);
    auto *answers = new QHBoxLayout;
    answers->addStretch();
    addButton(answers, QStringLiteral("pushButton_7"), tr("Close"), &TFSortView::on_pushButton_7_clicked);
    addButton(answers, QStringLiteral("pushButton_6"), tr("Confirm"), &TFSortView::on_pushButton_6_clicked);
    findChild<QPushButton *>(QStringLiteral("pushButton_6"))->setDefault(true);
    auto *form = new QVBoxLayout(this);
    form->addLayout(tools);
    form->addWidget(m_table);
    form->addLayout(answers);
}

void TFSortView::addButton(QHBoxLayout *line, const QString &name, const QString &text,
                           void (TFSortView::*slot)())
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, slot);
    line->addWidget(button);
}

void TFSortView::on_pushButton_2_clicked()
{
    m_model->insertRecord({QString::number(m_nextKey), 0, m_fields.value(0), m_orders.first()});
    ++m_nextKey;
    updateEditorStatus();
    updateCurSeleted();
}

void TFSortView::on_pushButton_3_clicked()
{
    if (m_model->rowCount() == 0)
        return;
    m_model->removeRecord(m_proxy->mapToSource(m_proxy->index(selectedRow(), 0)).row());
    updateEditorStatus();
    m_table->selectRow(0);
}

void TFSortView::on_pushButton_6_clicked()
{
    if (order().isEmpty())
        warnOfRepetition();
    else
        accept();
}

void TFSortView::on_pushButton_7_clicked()
{
    reject();
}

void TFSortView::on_closeBtn_clicked()
{
    reject();
}

void TFSortView::on_moveUp_clicked()
{
    updateCurSeleted(true);
}

void TFSortView::on_moveDown_clicked()
{
    updateCurSeleted(false);
}

void TFSortView::updateCurSeleted(bool up)
{
    const int rows = m_proxy->rowCount();
    const int row = selectedRow();
    if (row >= 0)
        m_table->selectRow((row + (up ? rows - 1 : 1)) % rows);
}

void TFSortView::updateCurSeleted()
{
    m_table->selectRow(m_proxy->rowCount() - 1);
}

void TFSortView::updateEditorStatus()
{
    for (int row = 0; row < m_proxy->rowCount(); ++row) {
        for (int column = 0; column < m_proxy->columnCount(); ++column)
            m_table->openPersistentEditor(m_proxy->index(row, column));
    }
}

int TFSortView::selectedRow() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

TFSortView::Order TFSortView::order() const
{
    Order order;
    for (const TFSortRecord &record : m_model->recordsByKey()) {
        const int position = m_fields.indexOf(record.field);
        const bool isRepeated =
            std::any_of(order.begin(), order.end(),
                        [position](const QPair<int, bool> &term) { return term.first == position; });
        if (isRepeated)
            return {};
        order.append({position, !record.order.contains(m_orders.first())});
    }
    return order;
}

void TFSortView::warnOfRepetition()
{
    QMessageBox box(QMessageBox::Warning, tr("Warning"), tr("排序列重复出现\n请清空重复排序列后重试!"),
                    QMessageBox::Ok, this);
    // The box takes its width from its layout, whatever width it is given.
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    const QMargins margins = grid->contentsMargins();
    grid->addItem(new QSpacerItem(WarningWidth - margins.left() - margins.right(), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
    box.exec();
}
