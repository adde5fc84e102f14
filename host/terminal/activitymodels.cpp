#include "activitymodels.h"

#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QPalette>

namespace {
constexpr size_t KeptRows = 1000;
const char TimeFormat[] = "HH:mm:ss.zzz";

/// What a request asked for, as far as its body tells: "view 260, flag 1, page 2".
QString subjectOf(const QByteArray &body)
{
    static const char *const keys[] = {"objId", "obj_vw_id", "flag", "page", "size"};
    const QJsonObject object = QJsonDocument::fromJson(body).object();
    QStringList parts;
    for (const char *key : keys) {
        const QVariant value = object.value(key).toVariant();
        if (value.isValid() && !value.toString().isEmpty())
            parts.append(QString(key) + ' ' + value.toString());
    }
    return parts.join(", ");
}
} // namespace

RequestModel::RequestModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void RequestModel::add(const TFRequestRecord &record)
{
    if (m_records.size() == KeptRows) {
        beginRemoveRows({}, 0, 0);
        m_records.pop_front();
        endRemoveRows();
    }
    const int row = int(m_records.size());
    beginInsertRows({}, row, row);
    m_records.push_back(record);
    m_failures += record.ok ? 0 : 1;
    endInsertRows();
}

void RequestModel::clear()
{
    beginResetModel();
    m_records.clear();
    m_failures = 0;
    endResetModel();
}

int RequestModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

int RequestModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RequestModel::text(const TFRequestRecord &record, int column) const
{
    switch (column) {
    case TimeColumn:
        return record.time.toString(TimeFormat);
    case PathColumn:
        return record.path;
    case SubjectColumn:
        return subjectOf(record.body);
    case StatusColumn:
        return record.ok ? tr("done") : record.error;
    case BytesColumn:
        return QLocale().toString(record.bytes);
    case MsColumn:
        return QLocale().toString(record.ms);
    default:
        return {};
    }
}

QVariant RequestModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const TFRequestRecord &record = m_records[size_t(index.row())];
    if (role == Qt::DisplayRole)
        return text(record, index.column());
    if (role == Qt::TextAlignmentRole && index.column() >= BytesColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ForegroundRole && !record.ok && index.column() == StatusColumn)
        return QGuiApplication::palette().brush(QPalette::BrightText);
    if (role == Qt::ToolTipRole && index.column() == StatusColumn)
        return record.error;
    return {};
}

QVariant RequestModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return int((section >= BytesColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString names[ColumnCount] = {tr("Time"),   tr("Path"),  tr("Asked for"),
                                        tr("Status"), tr("Bytes"), tr("ms")};
    return names[section];
}

MessageModel::MessageModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void MessageModel::add(const LogMessage &message)
{
    if (m_messages.size() == KeptRows) {
        beginRemoveRows({}, 0, 0);
        m_messages.pop_front();
        endRemoveRows();
    }
    const int row = int(m_messages.size());
    beginInsertRows({}, row, row);
    m_messages.push_back(message);
    endInsertRows();
}

void MessageModel::clear()
{
    beginResetModel();
    m_messages.clear();
    endResetModel();
}

int MessageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_messages.size());
}

int MessageModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MessageModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const LogMessage &message = m_messages[size_t(index.row())];
    switch (index.column()) {
    case TimeColumn:
        return message.time.toString(TimeFormat);
    case CategoryColumn:
        return message.category;
    case TextColumn:
        return message.text;
    case PlaceColumn:
        return message.place;
    default:
        return {};
    }
}

QVariant MessageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString names[ColumnCount] = {tr("Time"), tr("Category"), tr("Message"), tr("Place")};
    return names[section];
}
