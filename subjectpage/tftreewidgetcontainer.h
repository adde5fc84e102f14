#pragma once

#include "tfverticalcontainer.h"

#include "records/filterparam.h"

struct MenuItem;
class QJsonValue;
class QStandardItem;
class TFSubjectTreeWidget;

/// The left pane of the page: the main tree over the block tree. Decides what a click on the main tree opens.
///
/// The block tree is hidden until a view asks for it, and never shown without rows.
class TFTreeWidgetContainer : public TFVerticalContainer
{
    Q_OBJECT

public:
    explicit TFTreeWidgetContainer(QWidget *parent = nullptr);

    /// Shows the tree of \a rows and opens the node of a menu's item; \a text is the caption that ends the
    /// way down. Returns false where the rows give no tree.
    bool loadMainTreeByName(const MenuItem &record, const QJsonValue &rows, int rootCode,
                            const QString &text);
    /// The same, and opens the node that has \a code.
    bool loadMainTreeByCode(const QString &code, const QJsonValue &rows, int rootCode, const QString &text);
    /// Shows the block tree of \a rows; null leaves a block tree that has rows as it is.
    void loadBlockTree(const QJsonValue &rows);

    /// The pair "filterBlock" with the checked codes of the block tree as a JSON array.
    FilterParam::DataSourceFilter blockFilter() const;

    TFSubjectTreeWidget *mainTree() const { return m_mainTree; }
    TFSubjectTreeWidget *blockTree() const { return m_blockTree; }

signals:
    /// The web address \a url is to be opened or, where it is empty, the view \a obj_vw_id.
    void signalItemClicked(qlonglong obj_vw_id, const QString &title, const QString &url = QString());
    /// A leaf was opened under the level-1 group \a text.
    void groupChanged(const QString &text);

public slots:
    /// Shows the block tree from the node \a rootItem downwards.
    void setRootSector(const QString &rootItem);
    /// Shows the block tree with only the node \a sectorNum checked.
    void slotSetSector(const QString &sectorNum);
    void slotMainTreeItemClicked(QStandardItem *item);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool setMainRows(const QJsonValue &rows, int rootCode);

    TFSubjectTreeWidget *m_mainTree;
    TFSubjectTreeWidget *m_blockTree;
    qint64 m_lastViewId = -1;
};
