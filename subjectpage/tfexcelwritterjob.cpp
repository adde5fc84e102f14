#include "tfexcelwritterjob.h"

#include "mulittable/tfheaderdatastruct.h"
#include "workbook/tfsheettable.h"
#include "workbook/tfstreamsheet.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSaveFile>
#include <QThreadPool>

namespace {
/// The one thread on which workbooks are written. It ends with the application, which waits for it.
QThreadPool *workbookThread()
{
    static QPointer<QThreadPool> pool;
    if (!pool) {
        pool = new QThreadPool(QCoreApplication::instance());
        pool->setMaxThreadCount(1);
    }
    return pool;
}
} // namespace

TFExcelWritterJob::TFExcelWritterJob(const QString &path, const TFTreeStruct &header,
                                     const QList<QList<QVariant>> &rows)
    : m_path(path)
    , m_header(header.clone())
    , m_rows(rows)
    , m_rowCount(rows.size())
{}

TFExcelWritterJob::~TFExcelWritterJob() = default;

std::shared_ptr<TFExcelWritterJob> TFExcelWritterJob::start(const QString &path, const TFTreeStruct &header,
                                                            const QList<QList<QVariant>> &rows)
{
    const std::shared_ptr<TFExcelWritterJob> job(new TFExcelWritterJob(path, header, rows));
    workbookThread()->start([job] { job->m_state.store(job->run(), std::memory_order_release); });
    return job;
}

TFExcelWritterJob::State TFExcelWritterJob::run()
{
    if (m_isGivenUp)
        return GivenUp;
    QSaveFile file(m_path);
    State state = file.open(QIODevice::WriteOnly) ? write(file) : DataFailed;
    m_rows.clear();
    if (state == Saved && !file.commit())
        state = DataFailed;
    m_errorText = file.errorString();
    return state;
}

/// Saved when all of the workbook went to its file, which still has to take its place.
TFExcelWritterJob::State TFExcelWritterJob::write(QSaveFile &file)
{
    TFStreamSheet sheet(file);
    TFSheetTable::writeHeader(sheet, m_header.get());
    if (!sheet.isGood())
        return HeaderFailed;
    const auto keepGoing = [this](int rows) {
        m_writtenRows.store(rows, std::memory_order_relaxed);
        return !m_isGivenUp;
    };
    const bool isWritten = TFSheetTable::writeRows(sheet, m_header.get(), m_rows, keepGoing);
    if (isWritten)
        m_state.store(Saving, std::memory_order_release);
    const bool isWhole = isWritten && sheet.finish();
    if (m_isGivenUp)
        return GivenUp;
    return isWhole ? Saved : DataFailed;
}
