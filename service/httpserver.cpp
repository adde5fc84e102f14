#include "httpserver.h"

#include "categories.h"
#include "compression.h"
#include "connectionserver.h"
#include "exchange.h"
#include "requesthandler.h"
#include "tokenstore.h"
#include "workerpool.h"

namespace service {

namespace {

const int MaxHeadBytes = 64 * 1024;
const std::chrono::seconds HealthPatience{5}; // those who ask for it don't wait long
const char TokenHeader[] = "kvt-token";
const char UserHeader[] = "userId";
const char ProductHeader[] = "prodId";

// The charset is named on purpose: with the bare type the server library compresses every reply by itself,
// however small it is.
const char JsonType[] = "application/json;charset=utf-8";
const char PlainType[] = "text/plain;charset=utf-8";
const char MetricsType[] = "text/plain;version=0.0.4;charset=utf-8";

QString header(const httplib::Request &request, const char *name)
{
    return QString::fromStdString(request.get_header_value(name));
}

/// The copy is on purpose: what a content provider lends is cut off when the server library stops.
void setBody(httplib::Response &response, const QByteArray &body, const char *type)
{
    response.set_content(body.constData(), static_cast<std::size_t>(body.size()), type);
}

ConnectionSettings connectionSettings(const ServerSettings &settings)
{
    ConnectionSettings result;
    result.connections = settings.connections;
    result.keepAliveSeconds = settings.keepAliveSeconds;
    result.requestBytes = settings.limits.bodyBytes + MaxHeadBytes;
    return result;
}

} // namespace

class HttpServer::Private
{
public:
    using Operation = Reply (RequestHandler::*)(const QByteArray &, const Identity &, Database &) const;

    explicit Private(const ServerSettings &settings)
        : settings(settings)
        , pool(settings.threads, settings.databaseAddress, std::chrono::seconds(settings.limits.seconds))
        , server(connectionSettings(settings))
    {}

    void setUp();
    void route(const char *path, Endpoint endpoint, Operation operation);
    void send(const httplib::Request &request, const Reply &reply, httplib::Response &response) const;
    Reply answer(const httplib::Request &request, Operation operation);
    std::optional<Identity> identify(const httplib::Request &request) const;
    QString statusText(int status) const;
    void health(httplib::Response &response);
    Gauges gauges() const;

    ServerSettings settings;
    std::shared_ptr<const ViewLibrary> library; ///< by std::atomic_load() and atomic_store() alone
    WorkerPool pool;
    Metrics metrics;
    ConnectionServer server;
    std::atomic<bool> ended{false};
};

void HttpServer::Private::setUp()
{
    server.set_payload_max_length(static_cast<std::size_t>(settings.limits.bodyBytes));
    server.set_pre_routing_handler([](const httplib::Request &, httplib::Response &) {
        Exchange::current().begin();
        return httplib::Server::HandlerResponse::Unhandled;
    });
    route("/bas/subject/data", Endpoint::Subject, &RequestHandler::subjectData);
    route("/bas/ds/data", Endpoint::Named, &RequestHandler::namedData);
    server.Get("/healthz",
               [this](const httplib::Request &, httplib::Response &response) { health(response); });
    server.Get("/metrics", [this](const httplib::Request &, httplib::Response &response) {
        setBody(response, metrics.text(gauges()), MetricsType);
    });
    server.set_error_handler([this](const httplib::Request &request, httplib::Response &response) {
        if (response.body.empty())
            send(request, RequestHandler::refusal({response.status, statusText(response.status)}), response);
    });
    server.set_logger([this](const httplib::Request &request, const httplib::Response &response) {
        Exchange::current().finish(QString::fromStdString(request.path), response.status, metrics,
                                   settings.accessLog.get());
    });
}

void HttpServer::Private::route(const char *path, Endpoint endpoint, Operation operation)
{
    server.Post(path,
                [this, endpoint, operation](const httplib::Request &request, httplib::Response &response) {
                    Exchange &exchange = Exchange::current();
                    exchange.endpoint = endpoint;
                    const Reply reply = answer(request, operation);
                    exchange.entry.target = reply.target;
                    exchange.entry.rows = reply.rows;
                    send(request, reply, response);
                });
}

void HttpServer::Private::send(const httplib::Request &request, const Reply &reply,
                               httplib::Response &response) const
{
    response.status = reply.status;
    Exchange::current().entry.bytes = reply.body.size();
    const bool isLarge = settings.gzipFrom > 0 && reply.body.size() >= settings.gzipFrom;
    if (isLarge && acceptsGzip(QByteArray::fromStdString(request.get_header_value("Accept-Encoding")))) {
        const QByteArray packed = gzipped(reply.body);
        if (!packed.isEmpty()) {
            response.set_header("Content-Encoding", "gzip");
            response.set_header("Vary", "Accept-Encoding");
            return setBody(response, packed, JsonType);
        }
    }
    setBody(response, reply.body, JsonType);
}

/// Who asks. A token proves it; where none is asked for, the request's own word counts.
std::optional<Identity> HttpServer::Private::identify(const httplib::Request &request) const
{
    Identity named;
    named.user = header(request, UserHeader);
    if (!settings.tokens) {
        named.products.insert(header(request, ProductHeader));
        return named;
    }
    std::optional<Identity> known =
        settings.tokens->find(QByteArray::fromStdString(request.get_header_value(TokenHeader)));
    if (known && known->user.isEmpty())
        known->user = named.user;
    return known;
}

Reply HttpServer::Private::answer(const httplib::Request &request, Operation operation)
{
    const std::optional<Identity> identity = identify(request);
    if (!identity)
        return RequestHandler::refusal({401, QStringLiteral("kvt-token: missing or not known")});
    Exchange::current().entry.user = identity->user;
    const QByteArray body =
        QByteArray::fromRawData(request.body.data(), static_cast<int>(request.body.size()));
    qCDebug(lcAccess).noquote() << QString::fromStdString(request.path) << body;
    const std::shared_ptr<const ViewLibrary> present = std::atomic_load(&library);
    const RequestHandler handler(*present, settings.limits);
    Reply reply;
    const auto job = [&](Database *database) {
        reply = database ? (handler.*operation)(body, *identity, *database)
                         : RequestHandler::refusal(Database::fault());
    };
    if (!pool.run(job, std::chrono::seconds(settings.limits.seconds)))
        return RequestHandler::refusal(
            {503, QStringLiteral("the service is busy: no worker was free for %1 s")
                      .arg(settings.limits.seconds)});
    return reply;
}

QString HttpServer::Private::statusText(int status) const
{
    switch (status) {
    case 404:
        return QStringLiteral("no such path; POST to /bas/subject/data or /bas/ds/data");
    case 413:
        return QStringLiteral("body: more than %1 bytes").arg(settings.limits.bodyBytes);
    case 500:
        return QStringLiteral("the service failed");
    default:
        return QStringLiteral("the request is not understood");
    }
}

void HttpServer::Private::health(httplib::Response &response)
{
    bool isGood = false;
    const auto job = [&isGood](Database *database) {
        isGood = database && database->select({QStringLiteral("SELECT 1"), {}}).ok();
    };
    const bool isFree = pool.run(job, HealthPatience);
    response.status = isGood ? 200 : 503;
    setBody(response,
            isGood   ? "ok\n"
            : isFree ? "the database does not answer\n"
                     : "no worker is free\n",
            PlainType);
}

Gauges HttpServer::Private::gauges() const
{
    Gauges result;
    result.connections = server.openConnections();
    result.workers = pool.size();
    result.workersBusy = pool.busy();
    result.requestsWaiting = pool.waiting();
    result.reconnects = pool.reconnects();
    return result;
}

HttpServer::HttpServer(const ServerSettings &settings)
    : d(std::make_unique<Private>(settings))
{
    d->setUp();
}

HttpServer::~HttpServer() = default;

void HttpServer::setLibrary(std::shared_ptr<const ViewLibrary> library)
{
    std::atomic_store(&d->library, std::move(library));
}

int HttpServer::bind()
{
    const std::string host = d->settings.host.toStdString();
    int port = d->settings.port;
    if (port == 0)
        port = std::max(0, d->server.bind_to_any_port(host));
    else if (!d->server.bind_to_port(host, port))
        port = 0;
    if (port != 0)
        d->server.widenBacklog();
    return port;
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
    d->server.endConnections();
    d->server.stop();
}

} // namespace service
