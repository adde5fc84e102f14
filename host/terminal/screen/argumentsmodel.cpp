#include "argumentsmodel.h"

#include "variantjson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace {
bool isText(const QVariant &value)
{
    const int type = value.userType();
    return type != QMetaType::QVariantList && type != QMetaType::QStringList &&
           type != QMetaType::QVariantMap;
}

QString textOf(const QVariant &value)
{
    if (isText(value))
        return value.toString();
    QStringList unused;
    const QJsonValue json = VariantJson::write(value, QString(), &unused);
    const QJsonDocument document =
        json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

/// A value that was typed as it is in \a present stays what it is, a number for instance.
QVariant valueFrom(const QString &text, const QVariant &present)
{
    if (present.isValid() && text == textOf(present))
        return present;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (isText(present) || document.isNull())
        return text;
    QStringList unused;
    const QJsonValue json = document.isArray() ? QJsonValue(document.array()) : document.object();
    return VariantJson::read(json, QString(), &unused);
}
} // namespace

ArgumentsModel::ArgumentsModel(const QVariantMap &args, QObject *parent)
    : QAbstractTableModel(parent)
{
    for (auto it = args.begin(); it != args.end(); ++it)
        m_rows.append({it.key(), it.value()});
}

QVariantMap ArgumentsModel::args() const
{
    QVariantMap args;
    for (const Row &row : m_rows)
        args.insert(row.name, row.value);
    return args;
}

QString ArgumentsModel::fault() const
{
    QSet<QString> names;
    for (int i = 0; i < m_rows.size(); ++i) {
        const QString &name = m_rows.at(i).name;
        if (name.isEmpty())
            return tr("Row %1 has no name.").arg(i + 1);
        if (names.contains(name))
            return tr("The name \"%1\" is there twice.").arg(name);
        names.insert(name);
    }
    return {};
}

QString ArgumentsModel::nameAt(int row) const
{
    return m_rows.value(row).name;
}

int ArgumentsModel::rowOf(const QString &name) const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i).name == name)
            return i;
    }
    return -1;
}

int ArgumentsModel::add()
{
    int number = m_rows.size() + 1;
    while (rowOf(tr("Argument %1").arg(number)) >= 0)
        ++number;
    const int row = m_rows.size();
    beginInsertRows(QModelIndex(), row, row);
    m_rows.append({tr("Argument %1").arg(number), QString("")});
    endInsertRows();
    return row;
}

int ArgumentsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int ArgumentsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ArgumentsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::ToolTipRole))
        return {};
    const Row &row = m_rows.at(index.row());
    return index.column() == Name ? row.name : textOf(row.value);
}

QVariant ArgumentsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return section == Name ? tr("Name") : tr("Value");
}

Qt::ItemFlags ArgumentsModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool ArgumentsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    Row &row = m_rows[index.row()];
    if (index.column() == Name)
        row.name = value.toString().trimmed();
    else
        row.value = valueFrom(value.toString(), row.value);
    emit dataChanged(index, index);
    return true;
}

bool ArgumentsModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count < 1 || row + count > m_rows.size())
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    m_rows.remove(row, count);
    endRemoveRows();
    return true;
}
