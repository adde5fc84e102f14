#include "tftreeitem.h"

QVariant TFTreeItem::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_fields.caption;
    case CodeRole:
        return m_fields.code;
    case ParentCodeRole:
        return m_fields.parentCode;
    case NodeTypeRole:
        return m_fields.nodeType;
    case LevelRole:
        return m_fields.level;
    case ViewIdRole:
        return m_fields.viewId ? QVariant(*m_fields.viewId) : QVariant();
    case UrlRole:
        return m_fields.url;
    default:
        return QStandardItem::data(role);
    }
}

void TFTreeItem::setData(const QVariant &value, int role)
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        m_fields.caption = value.toString();
        break;
    case CodeRole:
        m_fields.code = value.toLongLong();
        break;
    case ParentCodeRole:
        m_fields.parentCode = value.toLongLong();
        break;
    case NodeTypeRole:
        m_fields.nodeType = value.toLongLong();
        break;
    case LevelRole:
        m_fields.level = value.toLongLong();
        break;
    case ViewIdRole:
        m_fields.viewId = value.toLongLong();
        break;
    case UrlRole:
        m_fields.url = value.toString();
        break;
    default:
        QStandardItem::setData(value, role);
    }
}
