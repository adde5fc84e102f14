#pragma once

#include "net/tfjsp.h"
#include "records/tfancestors.h"
#include "records/tftablemodeldata.h"
#include "tfverticalcontainer.h"

#include <QJsonValue>
#include <QMap>
#include <QPointer>

#include <memory>

class QPushButton;
class QTabWidget;
class TFBaseView;
class TFDm;
class TFMainView;

namespace TFSubject {
class TFJsonParser;
}

/// The data page: fetches the configuration of a view, has the main view built, makes a tab for each child
/// view that it announces, and carries the selected row of the main view into the child views as their
/// filters.
class TFRightContainer : public TFVerticalContainer, public ITFCurrentView
{
    Q_OBJECT
    Q_INTERFACES(ITFCurrentView)

public:
    explicit TFRightContainer(QWidget *parent = nullptr);
    ~TFRightContainer() override;

    /// Both then share the height by the splitter rule: what is not shown gets one pixel.
    void setMainViewVisible(bool visible);
    void setChildViewsVisible(bool visible);
    bool isMainViewVisible() const;
    /// The setting; a page without child views shows none all the same.
    bool areChildViewsVisible() const { return m_childViewsVisible; }

    qint64 currentView() const override { return m_currentView; }
    TFMainView *mainView() const { return m_mainView; }
    QTabWidget *childViews() const { return m_tabs; }

signals:
    void sigSectorNumChanged(QString sectorNum, QString rootItem);
    void sigSectorNumChanged(QString sectorNum);
    void signalDataChanged();

public slots:
    /// Shows the page of view \a obj_vw_id under \a title.
    void refreshPage(qlonglong obj_vw_id, QString title);
    /// Has every child view show what belongs to the row \a values; \a isClicked tells a click from new rows.
    void slotMainTableItemRowClicked(RowData values, bool isClicked = true);
    /// Gives the rows of the main table to the chart \a chartId, the main view or one of the tabs.
    void updateChartUseMainTableData(qlonglong chartId);
    /// Folds the child views down to their tabs, or opens them again.
    void slotHideTab(bool checked);
    /// Makes the tab of the announced child view \a id from its configuration; the last one of a page starts
    /// the main table.
    void createSubWidgets(qlonglong id, QJsonValue data);

private:
    void createLayout();
    void createConnections();
    void removeTabs();
    void takeConfig(bool isOk, const QByteArray &data);
    void requestChildConfig(qlonglong id, qlonglong parentId);
    void takeChildConfig(qlonglong id, bool isOk, const QByteArray &data);
    void addTab(TFBaseView *view);
    bool areChildrenReady() const;
    bool takesMainRows(TFBaseView *view, bool isClicked);
    void requestChildRows(int index, TFBaseView *view, const RowData &row);
    void takeChildRows(int index, TFBaseView *asked, int flag, bool isOk, const QByteArray &data);
    void updateChildren();
    void clearChildren();
    void applySplitterRule();

    TFMainView *m_mainView;
    QTabWidget *m_tabs;
    QPushButton *m_corner;
    bool m_childViewsVisible = true;
    qint64 m_currentView = -1;
    QMap<qint64, bool> m_childState; ///< false while the configuration is on its way, true with a tab
    int m_tabHeight = -1;            ///< to which the corner button restores
    TFSubject::TFJsonParser *m_parser;
    NtResponseTables m_tables;
    std::unique_ptr<TFDm> m_dm;
};
