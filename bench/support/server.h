#pragma once

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <memory>

namespace Bench {

/// An HTTP server on loopback, on threads of its own.
class Server
{
public:
    /// What a POST with that body is answered with; called on the threads of the server.
    using Answer = std::function<QByteArray(const QByteArray &body)>;

    explicit Server(Answer answer);
    ~Server();
    QUrl url() const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace Bench
