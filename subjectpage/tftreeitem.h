#pragma once

#include <QStandardItem>

/// One node of the navigation tree or of the block tree. Its text is the caption.
class TFTreeItem : public QStandardItem
{
public:
    enum Role {
        CodeRole = Qt::UserRole + 2,       ///< own code, 64-bit integer
        ParentCodeRole = Qt::UserRole + 3, ///< parent's code, 64-bit integer
        NodeTypeRole = Qt::UserRole + 4,   ///< 64-bit integer
        LevelRole = Qt::UserRole + 5,      ///< 1 for a top-level group, 64-bit integer
        ViewIdRole = Qt::UserRole + 6,     ///< view that the node opens, 64-bit integer; not set by default
        UrlRole = Qt::UserRole + 7,        ///< web address that the node opens, text
    };

    /// Empty caption and address; code, parent's code, node type and level 0.
    TFTreeItem();

    qint64 code() const { return data(CodeRole).toLongLong(); }
    qint64 parentCode() const { return data(ParentCodeRole).toLongLong(); }
    qint64 level() const { return data(LevelRole).toLongLong(); }
    /// 0 where the node opens no view.
    qint64 viewId() const { return data(ViewIdRole).toLongLong(); }
    QString url() const { return data(UrlRole).toString(); }
};
