#pragma once

#include "datarequest.h"
#include "viewlibrary.h"

namespace service {

/// The statements that answer a request for rows.
struct RowSelect
{
    BoundSql matching; ///< all rows that the request asks for, in no order; for the count
    QString order;     ///< " ORDER BY ...", may be empty
    BoundSql page(const std::optional<Page> &page) const;
};

/// Puts together the view's SQL, its parameters, the filter, the blocks and the order of \a request.
Result<RowSelect> selectRows(const ServedView &view, const ViewRequest &request, int filterDepth);

/// \a base restricted by \a conditions, of which empty ones count for nothing.
BoundSql restricted(const BoundSql &base, const QVector<BoundSql> &conditions);

} // namespace service
