#include "tokenstore.h"

#include "categories.h"

#include <QFile>

#include <sys/stat.h>

namespace service {

namespace {

const std::chrono::milliseconds LookEvery{500};

} // namespace

TokenStore::Stamp TokenStore::stampOf(const QString &path)
{
    struct stat status
    {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_mtim.tv_sec * 1000000000LL + status.st_mtim.tv_nsec, status.st_size, status.st_ino};
}

bool TokenStore::open(const QString &path, QString *fault)
{
    const Stamp stamp = stampOf(path);
    auto file = std::make_shared<TokenFile>();
    if (!file->load(path, fault))
        return false;
    m_path = path;
    m_file = file;
    m_stamp = stamp;
    return true;
}

std::shared_ptr<const TokenFile> TokenStore::current()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto now = std::chrono::steady_clock::now();
    if (now - m_looked < LookEvery)
        return m_file;
    m_looked = now;
    const Stamp stamp = stampOf(m_path);
    if (stamp == m_stamp)
        return m_file;
    m_stamp = stamp;
    auto file = std::make_shared<TokenFile>();
    QString fault;
    if (file->load(m_path, &fault)) {
        m_file = file;
        qCInfo(lcDocuments).noquote() << "read the changed token file" << m_path;
    } else {
        qCWarning(lcDocuments).noquote() << fault << "(the tokens that were read before stay in force)";
    }
    return m_file;
}

std::optional<Identity> TokenStore::find(const QByteArray &token)
{
    return current()->find(token);
}

} // namespace service
