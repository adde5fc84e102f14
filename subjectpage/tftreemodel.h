#pragma once

#include <QAbstractItemModel>
#include <QSet>

#include <memory>
#include <vector>

class QJsonArray;
class QJsonObject;
class QJsonValue;
class TFTreeItem;

/// The navigation tree, or the block tree, made from the flat array of rows that the data service delivers.
///
/// Rows of the navigation tree have NODE_* keys and no check boxes; rows of the block tree have SECT_* keys
/// and check boxes whose state spreads to the children. A model is built once and keeps its rows from then
/// on: another array takes another model. One column. User-interface thread only.
class TFSubjectTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit TFSubjectTreeModel(QObject *parent = nullptr);
    ~TFSubjectTreeModel() override;

    /// Makes the tree from \a rows, in time proportional to their number.
    ///
    /// A row hangs under the first other row, in array order, whose code is its parent's code; the model's
    /// root has \a rootCode in the navigation tree and 0 in the block tree, and rows with that very code are
    /// dropped. Rows that don't hang under the root, because their parent is missing or because their codes
    /// form a circle, are freed. Returns false, and leaves the model empty, where \a rows is no array or an
    /// empty one.
    bool build(const QJsonValue &rows, int rootCode, bool checkable);

    bool isCheckable() const { return m_checkable; }
    void clearChecks();
    /// The integer code of every checked item, in no particular order.
    QVariantList checkedCodes() const;

    /// The item behind an index of this model or of a proxy over it, or null for an invalid index.
    static TFTreeItem *itemFromIndex(const QModelIndex &index);

    /// A node made from a row of the navigation tree. Missing keys give 0 or an empty text.
    static std::unique_ptr<TFTreeItem> createTreeNode(const QJsonObject &row);
    /// A node made from a row of the block tree. Missing keys give 0 or an empty text.
    static std::unique_ptr<TFTreeItem> createBlockNode(const QJsonObject &row);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Checks or unchecks the index and all below it. Returns false even where something has changed.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// The root item's data under the role number \a section.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    using Nodes = std::vector<std::unique_ptr<TFTreeItem>>;

    Nodes createNodes(const QJsonArray &rows) const;
    void attach(Nodes nodes);
    void setChecked(const QModelIndex &index, bool checked);
    QModelIndex indexOf(TFTreeItem *item) const;

    std::unique_ptr<TFTreeItem> m_root;
    QSet<QModelIndex> m_checked;
    bool m_checkable = false;
};
