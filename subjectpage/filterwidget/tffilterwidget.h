#pragma once

#include "records/filterparam.h"
#include "records/tftablemodeldata.h"

#include <QFrame>
#include <QList>
#include <QMap>
#include <QVariant>

class FlowLayout;
class TFBaseFilterWidget;
class TFCustomMath;

/// The bar of filter controls above a view.
///
/// The bar keeps the rows that describe its controls and turns what the controls report into what the next
/// request carries. User-interface thread only.
class TFFilterWidget : public QFrame
{
    Q_OBJECT

public:
    explicit TFFilterWidget(QWidget *parent = nullptr);
    ~TFFilterWidget() override;

    /// Builds the bar anew for \a rows; a selection in the controls before is lost.
    void setFilterData(const QList<TFTableModelData::FilterData> &rows);
    QList<TFTableModelData::FilterData> filterData() const { return m_rows; }

    /// Appends what the controls report: top-level keys of the request to \a dataSourceFilters, terms of the
    /// filter text to \a customFilters.
    void finalFilter(QList<FilterParam::DataSourceFilter> &dataSourceFilters,
                     QList<FilterParam::CustomFilter> &customFilters);
    /// Overrides the value of a hidden security or company control from the page's arguments.
    void updateF9Filters(FilterParam::Cntrl &cntrl);
    /// What the controls report, in the order of the bar.
    QList<FilterParam::Cntrl> getCntrls() const;
    /// In the order of the bar; owned by it.
    QList<TFBaseFilterWidget *> controls() const { return m_controls; }
    /// Whether the field \a key travels as a top-level key of the request.
    bool isDataSourceFilter(const QString &key) const;
    /// Selects \a text in the unit control, where the bar has one.
    void setUnitText(const QString &text);
    /// Arguments from outside; kept for the controls.
    void setDynamicArgs(const QMap<QString, QVariant> &arguments) { m_dynamicArgs = arguments; }

signals:
    void sigGetDataButtonClicked(QString Filter);
    void signalSimpleButtonSaveToExcel(int type = 0, QString saveType = QString());
    void signalSortChanged();
    void signalComboBoxChanged(int unitCode, int unitCategroy);

public slots:
    void slotSimpleButtonGetDataClicked();
    void slotSimpleButtonSaveToExcel(int type);
    void updateDynamicArgs();

private:
    void resolveDynamicDefault(FilterParam::Cntrl &cntrl) const;
    void appendFilter(const FilterParam::Cntrl &entry,
                      QList<FilterParam::DataSourceFilter> &dataSourceFilters,
                      QList<FilterParam::CustomFilter> &customFilters) const;

    QList<TFTableModelData::FilterData> m_rows;
    FlowLayout *m_layout;
    QList<TFBaseFilterWidget *> m_controls; ///< owned by the bar
    TFCustomMath *m_functions;
    QMap<QString, QVariant> m_dynamicArgs;
    QObject *m_argsCarrier = nullptr; ///< has the property "dynamicArgs"; null until a screen sets it
};
