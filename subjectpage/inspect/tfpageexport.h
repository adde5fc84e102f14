#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class TFBaseView;
class TFDataSource;
class TFMultiCharts;
class TFSubjectTableExport;

/// Writes a page's main view into a workbook: a table by its own export; of a chart the labels of its X axis
/// and, a column each, the values of its series.
class TFPageExport : public QObject
{
    Q_OBJECT

public:
    explicit TFPageExport(QObject *parent);
    ~TFPageExport() override;

    /// Begins to write into \a folder. Returns false, with the reason, where there is nothing to write.
    bool start(TFBaseView *view, const QString &folder, QString *reason);
    bool isBusy() const;
    /// Why the last export came to nothing, empty if it did not; empties it.
    QString takeFault();

private:
    bool startChart(TFMultiCharts *chart, const QString &folder, QString *reason);
    void takeFailure(const QString &reason) { m_fault = reason; }
    void watch(TFSubjectTableExport *source);

    QPointer<TFSubjectTableExport> m_export;
    QString m_fault;
};
