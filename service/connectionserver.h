#pragma once

#include "connectionthreads.h"

#include <httplib.h>

namespace service {

class ConnectionStream;

/// How connections are taken and kept.
struct ConnectionSettings
{
    int connections = 512;      ///< served at once; further ones wait until one of these ends
    int keepAliveSeconds = 15;  ///< that a connection may be silent between two requests
    long long requestBytes = 0; ///< that a request may have, head and body
    int requestSeconds = 30;    ///< in which a request has to be there
};

/// The server library with connections of our own: a silent one costs no processor time, and stopping ends it
/// at once.
class ConnectionServer : public httplib::Server
{
public:
    explicit ConnectionServer(const ConnectionSettings &settings);
    ~ConnectionServer() override;

    /// Makes room for a burst of new connections; to be called once the port is bound.
    void widenBacklog() const;

    /// Ends silent connections, and the others once their request is answered. From any thread.
    void endConnections();

    int openConnections() const { return m_threads.busy(); }

private:
    bool process_and_close_socket(socket_t socket) override;
    bool serveRequest(ConnectionStream &stream);

    ConnectionSettings m_settings;
    ConnectionThreads m_threads;
    socket_t m_listening = INVALID_SOCKET;
    int m_endEvent;
    std::atomic<bool> m_ending{false};
};

} // namespace service
