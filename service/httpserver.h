#pragma once

#include "servicelimits.h"

#include <QString>

#include <memory>

namespace service {

class AccessLog;
class TokenStore;
class ViewLibrary;

/// How the service is to listen and to serve.
struct ServerSettings
{
    QString host = QStringLiteral("127.0.0.1");
    int port = 0;          ///< 0 is any free port
    int threads = 16;      ///< workers that query, each with a database connection
    int connections = 512; ///< of clients, served at once
    int keepAliveSeconds = 15;
    int gzipFrom = 16384; ///< bytes of a reply from which on it is compressed for who asks; 0 is never
    Limits limits;
    QString databaseAddress;
    std::shared_ptr<TokenStore> tokens; ///< null: everybody is served
    std::shared_ptr<AccessLog> accessLog;
};

/// The two endpoints over HTTP, with `/healthz` and `/metrics` beside them.
class HttpServer
{
public:
    explicit HttpServer(const ServerSettings &settings);
    ~HttpServer();

    /// What is served from now on; to be called before serve(), and again from any thread. A request that has
    /// begun keeps the library that it began with.
    void setLibrary(std::shared_ptr<const ViewLibrary> library);

    /// Takes the port. 0 when it can't be had.
    int bind();

    /// Serves until stop(); to be called once after bind().
    void serve();

    /// Ends serve() from any thread, once the running requests are answered. Waits for a serve() that is
    /// about to begin.
    void stop();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace service
