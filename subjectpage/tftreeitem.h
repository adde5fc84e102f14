#pragma once

#include <QStandardItem>

#include <optional>

/// One node of the navigation tree or of the block tree. Its text is the caption.
///
/// What each node has lies in members, not in the item's list of role and value; data() and setData() reach
/// both.
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

    struct Fields
    {
        QString caption;
        QString url;
        qint64 code = 0;
        qint64 parentCode = 0;
        qint64 nodeType = 0;
        qint64 level = 0;
        std::optional<qint64> viewId;
    };

    /// Empty caption and address; code, parent's code, node type and level 0.
    TFTreeItem() = default;
    explicit TFTreeItem(const Fields &fields)
        : m_fields(fields)
    {}

    qint64 code() const { return m_fields.code; }
    qint64 parentCode() const { return m_fields.parentCode; }
    qint64 level() const { return m_fields.level; }
    /// 0 where the node opens no view.
    qint64 viewId() const { return m_fields.viewId.value_or(0); }
    QString url() const { return m_fields.url; }

    QVariant data(int role = Qt::UserRole + 1) const override;
    void setData(const QVariant &value, int role = Qt::UserRole + 1) override;

private:
    Fields m_fields;
};
