#pragma once

#include "viewdocument.h"

#include "documentplace.h"

namespace service {

/// Reads one view document. Faults go to \a place; a document with any is not to be served.
ViewDocument readView(const QJsonObject &object, const DocumentPlace &place);

/// A text, or an array of texts joined by \a separator; anything else is a fault.
QString textOrLines(const QJsonValue &value, QChar separator, const DocumentPlace &place);

/// An array of texts; anything else in it is a fault.
QStringList texts(const QJsonValue &value, const DocumentPlace &place);

/// Default values of the named parameters of a statement: texts, numbers, null, and lists of them.
QHash<QString, QVariant> readParams(const QJsonObject &params, const DocumentPlace &place);

/// Reads a statement and checks that each of its parameters is in \a params.
SqlTemplate readSql(const QJsonValue &value, const QHash<QString, QVariant> &params,
                    const DocumentPlace &place);

/// `FIELD DESC,FIELD ASC` as terms.
QVector<OrderTerm> readOrder(const QString &text, const DocumentPlace &place);

} // namespace service
