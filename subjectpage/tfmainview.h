#pragma once

#include "records/filterparam.h"
#include "records/tftablemodeldata.h"

#include <QStackedWidget>
#include <QVariantMap>

class QJsonValue;
class TFBaseView;
class TFSubjectTableWidget;

/// The stack of the main views, at most one a kind. The configuration decides which one is on top; a view
/// that exists is used again for the next page of its kind.
///
/// Operations act on the view on top; they do nothing, or give an empty result, where it is not of the kind
/// that they need.
class TFMainView : public QStackedWidget
{
    Q_OBJECT

public:
    explicit TFMainView(QWidget *parent = nullptr);
    ~TFMainView() override;

    /// Kind of the view that \a config describes: a chart for the type "ViewDataChart", else a table.
    static int viewKind(const QJsonValue &config);

    /// Brings the view of the configuration's kind to the top, makes it if need be, and has it read \a
    /// config.
    void parseConfig(const QJsonValue &config, bool isNew);
    /// The page to come; the table on top is reset for it.
    void setViewId(qint64 id);
    void setFilterBarVisible(bool visible);
    void setPageBarVisible(bool visible);
    /// Whether a view that has bars to hide, a table, is on top.
    bool hasBars() const { return table(); }
    bool isFilterBarVisible() const;
    bool isPageBarVisible() const;
    void setRequestName(const QString &name);
    void startLoading();
    void finished();
    /// See TFSubjectTableWidget::load().
    void load(const FilterParam::DataSourceFilter &pair);

    QList<FilterParam::CustomFilter> filters() const;
    QList<FilterParam::DataSourceFilter> parameters() const;
    QList<FilterParam::Cntrl> cntrls() const;
    QList<TFTableModelData::FilterData> filterList() const;
    /// Text that links a row of the table with the child view \a childId.
    QString childLinkText(qint64 childId) const;
    /// Empty when there are no rows.
    RowData firstRow() const;
    /// One map a row, from field name to value; of several cells of one name the last counts.
    QList<QVariantMap> allRows() const;
    /// The view on top, or null.
    TFBaseView *currentView() const;
    /// Identifier of the view on top, -1 without one.
    qint64 currentViewId() const;

signals:
    void signalGetSubViewCfg(qlonglong objectViewID, QString caption, qlonglong pObjViewID);
    void sigSectorNumChanged(QString sectorNum, QString rootItem);
    void sigSectorNumChanged(QString sectorNum);
    void sigRowData(RowData values, bool isClicked);
    void updateChildren();
    void clearChildren();
    void signalCurrentPageChanged(int currentPage);

private:
    TFSubjectTableWidget *table() const;
    int indexOfKind(int kind);
    void connectTable(TFSubjectTableWidget *table);

    QList<int> m_kinds; ///< of the views in the stack, in its order
    qint64 m_viewId = -1;
};
