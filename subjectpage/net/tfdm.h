#pragma once

#include "tfworkthread.h"

#include <QThreadPool>

/// A view's access to the data service: fixes address and identity, and starts requests whose results reach
/// the view only while it lives. User-interface thread only.
class TFDm
{
public:
    /// Under which the host's configuration holds the address of the data service.
    static const QString ServiceKey;

    /// Reads address, user and product anew from the host and hands them to TFUc. \a owner is the view that
    /// bounds the delivery of results.
    explicit TFDm(QObject *owner);
    Q_DISABLE_COPY(TFDm)

    QObject *owner() const { return m_owner; }

    /// Starts \a content on the global thread pool; \a functor takes (bool isOk, const QByteArray &data) on
    /// the user-interface thread, unless the owner is gone by then.
    template <typename F> void startRequest(const TFUc::TFRequestContent &content, F functor) const
    {
        startRequest(content, m_owner, std::move(functor));
    }

    /// The same with another receiver than the owner.
    template <typename F>
    static void startRequest(const TFUc::TFRequestContent &content, QObject *receiver, F functor)
    {
        auto *runnable = new TFWorkThread<F>(content, std::move(functor), receiver);
        runnable->setAutoDelete(true);
        QThreadPool::globalInstance()->start(runnable, 0);
    }

private:
    QObject *m_owner;
};
