#pragma once

#include "result.h"
#include "viewlibrary.h"

#include <optional>

namespace service {

class Cursor;
struct Page;

/// The rows of a cross view: one a group, with the columns that their values made.
struct CrossRows
{
    QByteArray data;        ///< JSON array of the asked page
    QByteArray gridColumns; ///< JSON array, to be sent as text
    qint64 count = 0;       ///< groups in all
};

/// Turns cells, ordered so that the order of their groups is that of first appearance, into rows.
/// Refuses more than \a limit cells.
Result<CrossRows> crossRows(const ServedView &view, Cursor &cells, const std::optional<Page> &page,
                            qint64 limit);

} // namespace service
