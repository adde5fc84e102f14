#pragma once

#include "identity.h"

#include <QByteArray>
#include <QVector>

#include <optional>

namespace service {

/// The tokens that may use the service: a file in UTF-8, one token a line.
///
///     TOKEN [USER [PRODUCT[,PRODUCT...]]]
///
/// Words are parted by blanks. Blank lines and lines with "#" first are comments. Without a user (or with
/// "-") the name comes from the request; "*" stands for all products; without products only what is not
/// limited is seen.
class TokenFile
{
public:
    /// Reads the file. False when it can't be read or has a fault, which \a fault then tells as
    /// `FILE:LINE: what is wrong`; nothing changes then.
    bool load(const QString &path, QString *fault);

    /// Whose token it is, nothing for an unknown one. The time that this takes tells nothing about the
    /// tokens.
    std::optional<Identity> find(const QByteArray &token) const;

private:
    struct Entry
    {
        QByteArray digest;
        Identity identity;
    };

    QString addLine(const QByteArray &line);

    QVector<Entry> m_entries;
};

} // namespace service
