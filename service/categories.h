#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcDocuments) ///< subject.service.documents: faults in view documents
Q_DECLARE_LOGGING_CATEGORY(lcDatabase)  ///< subject.service.database: statements and faults of the database
Q_DECLARE_LOGGING_CATEGORY(lcAccess)    ///< subject.service.access: one line a request
