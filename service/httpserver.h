#pragma once

#include "tokenfile.h"

#include <QString>

#include <memory>

namespace service {

class ViewLibrary;

/// How the service is to listen.
struct ServerSettings
{
    QString host = QStringLiteral("127.0.0.1");
    int port = 0; ///< 0 is any free port
    int threads = 32;
    QString databaseFile;
    TokenFile tokens;
};

/// The two endpoints over HTTP.
class HttpServer
{
public:
    HttpServer(const ServerSettings &settings, const ViewLibrary &library);
    ~HttpServer();

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
