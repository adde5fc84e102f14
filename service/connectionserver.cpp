#include "connectionserver.h"

#include "connectionstream.h"

#include <sys/eventfd.h>
#include <unistd.h>

namespace service {

namespace {

const int Backlog = 1024;

/// Hands the server library's connections to threads that outlive its listening.
class ThreadsAdapter : public httplib::TaskQueue
{
public:
    explicit ThreadsAdapter(ConnectionThreads &threads)
        : m_threads(threads)
    {}
    void enqueue(std::function<void()> job) override { m_threads.enqueue(std::move(job)); }
    void shutdown() override { m_threads.shutdown(); }

private:
    ConnectionThreads &m_threads;
};

} // namespace

ConnectionServer::ConnectionServer(const ConnectionSettings &settings)
    : m_settings(settings)
    , m_threads(settings.connections)
    , m_endEvent(::eventfd(0, EFD_CLOEXEC))
{
    new_task_queue = [this] { return new ThreadsAdapter(m_threads); };
    set_keep_alive_timeout(settings.keepAliveSeconds);
    // Head and body go out in two writes; without this the second waits for the client's acknowledgement.
    set_tcp_nodelay(true);
    set_socket_options([this](socket_t socket) {
        // The server library would share the port with any other program that asks for it.
        const int on = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        m_listening = socket;
    });
}

ConnectionServer::~ConnectionServer()
{
    ::close(m_endEvent);
}

void ConnectionServer::widenBacklog() const
{
    // The server library lets five connections wait; the sixth of a burst would be told to come back in a
    // second.
    ::listen(m_listening, Backlog);
}

void ConnectionServer::endConnections()
{
    m_ending = true;
    const std::uint64_t one = 1;
    if (::write(m_endEvent, &one, sizeof one) < 0)
        std::perror("ending connections");
}

bool ConnectionServer::serveRequest(ConnectionStream &stream)
{
    stream.beginRequest(m_settings.requestBytes, std::chrono::seconds(m_settings.requestSeconds));
    bool isClosed = false;
    const bool isLast = m_ending || m_threads.isCrowded();
    return process_request(stream, isLast, isClosed, nullptr) && !isLast && !isClosed;
}

bool ConnectionServer::process_and_close_socket(socket_t socket)
{
    ConnectionStream stream(socket);
    const std::chrono::seconds patience(m_settings.keepAliveSeconds);
    while (stream.waitForRequest(patience, m_endEvent)) {
        if (!serveRequest(stream)) {
            stream.finish();
            break;
        }
    }
    ::close(socket);
    return true;
}

} // namespace service
