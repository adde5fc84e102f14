#pragma once

#include "tfuc.h"

#include <QByteArray>
#include <QObject>
#include <QRunnable>
#include <QTime>

#include <atomic>
#include <memory>
#include <utility>

/// Carries the result of one request from a pool thread to the thread on which it was made.
class TFSigConnec : public QObject
{
    Q_OBJECT

public:
    void emitResult(bool isOk, const QByteArray &data);

signals:
    void signalResult(bool isOk, QByteArray data);
};

/// One request on a pool thread: everything but the functor that takes the result.
class TFWorkRunnable : public QRunnable
{
public:
    ~TFWorkRunnable() override;
    Q_DISABLE_COPY(TFWorkRunnable)

    /// Posts the request, blocking, and emits the result through the carrier. A request whose turn comes only
    /// when the application has begun to quit fails at once.
    void run() override;

protected:
    explicit TFWorkRunnable(const TFUc::TFRequestContent &content);
    TFSigConnec *carrier() const { return m_carrier; }

private:
    QUrl m_url;
    QByteArray m_body;
    QString m_spare;
    QList<QPair<QByteArray, QByteArray>> m_headers;
    QTime m_startTime;
    std::shared_ptr<std::atomic_bool> m_quitting;
    TFSigConnec *m_carrier; ///< lives on the thread of the constructor; deleted there after the result
};

/// One request whose result goes to \a F, called as (bool isOk, const QByteArray &data).
///
/// Made on the user-interface thread and given to the global thread pool, which deletes it after its run. The
/// functor runs on the receiver's thread, and not at all when the receiver is gone by then; the request
/// itself is never cancelled. Without a receiver the functor runs on the thread that made the request.
template <typename F> class TFWorkThread : public TFWorkRunnable
{
public:
    TFWorkThread(const TFUc::TFRequestContent &content, F functor, QObject *receiver)
        : TFWorkRunnable(content)
    {
        if (receiver) {
            QObject::connect(carrier(), &TFSigConnec::signalResult, receiver, std::move(functor),
                             Qt::QueuedConnection);
        } else {
            QObject::connect(carrier(), &TFSigConnec::signalResult, carrier(), std::move(functor),
                             Qt::AutoConnection);
        }
    }
};
