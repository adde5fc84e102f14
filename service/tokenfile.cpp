#include "tokenfile.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

namespace service {

namespace {

const int MostWords = 3;

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

/// Takes one line in; gives what is wrong with it.
QString TokenFile::addLine(const QByteArray &line)
{
    const QStringList words = QString::fromUtf8(line).simplified().split(QLatin1Char(' '));
    if (words.size() > MostWords)
        return QStringLiteral("expected a token, a user and products parted by commas, found %1 words")
            .arg(words.size());
    Entry entry{digest(words.first().toUtf8()), {}};
    if (std::any_of(m_entries.begin(), m_entries.end(),
                    [&entry](const Entry &known) { return known.digest == entry.digest; }))
        return QStringLiteral("the token stands twice");
    const QString user = words.value(1);
    if (user != QLatin1String("-"))
        entry.identity.user = user;
    for (const QString &product : words.value(2).split(QLatin1Char(','))) {
        if (product.isEmpty() && words.size() == MostWords)
            return QStringLiteral("a product's name is missing");
        if (product == QLatin1String("*"))
            entry.identity.hasAllProducts = true;
        else if (!product.isEmpty())
            entry.identity.products.insert(product);
    }
    m_entries << entry;
    return {};
}

bool TokenFile::load(const QString &path, QString *fault)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *fault = QStringLiteral("cannot read token file %1: %2").arg(path, file.errorString());
        return false;
    }
    TokenFile read;
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine().trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QString wrong = read.addLine(line);
        if (!wrong.isEmpty()) {
            *fault = QStringLiteral("%1:%2: %3").arg(path).arg(number).arg(wrong);
            return false;
        }
    }
    if (read.m_entries.isEmpty()) {
        *fault = QStringLiteral("token file %1 holds no token").arg(path);
        return false;
    }
    *this = read;
    return true;
}

std::optional<Identity> TokenFile::find(const QByteArray &token) const
{
    const QByteArray asked = digest(token);
    std::optional<Identity> found;
    for (const Entry &entry : m_entries) {
        if (isSame(entry.digest, asked))
            found = entry.identity;
    }
    return found;
}

} // namespace service
