#pragma once

#include <httplib.h>

#include <array>
#include <chrono>

namespace service {

/// The two directions of an accepted connection, as the server library reads and writes them.
///
/// Every request has a budget of bytes and of time, so a client that sends without end, or one byte at a
/// time, is cut off. Does not close the socket.
class ConnectionStream : public httplib::Stream
{
public:
    using Clock = std::chrono::steady_clock;

    explicit ConnectionStream(socket_t socket)
        : m_socket(socket)
    {}

    /// Grants the next request its budget, from now on.
    void beginRequest(long long bytes, std::chrono::seconds time);

    /// Waits for the first byte of a request. False when none comes for \a patience, the client is gone, or
    /// \a endEvent becomes readable while there is none.
    bool waitForRequest(std::chrono::seconds patience, int endEvent) const;

    /// Tells the client that nothing more comes and takes in what it still sends, for a short time: closing
    /// over unread bytes would take the answer away from it.
    void finish();

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *target, size_t size) override;
    ssize_t write(const char *source, size_t size) override;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;
    socket_t socket() const override { return m_socket; }

private:
    bool isBuffered() const { return m_at < m_end; }
    bool fill();

    socket_t m_socket;
    std::array<char, 16384> m_buffer;
    std::size_t m_at = 0;
    std::size_t m_end = 0;
    long long m_budget = 0;
    Clock::time_point m_deadline;
};

} // namespace service
