#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSslConfiguration>
#include <QString>
#include <QUrl>

#include <functional>

class QTcpServer;
class QTcpSocket;

/// A real HTTP server on a free loopback port, for tests. It answers by a rule of the test, fails and delays
/// where the rule says so, and keeps what it received. It lives in the event loop of the test's thread.
class TestService : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        QByteArray method;
        QString path;
        QHash<QByteArray, QByteArray> headers; ///< names in lower case
        QByteArray text;
        QJsonObject body; ///< of the text, empty where that is no object
    };

    struct Answer
    {
        QByteArray text;
        int status = 200;
        int delay = 0;                  ///< milliseconds before it goes out
        bool isClosed = false;          ///< the connection closes instead
        bool isHeld = false;            ///< goes out when release() says so
        QList<QByteArray> headers = {}; ///< further header lines, such as "Location: /x"
        int missing = 0;                ///< bytes that are announced and never come
    };

    using Rule = std::function<Answer(const Request &)>;

    /// Listens at once. Requests that still wait when the service goes end with an error, and are waited for.
    /// Answers every request with an envelope around null until a rule is set.
    /// With a certificate and its key in \a tls it speaks TLS.
    explicit TestService(QObject *parent = nullptr, const QSslConfiguration &tls = QSslConfiguration());
    ~TestService() override;

    QUrl url() const;
    void setRule(Rule rule) { m_rule = std::move(rule); }
    const QList<Request> &requests() const { return m_requests; }
    void forgetRequests() { m_requests.clear(); }

    int heldCount() const { return m_held.size(); }
    /// Sends the held answer number \a index, counted in the order of arrival.
    void release(int index = 0);

    /// A good reply around \a data.
    static QByteArray envelope(const QJsonValue &data);

signals:
    void requestReceived();

private:
    struct Held
    {
        QPointer<QTcpSocket> socket;
        Answer answer;
    };

    void accept();
    void read(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const Answer &answer);

    QTcpServer *m_server;
    QString m_scheme;
    QHash<QTcpSocket *, QByteArray> m_pending;
    Rule m_rule;
    QList<Held> m_held;
    QList<Request> m_requests;
};
