#pragma once

#include "columns.h"
#include "documentplace.h"
#include "sqltemplate.h"

#include <QJsonObject>

namespace service {

class Database;

/// Rows that stand in a file of their own kind (blocks, constants, lists): from SQL, or as they are written.
///
/// Written rows become a VALUES clause with bound values, so both kinds are filtered by the same SQL.
struct RowSource
{
    BoundSql sql;
    Columns columns;
};

/// A source of written \a rows, objects with the same keys; \a names are its columns, a missing key is NULL.
RowSource sourceOfRows(const QStringList &names, const QVector<QVariantList> &rows,
                       const SqlDialect &dialect);

/// Reads `{"sql": ...}` or `{"rows": [...]}`, and asks the database for the columns of the SQL. Faults go to
/// \a place.
RowSource readRowSource(const QJsonValue &value, Database &database, const DocumentPlace &place);

/// The output columns of \a sql as the database tells them; empty, with a fault at \a place, when it refuses
/// it.
QVector<StoredColumn> probeColumns(const BoundSql &sql, Database &database, const DocumentPlace &place);

} // namespace service
