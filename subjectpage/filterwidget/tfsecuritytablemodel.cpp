#include "tfsecuritytablemodel.h"

#include <QCoreApplication>

#include <algorithm>

TFSecurityTableModel::TFSecurityTableModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

TFSecurityTableModel::~TFSecurityTableModel() = default;

bool TFSecurityTableModel::insertRecord(const TFSortRecord &record)
{
    if (m_records.contains(record.key))
        return false;
    beginInsertRows({}, m_keys.size(), m_keys.size());
    m_keys.append(record.key);
    m_records.insert(record.key, record);
    endInsertRows();
    return true;
}

bool TFSecurityTableModel::removeRecord(int row)
{
    if (row < 0 || row >= m_keys.size())
        return false;
    beginRemoveRows({}, row, row);
    const QString key = m_keys.takeAt(row);
    m_records.remove(key);
    m_states.remove(key);
    endRemoveRows();
    return true;
}

int TFSecurityTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_keys.size();
}

int TFSecurityTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TFSecurityTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString key = m_keys.at(index.row());
    if (role == Qt::CheckStateRole && index.column() == FieldColumn)
        return m_states.value(key, Qt::Unchecked);
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    const auto record = m_records.constFind(key);
    return index.column() == FieldColumn ? record->field : record->order;
}

bool TFSecurityTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    if (role == Qt::EditRole)
        return setText(index, value.toString());
    if (role != Qt::CheckStateRole || index.column() != FieldColumn)
        return false;
    m_states.insert(m_keys.at(index.row()), static_cast<Qt::CheckState>(value.toInt()));
    emit dataChanged(index, index, {Qt::CheckStateRole});
    emit signalChecked();
    emit signalCheckStateChanged(sharedState());
    return true;
}

bool TFSecurityTableModel::setText(const QModelIndex &index, const QString &text)
{
    TFSortRecord &record = m_records[m_keys.at(index.row())];
    (index.column() == FieldColumn ? record.field : record.order) = text;
    emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

QVariant TFSecurityTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return section == FieldColumn ? QCoreApplication::translate("TFSortView", "Sort by")
                                  : QCoreApplication::translate("TFSortView", "Direction");
}

Qt::ItemFlags TFSecurityTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid())
        flags |= Qt::ItemIsEditable;
    return index.column() == FieldColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

Qt::CheckState TFSecurityTableModel::sharedState() const
{
    const auto checked = std::count_if(m_keys.begin(), m_keys.end(), [this](const QString &key) {
        return m_states.value(key) == Qt::Checked;
    });
    if (checked == 0)
        return Qt::Unchecked;
    return checked == m_keys.size() ? Qt::Checked : Qt::PartiallyChecked;
}

void TFSecurityTableModel::slotCheckStateChanged(Qt::CheckState state)
{
    if (m_keys.isEmpty())
        return;
    for (const QString &key : qAsConst(m_keys))
        m_states.insert(key, state);
    emit dataChanged(index(0, FieldColumn), index(m_keys.size() - 1, FieldColumn), {Qt::CheckStateRole});
    emit signalCheckStateChanged(state);
}
