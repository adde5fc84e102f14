#pragma once

#include "columns.h"
#include "documentplace.h"
#include "viewdocument.h"

namespace service {

class Database;

/// Runs the view's SQL for its columns, with the defaults of its parameters, and checks that every field
/// which the document names is among them. Gives the columns; faults go to \a place.
Columns checkAgainstDatabase(const ViewDocument &view, Database &database, const DocumentPlace &place);

} // namespace service
