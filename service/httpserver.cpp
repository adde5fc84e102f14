#include "httpserver.h"

#include "categories.h"
#include "requesthandler.h"
#include "workerpool.h"

#include <QElapsedTimer>

#include <httplib.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace service {

namespace {

const std::size_t MaxBodyBytes = 1024 * 1024;
const int KeepAliveSeconds = 2;
const char TokenHeader[] = "kvt-token";
const char UserHeader[] = "userId";

// The charset is named on purpose: with the bare type the server library compresses every reply by itself,
// which costs more than the query on a fast line.
const char ContentType[] = "application/json;charset=utf-8";

/// The server library would share the port with any other program that asks for it.
void takePortForOneself(socket_t socket)
{
    const int on = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
}

/// Adapts the pool to what the server library asks for.
class TaskQueue : public httplib::TaskQueue
{
public:
    TaskQueue(int threads, const QString &databaseFile)
        : m_pool(threads, databaseFile)
    {}
    void enqueue(std::function<void()> job) override { m_pool.enqueue(std::move(job)); }
    void shutdown() override { m_pool.shutdown(); }

private:
    WorkerPool m_pool;
};

void send(const Reply &reply, httplib::Response &response)
{
    response.status = reply.status;
    response.set_content(reply.body.constData(), static_cast<std::size_t>(reply.body.size()), ContentType);
}

QString statusText(int status)
{
    switch (status) {
    case 404:
        return QStringLiteral("no such path; POST to /bas/subject/data or /bas/ds/data");
    case 413:
        return QStringLiteral("body: more than %1 bytes").arg(MaxBodyBytes);
    default:
        return QStringLiteral("the request is not understood");
    }
}

void logAccess(const httplib::Request &request, const Reply &reply, qint64 microseconds)
{
    qCInfo(lcAccess).noquote().nospace()
        << QString::fromStdString(request.get_header_value(UserHeader)) << ' '
        << QString::fromStdString(request.path) << ' ' << reply.status << ' ' << reply.rows << " rows "
        << reply.body.size() << " bytes " << microseconds / 1000.0 << " ms";
}

} // namespace

class HttpServer::Private
{
public:
    Private(const ServerSettings &settings, const ViewLibrary &library)
        : settings(settings)
        , handler(library)
    {}

    using Operation = Reply (RequestHandler::*)(const QByteArray &, Database &) const;

    void route(const char *path, Operation operation)
    {
        server.Post(path, [this, operation](const httplib::Request &request, httplib::Response &response) {
            QElapsedTimer timer;
            timer.start();
            const Reply reply = answer(request, operation);
            send(reply, response);
            logAccess(request, reply, timer.nsecsElapsed() / 1000);
        });
    }

    Reply answer(const httplib::Request &request, Operation operation) const
    {
        if (settings.tokens.isActive() &&
            !settings.tokens.accepts(QByteArray::fromStdString(request.get_header_value(TokenHeader))))
            return RequestHandler::refusal({401, QStringLiteral("kvt-token: missing or not known")});
        Database *database = WorkerPool::currentDatabase();
        if (!database)
            return RequestHandler::refusal(Database::fault());
        const QByteArray body =
            QByteArray::fromRawData(request.body.data(), static_cast<int>(request.body.size()));
        qCDebug(lcAccess).noquote() << QString::fromStdString(request.path) << body;
        return (handler.*operation)(body, *database);
    }

    ServerSettings settings;
    RequestHandler handler;
    httplib::Server server;
    std::atomic<bool> ended{false};
};

HttpServer::HttpServer(const ServerSettings &settings, const ViewLibrary &library)
    : d(std::make_unique<Private>(settings, library))
{
    httplib::Server &server = d->server;
    server.new_task_queue = [settings] { return new TaskQueue(settings.threads, settings.databaseFile); };
    server.set_payload_max_length(MaxBodyBytes);
    // Head and body go out in two writes; without this the second waits for the client's acknowledgement.
    server.set_tcp_nodelay(true);
    server.set_keep_alive_max_count(1000);
    // A client that keeps its connection holds a thread until it speaks again.
    server.set_keep_alive_timeout(KeepAliveSeconds);
    server.set_socket_options(takePortForOneself);
    d->route("/bas/subject/data", &RequestHandler::subjectData);
    d->route("/bas/ds/data", &RequestHandler::namedData);
    server.set_error_handler([](const httplib::Request &, httplib::Response &response) {
        if (response.body.empty())
            send(RequestHandler::refusal({response.status, statusText(response.status)}), response);
    });
}

HttpServer::~HttpServer() = default;

int HttpServer::bind()
{
    const std::string host = d->settings.host.toStdString();
    if (d->settings.port == 0)
        return std::max(0, d->server.bind_to_any_port(host));
    return d->server.bind_to_port(host, d->settings.port) ? d->settings.port : 0;
}

void HttpServer::serve()
{
    d->server.listen_after_bind();
    d->ended = true;
}

void HttpServer::stop()
{
    // The server library forgets a stop that comes before it has begun to listen.
    while (!d->server.is_running() && !d->ended)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    d->server.stop();
}

} // namespace service
