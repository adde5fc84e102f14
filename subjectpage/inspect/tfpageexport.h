#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class TFBaseView;
class TFMultiCharts;
class TFSubjectTableExport;
class TFTreeStruct;

/// Writes the rows of a page's main view into a workbook, by the export of the table. The rows of a chart are
/// written under the columns that its document describes.
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
    std::unique_ptr<TFTreeStruct> m_chartHeader;
    QString m_fault;
};
