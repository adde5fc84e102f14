#include "tfexportreadingjob.h"

#include "mulittable/tfheaderdatastruct.h"

#include <QThreadPool>

TFExportReadingJob::TFExportReadingJob(const QByteArray &reply, const TFTreeStruct &header)
    : m_reply(reply)
    , m_header(header.clone())
{}

TFExportReadingJob::~TFExportReadingJob() = default;

std::shared_ptr<TFExportReadingJob> TFExportReadingJob::start(const QByteArray &reply,
                                                              const TFTreeStruct &header)
{
    const std::shared_ptr<TFExportReadingJob> job(new TFExportReadingJob(reply, header));
    QThreadPool::globalInstance()->start([job] { job->run(); });
    return job;
}

void TFExportReadingJob::run()
{
    m_isGood = TFExportedRows::read(m_reply, &m_rows, m_header.get(), m_isGivenUp);
    m_reply.clear();
    m_hasEnded.store(true, std::memory_order_release);
}
