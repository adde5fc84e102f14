#pragma once

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QSemaphore>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QThread>
#include <QUrl>

/// A small HTTP server on a loopback port and a thread of its own, one connection at a time.
class HttpServer : public QObject
{
    Q_OBJECT

public:
    /// With a configuration of certificate and key it speaks TLS.
    explicit HttpServer(const QSslConfiguration &tls = QSslConfiguration());
    ~HttpServer() override;

    QUrl url(const QString &path = "/") const;

    /// What to answer next, byte for byte; the last one is repeated. Nothing at all closes the connection.
    void setReplies(const QList<QByteArray> &replies);
    /// Keeps replies back until release().
    void hold() { m_gate.acquire(m_gate.available()); }
    void release() { m_gate.release(1000); }

    /// The requests that came in, whole.
    QList<QByteArray> requests() const;

private:
    class Listener;
    void serve(qintptr socket);
    QByteArray nextReply();

    const QSslConfiguration m_tls;
    QThread m_thread;
    Listener *m_listener = nullptr;
    quint16 m_port = 0;
    mutable QMutex m_mutex;
    QList<QByteArray> m_replies;
    QList<QByteArray> m_requests;
    QSemaphore m_gate{1000};
};

/// A whole reply with a body.
QByteArray httpReply(const QByteArray &status, const QByteArray &body,
                     const QByteArray &headers = QByteArray());
