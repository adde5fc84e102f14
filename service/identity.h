#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace service {

/// Who asks, and what he may see.
struct Identity
{
    QString user;
    QSet<QString> products;
    bool hasAllProducts = false;

    /// Whether something limited to \a limits may be seen; an empty list limits nothing.
    bool maySee(const QStringList &limits) const
    {
        for (const QString &product : limits) {
            if (hasAllProducts || products.contains(product))
                return true;
        }
        return limits.isEmpty();
    }
};

} // namespace service
