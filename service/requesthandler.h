#pragma once

#include "datarequest.h"
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
};

/// Answers the requests of the two endpoints. Holds no state of its own, so any number of threads may call
/// it, each with its own connection.
class RequestHandler
{
public:
    explicit RequestHandler(const ViewLibrary &library)
        : m_library(library)
    {}

    /// `/bas/subject/data`: configuration and rows of a view.
    Reply subjectData(const QByteArray &body, Database &database) const;

    /// `/bas/ds/data`: navigation, blocks, constants and named lists.
    Reply namedData(const QByteArray &body, Database &database) const;

    /// An envelope that tells why a request was not served.
    static Reply refusal(const Refusal &refusal);

private:
    Result<Reply> view(const QByteArray &body, Database &database) const;
    Result<Reply> rows(const ServedView &view, const ViewRequest &request, Database &database) const;
    Result<Reply> crossTable(const ServedView &view, const ViewRequest &request, const RowSelect &select,
                             Database &database) const;
    Result<Reply> named(const QByteArray &body, Database &database) const;
    Result<Reply> navigation(const QJsonObject &body, Database &database) const;
    Result<Reply> filtered(const RowSource &source, const QJsonObject &body, Database &database) const;

    const ViewLibrary &m_library;
};

} // namespace service
