#pragma once

#include "net/tfuc.h"
#include "tfbaseview.h"

#include <memory>

class QLabel;
class QVBoxLayout;
class TFDm;
class TFFilterWidget;
class TFLoadingLine;
class TFPaginationBar;
class TFSubjectTableExport;
class TFSubjectTableModel;
class TFSujectTableView;
class TFTableGridHolder;
class TFTreeStruct;
struct TFRowsReply;

namespace TFSubject {
class TFJsonParser;
}

/// A table: filter bar, grid, and a line with the elapsed time and the page bar.
///
/// Turns a filter, a page number or an export command into requests, and replies into rows on the screen. As
/// a main view it asks for its rows as soon as its configuration is there, unless the view waits for its
/// child views; as a child view it shows what its container hands it.
class TFSubjectTableWidget : public TFBaseView
{
    Q_OBJECT

public:
    TFSubjectTableWidget(QWidget *parent, bool isMain);
    ~TFSubjectTableWidget() override;

    /// Lays the parts out; to be called once.
    void initLayout();

    bool isMain() const { return m_isMain; }
    void setFilterBarVisible(bool visible);
    void setPageBarVisible(bool visible);
    bool isFilterBarVisible() const { return m_filterBarVisible; }
    bool isPageBarVisible() const { return m_pageBarVisible; }

    /// Requests the rows with the current filters and \a pair as a further top-level key. An empty pair means
    /// the block filter of the page, where there is one.
    void load(const FilterParam::DataSourceFilter &pair);

    /// Text that links a row of this view with the child view \a childId, from the configuration.
    QString childLinkText(qint64 childId) const;
    /// Row count of the data set.
    int total() const { return m_total; }
    /// Null until rows have arrived.
    TFSubjectTableModel *model() const;
    TFSujectTableView *grid() const { return m_grid; }
    TFFilterWidget *filterBar() const { return m_filterBar; }
    TFPaginationBar *paginationBar() const { return m_pageBar; }
    TFTreeStruct *header() const { return m_header.get(); }
    TFSubject::TFJsonParser *parser() const { return m_parser; }
    TFSubjectTableExport *tableExport() const { return m_export; }
    /// Text of the line below the rows: loading, elapsed time, no data.
    QString status() const;
    bool isLoading() const;
    /// Whether rows have been requested for the present page.
    bool isRequested() const { return m_isRequested; }
    bool isFilterBarShown() const;
    bool isPageBarShown() const;

    /// Writes a workbook into \a folder as the export command does, without a question; see
    /// TFSubjectTableExport::exportTo().
    void exportTo(const QString &folder);

    void clear() override;
    bool parseConfig(const QJsonValue &json, bool isNew) override;
    bool handleReply(const QJsonValue &json, const QString &spare, int flag) override;
    bool takeReply(const QByteArray &data, int flag) override;
    bool isFilterLive(const QString &name) override;
    void setFilterArguments(const QMap<QString, QVariant> &arguments) override;
    void reset(qint64 viewId) override;
    void startLoading() override;
    void noData() override;
    void finished() override;
    FilterParam::DataSourceFilter order() const override;
    QList<FilterParam::Cntrl> cntrls() const override;
    QList<TFTableModelData::FilterData> filterList() const override;
    int viewKind() const override;
    QString caption() const override;
    QTime startTime() const override;
    void setChildFilters(const QList<FilterParam::Cntrl> &controls, const RowData &row,
                         const QString &linkText) override;
    bool isCross() const override;

signals:
    void signalGetSubViewCfg(qlonglong objectViewID, QString caption, qlonglong pObjViewID);
    void sigSectorNumChanged(QString block, QString rootItem);
    void sigSectorNumChanged(QString block);
    void sigRowData(RowData values, bool isClicked);
    void updateChildren();
    void clearChildren();
    void signalCurrentPageChanged(int currentPage);

public slots:
    /// Shows \a link under the title \a errorMsg; returns when the user has closed the box.
    void showMessage(QString errorMsg, QString link);

private:
    void createConnections();
    void announceSector();
    void updateFilters(const FilterParam::DataSourceFilter &pair);
    void requestRows();
    void requestPage(int page, int size, bool noPaging);
    void requestWholeSet();
    void query();
    void takePage(bool isOk, const QByteArray &data);
    void takeWholeSet(bool isOk, const QByteArray &data);
    void exportRows(int type);
    TFUc::TFRequestContent exportRequest() const;
    bool isStillWanted();
    bool isOrder() const;
    bool showReply(const TFRowsReply &reply, int flag);
    bool readConfig(const TFRowsReply &reply, bool isNew);
    bool parseData(const TFRowsReply &reply);
    void connectGrid();
    void openLink(const QString &link);
    void setDataCount(int total, int pageIndex, int pageSize);
    /// Tab goes from the filter bar over the rows to the page bar.
    void orderKeyboard();
    void showTime();
    void showState(const QString &text, Qt::CursorShape cursor);

    bool m_isMain;
    bool m_filterBarVisible;
    bool m_pageBarVisible = true;
    bool m_isRequested = false;
    int m_total = 0;
    QVBoxLayout *m_layout;
    TFSujectTableView *m_grid = nullptr; ///< null until rows have arrived
    TFFilterWidget *m_filterBar;
    QFrame *m_pageLine;
    QLabel *m_timeLabel;
    TFPaginationBar *m_pageBar;
    QTime m_startTime;
    std::unique_ptr<TFTreeStruct> m_header;
    TFSubject::TFJsonParser *m_parser;
    TFTableGridHolder *m_gridHolder;
    std::unique_ptr<TFDm> m_dm;
    TFUc::TFRequestContent m_appliedContent; ///< the request whose rows are on the screen
    TFUc::TFRequestContent m_sentContent;    ///< the last one that went out
    TFLoadingLine *m_loadingLine;
    TFSubjectTableExport *m_export;
};
