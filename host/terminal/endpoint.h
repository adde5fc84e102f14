#pragma once

#include <QString>
#include <QUrl>

/// Which data service the pages talk to, and as whom.
struct Endpoint
{
    QUrl service; ///< base address; empty: the demonstration service that the terminal starts itself
    QString user;
    QString product;
    QString token;

    bool isLocal() const { return service.isEmpty(); }
    bool operator==(const Endpoint &other) const
    {
        return service == other.service && user == other.user && product == other.product &&
               token == other.token;
    }
};
