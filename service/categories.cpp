#include "categories.h"

Q_LOGGING_CATEGORY(lcDocuments, "subject.service.documents", QtInfoMsg)
Q_LOGGING_CATEGORY(lcDatabase, "subject.service.database", QtInfoMsg)
Q_LOGGING_CATEGORY(lcAccess, "subject.service.access", QtInfoMsg)
