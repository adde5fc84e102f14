#pragma once

#include "records/headerfieldinfo.h"

#include <QList>
#include <QStringList>

#include <memory>

/// A node of the band header tree: inner nodes are bands, leaves are data columns.
///
/// The index of a leaf in the root's leaves() is the column index in the model and the cell index in a row.
/// The root has no field of its own. A node owns its children. Build a tree bottom-up: only addChild() and
/// clearChildren() on a node renew what leaves() of that very node gives. User-interface thread only.
class TFTreeStruct
{
public:
    /// A node without a field whose display caption is \a caption.
    explicit TFTreeStruct(const QString &caption);
    /// A node for \a info; its caption shows the unit where captionShowType asks for it.
    explicit TFTreeStruct(const HeaderFieldInfo &info);
    ~TFTreeStruct();
    Q_DISABLE_COPY(TFTreeStruct)

    /// A tree of its own that shows the same captions, without a parent.
    std::unique_ptr<TFTreeStruct> clone() const;

    const HeaderFieldInfo &info() const { return m_info; }
    TFTreeStruct *parent() const { return m_parent; }
    QString currentUnit() const { return m_currentUnit; }
    QString displayCaption() const { return m_displayCaption; }

    /// Takes ownership of \a child.
    void addChild(TFTreeStruct *child);
    QList<TFTreeStruct *> children() const { return m_children; }
    void clearChildren();
    /// About \a node, or about this node when \a node is null.
    bool hasChildren(const TFTreeStruct *node = nullptr) const;

    /// 1 for a node without children.
    int depth() const;
    /// Leaves below this node, left to right; empty for a node without children.
    QList<TFTreeStruct *> leaves();
    /// New copies of the records of all leaves, in leaf order. The caller deletes them.
    QList<HeaderFieldInfo *> leafRecords();
    /// Display captions of all leaves, in leaf order.
    QStringList leafCaptions();
    /// Indexes, in leaves(), of the leaves that are not visible.
    QList<int> hiddenLeafIndexes();
    /// Nodes \a level steps under this one, left to right; the children are level 1.
    QList<TFTreeStruct *> nodesAtLevel(int level, int current = 1) const;
    /// This node or the first one below, depth first, with that field name; null when there is none.
    TFTreeStruct *findField(const QString &fieldName);

    /// The first current unit that is not empty: this node's own, then depth first.
    QString firstUnit() const;
    /// Shows \a unit in the captions of this node and all below it that belong to \a unitCategory, are bands
    /// or unit columns, have a unit text and show it. Leaves every other caption alone.
    void updateUnit(const QString &unit, int unitCategory);
    /// Hands the factors and the category of a band down to all its descendants, where both are set.
    void updateChildUnit();
    /// Sets the three fields here and in all descendants.
    void setUnitFactors(qint64 showUnitFactor, qint64 prevUnitFactor, int unitCategory);
    /// Makes each direct child that has children visible.
    void showBands();

private:
    HeaderFieldInfo m_info;
    QList<TFTreeStruct *> m_leafCache;
    QString m_reserved1;
    QString m_reserved2;
    TFTreeStruct *m_parent = nullptr;
    QList<TFTreeStruct *> m_children;
    QString m_currentUnit;
    QString m_displayCaption;
};
