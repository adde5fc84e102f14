#include "tfsortviewdelegate.h"

#include "tfcomboxview.h"
#include "tfsecuritytablemodel.h"

TFSortViewDelegate::TFSortViewDelegate(const QStringList &fields, const QStringList &orders, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_fields(fields)
    , m_orders(orders)
{}

QWidget *TFSortViewDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                          const QModelIndex &index) const
{
    auto *editor = new TFComboxView(parent);
    editor->setEntries(index.column() == TFSecurityTableModel::FieldColumn ? m_fields : m_orders);
    connect(editor, &TFComboxView::signalCurrentTextChanged, this, &TFSortViewDelegate::commitAndCloseEditor);
    return editor;
}

void TFSortViewDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                              const QModelIndex &) const
{
    editor->setGeometry(option.rect.adjusted(3, 1, -3, -1));
}

void TFSortViewDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *list = qobject_cast<TFComboxView *>(editor)) {
        const QSignalBlocker quiet(list);
        list->setCurrentText(index.data(Qt::EditRole).toString());
    }
}

void TFSortViewDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                      const QModelIndex &index) const
{
    if (const auto *list = qobject_cast<TFComboxView *>(editor))
        model->setData(index, list->currentText());
}

void TFSortViewDelegate::commitAndCloseEditor(QString)
{
    auto *editor = qobject_cast<TFComboxView *>(sender());
    if (!editor)
        return;
    emit commitData(editor);
    emit closeEditor(editor);
}
