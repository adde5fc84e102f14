#pragma once

#include "datarequest.h"
#include "identity.h"
#include "servicelimits.h"
#include "viewlibrary.h"

namespace service {

class Database;
struct RowSelect;

/// What goes back to the client: a whole envelope and the status of HTTP.
struct Reply
{
    int status = 200;
    QByteArray body;
    qint64 rows = 0; ///< for the access log
    QString target;  ///< what was asked for, see AccessEntry
};

/// Answers the requests of the two endpoints. Holds no state of its own, so any number of threads may call
/// it, each with its own connection.
class RequestHandler
{
public:
    RequestHandler(const ViewLibrary &library, const Limits &limits)
        : m_library(library)
        , m_limits(limits)
    {}

    /// `/bas/subject/data`: configuration and rows of a view.
    Reply subjectData(const QByteArray &body, const Identity &identity, Database &database) const;

    /// `/bas/ds/data`: navigation, blocks, constants and named lists.
    Reply namedData(const QByteArray &body, const Identity &identity, Database &database) const;

    /// An envelope that tells why a request was not served.
    static Reply refusal(const Refusal &refusal);

private:
    Result<Reply> view(const ViewRequest &request, const Identity &identity, Database &database) const;
    Result<Reply> rows(const ServedView &view, const ViewRequest &request, const Identity &identity,
                       Database &database) const;
    Result<Reply> crossTable(const ServedView &view, const ViewRequest &request, const RowSelect &select,
                             const QByteArray &head, Database &database) const;
    Result<Reply> list(const QString &name, const QJsonObject &body, Database &database) const;
    Result<Reply> named(qint64 id, const QJsonObject &body, const Identity &identity,
                        Database &database) const;
    Result<Reply> navigation(const QJsonObject &body, const Identity &identity, Database &database) const;
    Result<Reply> filtered(const RowSource &source, const QJsonObject &body, Database &database) const;

    const ViewLibrary &m_library;
    const Limits m_limits;
};

} // namespace service
