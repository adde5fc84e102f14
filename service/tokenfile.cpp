#include "tokenfile.h"

#include <QCryptographicHash>
#include <QFile>

namespace service {

namespace {

/// Digests have one length, so comparing them can't tell how long a token is or where it differs.
QByteArray digest(const QByteArray &token)
{
    return QCryptographicHash::hash(token, QCryptographicHash::Sha256);
}

bool isSame(const QByteArray &a, const QByteArray &b)
{
    int difference = 0;
    for (int i = 0; i < a.size(); ++i)
        difference |= a.at(i) ^ b.at(i);
    return difference == 0;
}

} // namespace

bool TokenFile::load(const QString &path, QString *fault)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *fault = QStringLiteral("cannot read token file %1: %2").arg(path, file.errorString());
        return false;
    }
    m_tokens.clear();
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (!line.isEmpty() && !line.startsWith('#'))
            m_tokens << digest(line);
    }
    if (m_tokens.isEmpty())
        *fault = QStringLiteral("token file %1 holds no token").arg(path);
    return !m_tokens.isEmpty();
}

bool TokenFile::accepts(const QByteArray &token) const
{
    const QByteArray asked = digest(token);
    bool found = false;
    for (const QByteArray &known : m_tokens)
        found |= isSame(known, asked);
    return found;
}

} // namespace service
