#pragma once

#include "tokenfile.h"

#include <chrono>
#include <memory>
#include <mutex>

namespace service {

/// The token file as it stands now: read again once it has changed. A change that has a fault is reported and
/// what was read before stays in force. For any number of threads.
class TokenStore
{
public:
    /// Reads the file. False, with \a fault, for one that is not good.
    bool open(const QString &path, QString *fault);

    /// Whose token it is, nothing for an unknown one.
    std::optional<Identity> find(const QByteArray &token);

private:
    /// What tells one state of a file from another.
    struct Stamp
    {
        qint64 nanoseconds = 0;
        qint64 size = -1;
        quint64 inode = 0;
        bool operator==(const Stamp &other) const
        {
            return nanoseconds == other.nanoseconds && size == other.size && inode == other.inode;
        }
    };

    static Stamp stampOf(const QString &path);
    std::shared_ptr<const TokenFile> current();

    QString m_path;
    std::mutex m_mutex;
    std::shared_ptr<const TokenFile> m_file;
    Stamp m_stamp;
    std::chrono::steady_clock::time_point m_looked;
};

} // namespace service
