#include "tfuc.h"

#include "records/tfcategories.h"
#include "tfuckeys.h"

#include <QJsonDocument>

#include <algorithm>
#include <iterator>

namespace TFUc {

namespace {
constexpr int NavigationObject = 38;
constexpr char BlockRowsObject[] = "43";
constexpr int ConstantsObject = 390;

enum Flag { Configuration = 0, Rows = 1, WholeSet = 2 };

constexpr TFPaging Unpaged{true, 1, 200};

struct Identity
{
    QString baseUrl;
    QString userId;
    QString productId;
};

Identity &identity()
{
    static Identity process;
    return process;
}

QUrl serviceUrl(QLatin1String path)
{
    return QUrl::fromUserInput(identity().baseUrl + path);
}

QJsonObject authorized()
{
    return {{Key::Auth, QJsonObject{{Key::UserId, identity().userId}, {Key::ProdId, identity().productId}}}};
}

TFRequestContent content(const QUrl &url, const QJsonObject &body)
{
    return {url, QJsonDocument(body).toJson(QJsonDocument::Compact), QString(), {}};
}

bool isAccepted(const QString &op)
{
    return std::find(std::begin(Operator::Accepted), std::end(Operator::Accepted), op) !=
           std::end(Operator::Accepted);
}

QJsonValue boundValue(const QString &op, const QList<QVariant> &values)
{
    if (values.size() > 1 || op == Operator::In)
        return QJsonArray::fromVariantList(values);
    return QJsonValue::fromVariant(values.value(0));
}
} // namespace

bool TFRequestContent::operator==(const TFRequestContent &other) const
{
    return url == other.url && body == other.body && spare == other.spare && headers == other.headers;
}

bool TFJSContent::insertFilter(const QString &field, const QString &op, const QList<QVariant> &values,
                               QString param)
{
    if (!isAccepted(op)) {
        qCWarning(lcNet) << "did not contain the operator" << op;
        return false;
    }
    if (param.isEmpty())
        param = field;

    const QString condition =
        QLatin1Char('(') + field + QLatin1Char(' ') + op + QLatin1String(" :") + param + QLatin1Char(')');
    QString filter = object.value(Key::Filter).toString();
    if (filter.isEmpty())
        filter = condition;
    else
        filter += QLatin1Char(' ') + Operator::Join + QLatin1Char(' ') + condition;
    // Written before the parameter is looked at: a second condition on it shares the value of the first.
    object.insert(Key::Filter, filter);

    QJsonObject bound = object.value(Key::FilterParams).toObject();
    if (bound.contains(param)) {
        qCWarning(lcNet) << "has same param" << param << " current param :" << bound.toVariantMap();
        return false;
    }
    bound.insert(param, boundValue(op, values));
    object.insert(Key::FilterParams, bound);
    return true;
}

void setBaseUrl(const QUrl &url)
{
    const QString text = url.toString();
    if (identity().baseUrl != text)
        identity().baseUrl = text;
}

void setUserId(const QString &userId)
{
    identity().userId = userId;
}

void setProductId(const QString &productId)
{
    identity().productId = productId;
}

QString baseUrl()
{
    return identity().baseUrl;
}

QUrl subjectUrl()
{
    return serviceUrl(Path::Subject);
}

QUrl dataObjectUrl()
{
    return serviceUrl(Path::DataObject);
}

TFRequestContent navigationRequest(qint64 pNodeCode)
{
    QJsonObject body = authorized();
    body.insert(Key::ObjId, NavigationObject);
    body.insert(Key::ParentNodeCode, pNodeCode);
    return content(dataObjectUrl(), body);
}

TFRequestContent blockRowsRequest(int securityType)
{
    TFJSContent body{authorized()};
    body.object.insert(Key::ObjId, QByteArray(BlockRowsObject).toInt());
    body.insertFilter(Key::SecurityTypeCode, Operator::Equal, {securityType});
    return content(dataObjectUrl(), body.object);
}

TFRequestContent constantsRequest()
{
    QJsonObject body = authorized();
    body.insert(Key::ObjId, ConstantsObject);
    return content(dataObjectUrl(), body);
}

TFRequestContent viewConfigRequest(qint64 objVwId, const Parameters &params, const Filters &filters)
{
    return viewRequest(objVwId, Configuration, params, filters, Unpaged);
}

TFRequestContent viewDataRequest(qint64 objVwId, const Parameters &params, const Filters &filters,
                                 const TFPaging &paging)
{
    return viewRequest(objVwId, Rows, params, filters, paging);
}

TFRequestContent wholeDataRequest(qint64 objVwId, const Parameters &params, const Filters &filters)
{
    return viewRequest(objVwId, WholeSet, params, filters, Unpaged);
}

TFRequestContent viewRequest(qint64 objVwId, int flag, const Parameters &params, const Filters &filters,
                             const TFPaging &paging)
{
    Parameters all = params;
    all.append({Key::ObjVwId, objVwId});
    all.append({Key::Flag, flag});
    return request(all, filters, paging);
}

TFRequestContent request(const Parameters &params, const Filters &filters, const TFPaging &paging)
{
    TFJSContent body{authorized()};
    if (!paging.noPaging) {
        body.object.insert(Key::Page, paging.page);
        body.object.insert(Key::Size, paging.size);
    }
    for (const auto &param : params) {
        if (!param.first.isNull() && !param.second.isNull())
            body.object.insert(param.first, QJsonValue::fromVariant(param.second));
    }
    for (const FilterParam::CustomFilter &filter : filters) {
        if (!filter.fieldName.isNull() && !filter.values.isEmpty())
            body.insertFilter(filter.fieldName, filter.op, filter.values, filter.paramName);
    }
    return content(subjectUrl(), body.object);
}

} // namespace TFUc
