#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

/// Edits the cells of the sort dialog with lists: the fields in one column, the two directions in the other.
class TFSortViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    TFSortViewDelegate(const QStringList &fields, const QStringList &orders, QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// A list fills its cell: the tick of the row is nothing to the user.
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

public slots:
    /// Takes over the choice \a code of the list that sends it.
    void commitAndCloseEditor(QString code);

private:
    QStringList m_fields;
    QStringList m_orders;
};
