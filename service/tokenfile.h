#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace service {

/// The tokens that may use the service: a file with one a line; blank lines and lines with "#" first are
/// comments.
class TokenFile
{
public:
    /// Reads the file. False, with the reason in \a fault, when it can't be read or holds no token.
    bool load(const QString &path, QString *fault);

    /// Whether \a token is among them. The time that this takes tells nothing about the tokens.
    bool accepts(const QByteArray &token) const;

    /// Whether tokens are asked for at all.
    bool isActive() const { return !m_tokens.isEmpty(); }

private:
    QVector<QByteArray> m_tokens;
};

} // namespace service
