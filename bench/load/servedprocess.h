#pragma once

#include <QProcess>
#include <QStringList>

#include <ctime>

namespace Load {

/// The data service as a program of its own on a free port, for as long as this lives.
class ServedProcess
{
public:
    /// Starts it with \a arguments; ends the program with its words when that fails.
    explicit ServedProcess(const QStringList &arguments);
    ~ServedProcess();

    int port() const { return m_port; }

    /// The clock of its processor time.
    clockid_t processorClock() const { return m_clock; }

    /// Its resident memory.
    double megabytes() const;

private:
    QProcess m_process;
    int m_port = 0;
    clockid_t m_clock = 0;
};

} // namespace Load
