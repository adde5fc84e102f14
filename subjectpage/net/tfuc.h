#pragma once

#include "records/filterparam.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>
#include <QVariant>

/// Composes the address and the JSON body of every request to the data service.
///
/// All operations run on the user-interface thread.
namespace TFUc {

using Parameters = QList<QPair<QString, QVariant>>;
using Filters = QList<FilterParam::CustomFilter>;

/// What a request is made of.
struct TFRequestContent
{
    QUrl url;
    QByteArray body;
    QString spare;                                ///< stays empty
    QList<QPair<QByteArray, QByteArray>> headers; ///< stays empty

    bool operator==(const TFRequestContent &other) const;
    bool operator!=(const TFRequestContent &other) const { return !(*this == other); }
};

/// Which rows a request asks for.
struct TFPaging
{
    bool noPaging = false; ///< the body carries neither page nor size
    int page = 1;          ///< counted from 1
    int size = 200;        ///< rows a page
};

/// A request body under construction.
struct TFJSContent
{
    QJsonObject object;

    /// Adds the condition "(field op :param)" to the filter text, and \a values under \a param to the bound
    /// values; an empty \a param means \a field. One value is bound as it is, several or those of "in" as an
    /// array.
    ///
    /// False and a warning for an operator that the service does not know (nothing is added) and for a
    /// parameter that has a value already (the condition is added and refers to the earlier value).
    bool insertFilter(const QString &field, const QString &op, const QList<QVariant> &values,
                      QString param = QString());
};

// Identity and address, one value a process. TFDm keeps them up to date.

/// Keeps the text of \a url; assigns only when it differs.
void setBaseUrl(const QUrl &url);
void setUserId(const QString &userId);
void setProductId(const QString &productId);
QString baseUrl();

/// Address of view configurations and view data.
QUrl subjectUrl();
/// Address of named data objects: navigation, blocks, constants, list controls.
QUrl dataObjectUrl();

/// Navigation rows below the node \a pNodeCode.
TFRequestContent navigationRequest(qint64 pNodeCode);
/// Block rows of one security type.
TFRequestContent blockRowsRequest(int securityType);
/// The table of constants.
TFRequestContent constantsRequest();
/// Configuration of a view (flag 0).
TFRequestContent viewConfigRequest(qint64 objVwId, const Parameters &params, const Filters &filters);
/// One page of rows of a view (flag 1).
TFRequestContent viewDataRequest(qint64 objVwId, const Parameters &params, const Filters &filters,
                                 const TFPaging &paging);
/// Configuration and all rows of a view that computes on the client (flag 2).
TFRequestContent wholeDataRequest(qint64 objVwId, const Parameters &params, const Filters &filters);
/// A view request with a given flag.
TFRequestContent viewRequest(qint64 objVwId, int flag, const Parameters &params, const Filters &filters,
                             const TFPaging &paging);
/// What all view requests come down to. Parameters with a null key or a null value are left out, filters
/// without a field or without values too; a later parameter replaces an earlier one of the same key.
TFRequestContent request(const Parameters &params, const Filters &filters, const TFPaging &paging);

} // namespace TFUc
