#include "server.h"

#include <httplib.h>

#include <thread>

struct Bench::Server::Data
{
    httplib::Server server;
    std::thread thread;
    int port = 0;
};

Bench::Server::Server(Answer answer)
    : d(std::make_unique<Data>())
{
    d->server.Post(
        ".*", [answer = std::move(answer)](const httplib::Request &request, httplib::Response &response) {
            response.set_content(answer(QByteArray::fromStdString(request.body)).toStdString(),
                                 "application/json");
        });
    d->port = d->server.bind_to_any_port("127.0.0.1");
    d->thread = std::thread([this] { d->server.listen_after_bind(); });
}

Bench::Server::~Server()
{
    d->server.stop();
    d->thread.join();
}

QUrl Bench::Server::url() const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(d->port));
}
