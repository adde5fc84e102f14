#pragma once

#include "columns.h"
#include "result.h"
#include "viewdocument.h"

#include <QJsonObject>

#include <optional>

namespace service {

/// Which part of a view a request wants.
enum class ViewPart { Configuration = 0, Rows = 1, Whole = 2 };

/// One page of rows, counted from 1.
struct Page
{
    int number = 1;
    int size = 200;
};

/// A request for a view, checked in itself.
struct ViewRequest
{
    qint64 view = 0;
    ViewPart part = ViewPart::Configuration;
    std::optional<Page> page; ///< nothing: all rows
    QString filter;
    QJsonObject filterParams;
    QVector<OrderTerm> order; ///< empty: the view's own
    QVariantList blocks;      ///< codes of the checked blocks
    QJsonObject body;         ///< the whole request, for the view's named parameters
};

/// The object that a request's body holds: well-formed, an object, not nested too deeply.
Result<QJsonObject> readBody(const QByteArray &body);

/// Reads a request for a view, with pages of at most \a maxRows rows.
Result<ViewRequest> readViewRequest(const QJsonObject &body, int maxRows);

/// The members `filter` and `filterParams` of any request.
Result<QString> readFilterText(const QJsonObject &body);
Result<QJsonObject> readFilterParams(const QJsonObject &body);

/// A whole number that may also come as text. Absent or anything else is a refusal that names \a key.
Result<qint64> readWhole(const QJsonObject &body, const QString &key);

/// The values of a view's named parameters: its defaults, replaced by what the request brings.
Result<QHash<QString, QVariant>> readParameters(const QHash<QString, QVariant> &defaults,
                                                const QJsonObject &body);

} // namespace service
