#pragma once

#include "viewlibrary.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Load {

/// One request of the mix, and the statement that answers it.
struct Request
{
    std::string path;
    std::string body;
    std::optional<service::BoundSql> sql; ///< the bare query; nothing where no database is needed
    bool isFullPage = false;              ///< a page of 200 rows; set by whoever has counted them
};

/// Reads the recorded requests of \a file, lines of `{"times": 2, "path": "/bas/...", "body": {...}}`; each
/// stands as many times as it tells. Ends the program with a located message on a line that is not so.
std::vector<Request> readMix(const QString &file, const service::ViewLibrary &library);

} // namespace Load
