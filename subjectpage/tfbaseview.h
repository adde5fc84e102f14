#pragma once

#include "records/filterparam.h"
#include "records/tftablemodeldata.h"

#include <QFrame>
#include <QList>
#include <QMap>
#include <QPair>
#include <QTime>
#include <QVariant>

class QJsonValue;

/// Base of the two kinds of view, table and chart: what a view is asked for, and the operations that both
/// offer to the containers above them.
class TFBaseView : public QFrame
{
    Q_OBJECT

public:
    enum ViewKind { NoView = -1, TableView = 0, ChartView = 1 };

    explicit TFBaseView(QWidget *parent = nullptr);
    ~TFBaseView() override;

    qint64 viewId() const { return m_viewId; }
    void setViewId(qint64 id) { m_viewId = id; }
    /// Name of the last kind of request, for the log.
    QString requestName() const { return m_requestName; }
    void setRequestName(const QString &name) { m_requestName = name; }
    /// Terms of the filter text of the next request.
    QList<FilterParam::CustomFilter> filters() const { return m_filters; }
    void setFilters(const QList<FilterParam::CustomFilter> &filters) { m_filters = filters; }
    /// Top-level keys of the next request.
    QList<FilterParam::DataSourceFilter> parameters() const { return m_parameters; }
    /// The same as pairs, as the request builders take them.
    QList<QPair<QString, QVariant>> requestParameters() const;
    void setParameters(const QList<FilterParam::DataSourceFilter> &parameters) { m_parameters = parameters; }

    /// Takes the rows off the screen.
    virtual void clear() = 0;
    /// Reads a configuration document. \a isNew tells a new page from another reply for the same page.
    /// Returns false where the document could not be read.
    virtual bool parseConfig(const QJsonValue &config, bool isNew) = 0;
    /// Reads the payload of a reply to a request with \a flag (0 configuration, 1 rows, 2 both). \a spare
    /// is empty.
    virtual bool handleReply(const QJsonValue &json, const QString &spare, int flag) = 0;
    /// Whether the filter bar sends the field \a name as a top-level key.
    virtual bool isFilterLive(const QString &name) = 0;
    virtual void setFilterArguments(const QMap<QString, QVariant> &arguments) = 0;
    /// Prepares the view for the page \a viewId.
    virtual void reset(qint64 viewId);
    virtual void startLoading();
    virtual void noData();
    virtual void finished();
    /// The pair "order" of the view's configuration; an empty pair without one.
    virtual FilterParam::DataSourceFilter order() const;
    /// What the controls of the filter bar report.
    virtual QList<FilterParam::Cntrl> cntrls() const = 0;
    /// The filter controls that the configuration describes.
    virtual QList<TFTableModelData::FilterData> filterList() const = 0;
    virtual int viewKind() const;
    virtual QString caption() const = 0;
    /// When loading began.
    virtual QTime startTime() const;
    /// Makes filters and parameters of this view from a row of the main view.
    ///
    /// \a controls are those of the main view's filter bar, \a linkText says which field of \a row feeds
    /// which field of this view ("A.FIELD1=B.FIELD2;..."). A field without a link takes its configured
    /// default.
    virtual void setChildFilters(const QList<FilterParam::Cntrl> &controls, const RowData &row,
                                 const QString &linkText);
    virtual bool isCross() const = 0;
    /// Reads a whole reply and its payload as handleReply() does. Returns false, with nothing done, for a bad
    /// envelope.
    virtual bool takeReply(const QByteArray &reply, int flag);

private:
    qint64 m_viewId = -1;
    QString m_requestName;
    QList<FilterParam::CustomFilter> m_filters;
    QList<FilterParam::DataSourceFilter> m_parameters;
};
