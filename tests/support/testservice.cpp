#include "testservice.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QSslSocket>
#include <QTcpServer>
#include <QThreadPool>
#include <QTimer>

namespace {
/// Its connections are encrypted where it has a certificate.
class Listener : public QTcpServer
{
public:
    Listener(const QSslConfiguration &tls, QObject *parent)
        : QTcpServer(parent)
        , m_tls(tls)
    {}

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto *socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        if (!m_tls.isNull()) {
            socket->setSslConfiguration(m_tls);
            socket->startServerEncryption();
        }
        addPendingConnection(socket);
    }

private:
    const QSslConfiguration m_tls;
};
} // namespace

TestService::TestService(QObject *parent, const QSslConfiguration &tls)
    : QObject(parent)
    , m_server(new Listener(tls, this))
    , m_scheme(tls.isNull() ? "http" : "https")
    , m_rule([](const Request &) { return Answer{envelope(QJsonValue())}; })
{
    connect(m_server, &QTcpServer::newConnection, this, &TestService::accept);
    if (!m_server->listen(QHostAddress::LocalHost))
        qFatal("the test service can't listen: %s", qPrintable(m_server->errorString()));
}

TestService::~TestService()
{
    m_server->close();
    const QList<QTcpSocket *> sockets = m_server->findChildren<QTcpSocket *>();
    for (QTcpSocket *socket : sockets) {
        socket->disconnect(this);
        socket->abort();
    }
    QThreadPool::globalInstance()->waitForDone();
}

QUrl TestService::url() const
{
    return QUrl(QStringLiteral("%1://127.0.0.1:%2").arg(m_scheme).arg(m_server->serverPort()));
}

QByteArray TestService::envelope(const QJsonValue &data)
{
    const QJsonObject reply{{"state", 1}, {"msg", "ok"}, {"extend", QJsonValue()}, {"data", data}};
    return QJsonDocument(reply).toJson(QJsonDocument::Compact);
}

void TestService::accept()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_pending.remove(socket);
            socket->deleteLater();
        });
    }
}

void TestService::read(QTcpSocket *socket)
{
    QByteArray &bytes = m_pending[socket];
    bytes += socket->readAll();
    const int headEnd = bytes.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return;
    QList<QByteArray> lines = bytes.left(headEnd).split('\n');
    Request request;
    const QList<QByteArray> words = lines.takeFirst().split(' ');
    request.method = words.value(0);
    request.path = QString::fromUtf8(words.value(1));
    for (const QByteArray &line : qAsConst(lines)) {
        const int colon = line.indexOf(':');
        request.headers.insert(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
    }
    const int length = request.headers.value("content-length").toInt();
    if (bytes.size() < headEnd + 4 + length)
        return;
    request.text = bytes.mid(headEnd + 4, length);
    request.body = QJsonDocument::fromJson(request.text).object();
    m_pending.remove(socket);
    m_requests.append(request);
    emit requestReceived();

    const Answer reply = m_rule(request);
    if (reply.isHeld) {
        m_held.append({socket, reply});
        return;
    }
    QPointer<QTcpSocket> guard(socket);
    QTimer::singleShot(reply.delay, this, [this, guard, reply] {
        if (guard)
            answer(guard, reply);
    });
}

void TestService::release(int index)
{
    const Held held = m_held.takeAt(index);
    if (held.socket)
        answer(held.socket, held.answer);
}

void TestService::answer(QTcpSocket *socket, const Answer &answer)
{
    if (answer.isClosed) {
        socket->abort();
        return;
    }
    if (socket->state() != QAbstractSocket::ConnectedState)
        return; // the client has gone in the meantime
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " Answer\r\nConnection: close\r\n" +
                      "Content-Type: application/json\r\nContent-Length: " +
                      QByteArray::number(answer.text.size() + answer.missing) + "\r\n";
    for (const QByteArray &line : answer.headers)
        head += line + "\r\n";
    socket->write(head + "\r\n" + answer.text);
    socket->disconnectFromHost();
}
