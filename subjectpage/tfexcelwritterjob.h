#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <atomic>
#include <memory>

class QSaveFile;
class TFTreeStruct;

/// One workbook on its way into a file, written on a thread of its own.
///
/// Rows go to the file as they are written; nothing of the workbook is kept in memory. The file is made
/// beside its target and takes the target's place when it is whole; until then, and when the job fails or is
/// given up, the target stays as it is. Jobs of a process run one after the other. All functions are for the
/// thread that started the job; it watches the job by asking.
class TFExcelWritterJob
{
public:
    enum State { Writing, Saving, Saved, HeaderFailed, DataFailed, GivenUp };

    /// Starts to write \a header and \a rows to \a path. Takes a copy of the header. The job goes on when the
    /// caller lets go of it.
    static std::shared_ptr<TFExcelWritterJob> start(const QString &path, const TFTreeStruct &header,
                                                    const QList<QList<QVariant>> &rows);
    ~TFExcelWritterJob();

    State state() const { return m_state.load(std::memory_order_acquire); }
    bool isRunning() const { return state() == Writing || state() == Saving; }
    int rowCount() const { return m_rowCount; }
    int writtenRows() const { return m_writtenRows.load(std::memory_order_relaxed); }
    const QString &path() const { return m_path; }
    /// Why header or data failed; to be asked when the job has ended.
    const QString &errorText() const { return m_errorText; }

    /// Ends the job soon and without a file. Without effect on a job that has ended.
    void giveUp() { m_isGivenUp = true; }

private:
    TFExcelWritterJob(const QString &path, const TFTreeStruct &header, const QList<QList<QVariant>> &rows);
    State run();
    State write(QSaveFile &file);

    const QString m_path;
    const std::unique_ptr<TFTreeStruct> m_header;
    QList<QList<QVariant>> m_rows;
    const int m_rowCount;
    QString m_errorText;
    std::atomic_int m_writtenRows{0};
    std::atomic_bool m_isGivenUp{false};
    std::atomic<State> m_state{Writing};
};
