#include "requestmix.h"

#include "datarequest.h"
#include "rowselect.h"
#include "servicelimits.h"

#include <QFile>
#include <QJsonDocument>

namespace Load {

namespace {

using namespace service;

/// The statement behind a request for rows of a view.
std::optional<BoundSql> viewStatement(const QJsonObject &body, const ViewLibrary &library)
{
    const Result<ViewRequest> request = readViewRequest(body, Limits().rows);
    if (!request.ok() || request.value().part == ViewPart::Configuration)
        return std::nullopt;
    const ServedView *view = library.view(request.value().view);
    if (!view)
        return std::nullopt;
    const Result<RowSelect> select = selectRows(*view, request.value(), Limits().filterDepth);
    if (!select.ok())
        return std::nullopt;
    const bool isCross = view->document.cross.isSet();
    return select.value().page(isCross ? std::nullopt : request.value().page);
}

Request readLine(const QByteArray &line, const ViewLibrary &library, int *times)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QJsonObject body = object.value(QLatin1String("body")).toObject();
    Request request;
    request.path = object.value(QLatin1String("path")).toString().toStdString();
    request.body = QJsonDocument(body).toJson(QJsonDocument::Compact).toStdString();
    if (request.path == "/bas/subject/data")
        request.sql = viewStatement(body, library);
    *times = object.value(QLatin1String("times")).toInt();
    return request;
}

} // namespace

std::vector<Request> readMix(const QString &file, const ViewLibrary &library)
{
    QFile lines(file);
    if (!lines.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(file), qPrintable(lines.errorString()));
    std::vector<Request> mix;
    for (int number = 1; !lines.atEnd(); ++number) {
        int times = 0;
        const Request request = readLine(lines.readLine(), library, &times);
        if (times < 1 || request.path.empty())
            qFatal("%s:%d: expected times, path and body", qPrintable(file), number);
        mix.insert(mix.end(), static_cast<std::size_t>(times), request);
    }
    return mix;
}

} // namespace Load
