#pragma once

#include <QColor>
#include <QVariant>
#include <QWidget>

struct MenuItem;
class QModelIndex;
class QStandardItem;
class QTreeView;
class QVBoxLayout;
class TFRowDelegate;
class TFSearchWidget;
class TFSubjectTreeModel;
class TFTreeFilterProxyModel;

/// A search line over a tree: the main tree of topics or the block tree.
///
/// Indexes in this interface are those of the view, that is, of the proxy over the model. A style sheet sets
/// the colour of the open page's bar with "TFSubjectTreeWidget { qproperty-accentColor: #0060E3; }".
class TFSubjectTreeWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor accentColor READ accentColor WRITE setAccentColor)

public:
    explicit TFSubjectTreeWidget(bool isBlock, QWidget *parent = nullptr);
    ~TFSubjectTreeWidget() override;

    /// Shows \a model, takes it over and deletes the one before. Null is ignored.
    void setModel(TFSubjectTreeModel *model);
    TFSubjectTreeModel *model() const { return m_model; }
    QTreeView *view() const { return m_view; }
    bool hasRows() const;
    QVariantList checkedCodes() const;
    /// Takes all checks away and closes all folders.
    void reset();

    /// Opens the node of a menu's item: that with its name and view, else that with its sector's name, else
    /// the first one; within it, as told at selectByCode().
    void selectByName(const MenuItem &record, const QString &text);
    /// Opens the node that has \a code, else the first one. From there it goes down by the first child to a
    /// leaf, or to the first node on the way whose caption is \a text.
    void selectByCode(const QString &code, const QString &text);

    /// Marks the page that is open; null for none.
    void setOpenItem(const QStandardItem *item);

    QColor accentColor() const { return m_accentColor; }
    void setAccentColor(const QColor &color);

signals:
    void signalItemClicked(QStandardItem *item);
    /// A leaf was opened under the level-1 group \a text.
    void currentTopNodeTextChanged(const QString &text);

public slots:
    /// Filters by \a text as a pattern whose last character may repeat, and opens the first leaf that
    /// remains. A text that is no pattern matches nothing.
    void slotSearch(const QString &text);
    /// Shows only what is below the node with the caption or the code \a rootItem.
    void setRootSector(const QString &rootItem);
    /// Checks the node with the caption or the code \a text.
    void slotCheckItem(const QString &text);
    void slotItemClicked(const QModelIndex &index);
    void slotDoubleClicked(const QModelIndex &index);
    void slotExpanded(const QModelIndex &index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildLayout();
    void buildView();
    void connectAll();
    void loadSkin();
    bool isTopGroup(const QModelIndex &index) const;
    QModelIndexList matches(int role, const QVariant &value, Qt::MatchFlags flags) const;
    QModelIndex findByText(const QString &text, int viewId) const;
    QModelIndex findFirstByText(const QString &text) const;
    QModelIndex findForCheck(const QString &text) const;
    void open(QModelIndex index, const QString &text);
    void openCurrent();

    bool m_isBlock;
    QTreeView *m_view;
    TFSubjectTreeModel *m_model = nullptr;
    TFTreeFilterProxyModel *m_proxy;
    QVBoxLayout *m_outerLayout;
    QVBoxLayout *m_innerLayout;
    TFSearchWidget *m_search;
    TFRowDelegate *m_delegate;
    QColor m_accentColor;
};
