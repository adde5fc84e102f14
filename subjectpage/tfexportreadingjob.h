#pragma once

#include "jsonparser/tfexportedrows.h"

#include <atomic>
#include <memory>

class TFTreeStruct;

/// The reply to an export on its way to rows, read on a thread of the global pool.
///
/// All functions are for the thread that started the job; it watches the job by asking.
class TFExportReadingJob
{
public:
    /// Starts to read \a reply into rows of the leaves of \a header, of which it takes a copy. The job goes
    /// on when the caller lets go of it.
    static std::shared_ptr<TFExportReadingJob> start(const QByteArray &reply, const TFTreeStruct &header);
    ~TFExportReadingJob();

    bool isRunning() const { return !m_hasEnded.load(std::memory_order_acquire); }
    /// Ends the job soon.
    void giveUp() { m_isGivenUp = true; }

    // When the job has ended.

    /// False for a reply that is none.
    bool isGood() const { return m_isGood; }
    const TFExportedRows::Rows &rows() const { return m_rows; }
    const TFTreeStruct &header() const { return *m_header; }

private:
    TFExportReadingJob(const QByteArray &reply, const TFTreeStruct &header);
    void run();

    QByteArray m_reply;
    const std::unique_ptr<TFTreeStruct> m_header;
    TFExportedRows::Rows m_rows;
    bool m_isGood = false;
    std::atomic_bool m_isGivenUp{false};
    std::atomic_bool m_hasEnded{false};
};
