#include "connectionstream.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <netdb.h>
#include <poll.h>

namespace service {

namespace {

using namespace std::chrono;

const milliseconds WritePatience{30000};
const milliseconds FinishPatience{1000};
const int FinishBytes = 8 * 1024 * 1024;

/// Whether \a socket is ready for \a events within \a patience.
bool isReady(int socket, short events, milliseconds patience)
{
    pollfd entry{socket, events, 0};
    int ready = 0;
    do
        ready = ::poll(&entry, 1, static_cast<int>(std::max<milliseconds::rep>(0, patience.count())));
    while (ready < 0 && errno == EINTR);
    return ready > 0;
}

milliseconds timeUntil(ConnectionStream::Clock::time_point end)
{
    return duration_cast<milliseconds>(end - ConnectionStream::Clock::now());
}

using NameGetter = int (*)(int, sockaddr *, socklen_t *);

void readAddress(int socket, NameGetter getName, std::string &ip, int &port)
{
    sockaddr_storage address{};
    socklen_t length = sizeof address;
    char host[NI_MAXHOST];
    char service[NI_MAXSERV];
    const auto plain = reinterpret_cast<sockaddr *>(&address);
    if (getName(socket, plain, &length) != 0 ||
        ::getnameinfo(plain, length, host, sizeof host, service, sizeof service,
                      NI_NUMERICHOST | NI_NUMERICSERV) != 0)
        return;
    ip = host;
    port = std::atoi(service);
}

} // namespace

void ConnectionStream::beginRequest(long long bytes, seconds time)
{
    m_budget = bytes;
    m_deadline = Clock::now() + time;
}

bool ConnectionStream::waitForRequest(seconds patience, int endEvent) const
{
    if (isBuffered())
        return true;
    pollfd entries[] = {{m_socket, POLLIN, 0}, {endEvent, POLLIN, 0}};
    const Clock::time_point end = Clock::now() + patience;
    int ready = 0;
    do
        ready = ::poll(entries, 2, static_cast<int>(std::max<milliseconds::rep>(0, timeUntil(end).count())));
    while (ready < 0 && errno == EINTR);
    return ready > 0 && (entries[0].revents & POLLIN) != 0;
}

void ConnectionStream::finish()
{
    ::shutdown(m_socket, SHUT_WR);
    const Clock::time_point end = Clock::now() + FinishPatience;
    for (int taken = 0; taken < FinishBytes && isReady(m_socket, POLLIN, timeUntil(end));) {
        const ssize_t count = ::recv(m_socket, m_buffer.data(), m_buffer.size(), 0);
        if (count <= 0)
            break;
        taken += static_cast<int>(count);
    }
}

bool ConnectionStream::is_readable() const
{
    return isBuffered() || isReady(m_socket, POLLIN, timeUntil(m_deadline));
}

bool ConnectionStream::is_writable() const
{
    return isReady(m_socket, POLLOUT, WritePatience);
}

bool ConnectionStream::fill()
{
    if (!is_readable())
        return false;
    ssize_t count = 0;
    do
        count = ::recv(m_socket, m_buffer.data(), m_buffer.size(), 0);
    while (count < 0 && errno == EINTR);
    m_at = 0;
    m_end = count > 0 ? static_cast<std::size_t>(count) : 0;
    return count > 0;
}

ssize_t ConnectionStream::read(char *target, size_t size)
{
    if (m_budget <= 0 || (!isBuffered() && !fill()))
        return -1;
    const std::size_t count = std::min({size, m_end - m_at, static_cast<std::size_t>(m_budget)});
    std::memcpy(target, m_buffer.data() + m_at, count);
    m_at += count;
    m_budget -= static_cast<long long>(count);
    return static_cast<ssize_t>(count);
}

ssize_t ConnectionStream::write(const char *source, size_t size)
{
    if (!is_writable())
        return -1;
    ssize_t count = 0;
    do
        count = ::send(m_socket, source, size, MSG_NOSIGNAL);
    while (count < 0 && errno == EINTR);
    return count;
}

void ConnectionStream::get_remote_ip_and_port(std::string &ip, int &port) const
{
    readAddress(m_socket, ::getpeername, ip, port);
}

void ConnectionStream::get_local_ip_and_port(std::string &ip, int &port) const
{
    readAddress(m_socket, ::getsockname, ip, port);
}

} // namespace service
