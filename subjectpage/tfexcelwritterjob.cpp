#include "tfexcelwritterjob.h"

#include "mulittable/tfheaderdatastruct.h"
#include "tfexcelwritter.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSaveFile>
#include <QThreadPool>

#include <xlsxdocument.h>

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

/// Lets the workbook library write a file that is not the library's to close, as long as it is wanted.
class SaveDevice : public QIODevice
{
public:
    SaveDevice(QSaveFile &file, const std::atomic_bool &isGivenUp)
        : m_file(file)
        , m_isGivenUp(isGivenUp)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    bool seek(qint64 pos) override { return QIODevice::seek(pos) && m_file.seek(pos); }
    qint64 size() const override { return m_file.size(); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 length) override
    {
        return m_isGivenUp ? -1 : m_file.write(data, length);
    }

private:
    QSaveFile &m_file;
    const std::atomic_bool &m_isGivenUp;
};
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
    const State state = file.open(QIODevice::WriteOnly) ? write(file) : DataFailed;
    m_rows.clear();
    if (state == DataFailed)
        m_errorText = file.errorString();
    return state;
}

TFExcelWritterJob::State TFExcelWritterJob::write(QSaveFile &file)
{
    QXlsx::Document document;
    if (!TFExcelWritter::writeHeader(document, m_header.get()))
        return HeaderFailed;
    const auto keepGoing = [this](int rows) {
        m_writtenRows.store(rows, std::memory_order_relaxed);
        return !m_isGivenUp;
    };
    if (!TFExcelWritter::writeData(document, m_header.get(), m_rows, keepGoing))
        return m_isGivenUp ? GivenUp : DataFailed;
    return save(document, file);
}

TFExcelWritterJob::State TFExcelWritterJob::save(QXlsx::Document &document, QSaveFile &file)
{
    m_state.store(Saving, std::memory_order_release);
    SaveDevice device(file, m_isGivenUp);
    const bool isWritten = document.saveAs(&device);
    if (m_isGivenUp)
        return GivenUp;
    return isWritten && file.commit() ? Saved : DataFailed;
}
