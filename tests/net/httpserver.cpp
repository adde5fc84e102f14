#include "httpserver.h"

#include <QSslSocket>

namespace {
constexpr int Patience = 10000;

int bodyLength(const QByteArray &head)
{
    const int at = head.toLower().indexOf("content-length:");
    return at < 0 ? 0 : head.mid(at + 15, head.indexOf('\r', at) - at - 15).trimmed().toInt();
}

QByteArray readRequest(QTcpSocket &socket)
{
    QByteArray request;
    int end = -1;
    while (end < 0 || request.size() < end + 4 + bodyLength(request.left(end))) {
        if (!socket.bytesAvailable() && !socket.waitForReadyRead(Patience))
            break;
        request += socket.readAll();
        end = request.indexOf("\r\n\r\n");
    }
    return request;
}
} // namespace

class HttpServer::Listener : public QTcpServer
{
public:
    explicit Listener(HttpServer *server)
        : m_server(server)
    {}

protected:
    void incomingConnection(qintptr socket) override { m_server->serve(socket); }

private:
    HttpServer *m_server;
};

HttpServer::HttpServer(const QSslConfiguration &tls)
    : m_tls(tls)
{
    m_listener = new Listener(this);
    m_listener->listen(QHostAddress::LocalHost);
    m_port = m_listener->serverPort();
    m_listener->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_listener, &QObject::deleteLater);
    m_thread.start();
}

HttpServer::~HttpServer()
{
    release();
    m_thread.quit();
    m_thread.wait();
}

QUrl HttpServer::url(const QString &path) const
{
    return QUrl(QString("%1://127.0.0.1:%2%3").arg(m_tls.isNull() ? "http" : "https").arg(m_port).arg(path));
}

void HttpServer::setReplies(const QList<QByteArray> &replies)
{
    const QMutexLocker lock(&m_mutex);
    m_replies = replies;
}

QList<QByteArray> HttpServer::requests() const
{
    const QMutexLocker lock(&m_mutex);
    return m_requests;
}

QByteArray HttpServer::nextReply()
{
    const QMutexLocker lock(&m_mutex);
    return m_replies.size() > 1 ? m_replies.takeFirst() : m_replies.value(0);
}

void HttpServer::serve(qintptr descriptor)
{
    QSslSocket socket;
    socket.setSocketDescriptor(descriptor);
    if (!m_tls.isNull()) {
        socket.setSslConfiguration(m_tls);
        socket.startServerEncryption();
        if (!socket.waitForEncrypted(Patience))
            return;
    }
    const QByteArray request = readRequest(socket);
    if (request.isEmpty())
        return; // a connection that the client opened in advance and dropped
    {
        const QMutexLocker lock(&m_mutex);
        m_requests.append(request);
    }
    m_gate.acquire();
    socket.write(nextReply());
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(Patience)) {
    }
    socket.disconnectFromHost();
    if (socket.state() != QAbstractSocket::UnconnectedState)
        socket.waitForDisconnected(Patience);
}

QByteArray httpReply(const QByteArray &status, const QByteArray &body, const QByteArray &headers)
{
    return "HTTP/1.1 " + status + "\r\n" + headers + "Content-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}
