// A small POST to a server on loopback, against the same with a plain manager made for it.

#include "comparison.h"
#include "httpservice/tfwxrshttp.h"
#include "server.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace {
const QByteArray kReply = R"({"state":1,"msg":"","extend":null,"data":[]})";
const QByteArray kBody = R"({"obj_vw_id":260,"flag":1,"page":1,"size":200})";

void check(const QByteArray &reply)
{
    if (reply != kReply)
        qFatal("the server gave another reply: %s", reply.constData());
}

void plainPost(const QUrl &url)
{
    QNetworkAccessManager manager;
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArray("application/json"));
    QNetworkReply *reply = manager.post(request, kBody);
    QEventLoop loop;
    QObject::connect(&manager, &QNetworkAccessManager::finished, &loop, &QEventLoop::quit);
    loop.exec();
    check(reply->readAll());
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const Bench::Server server([](const QByteArray &) { return kReply; });
    const QUrl url = server.url();
    Bench::compare(
        {"a POST", "a fresh manager's POST", 1}, 400, [&] { plainPost(url); },
        [&] { check(TFWXRSHttp::post(url, kBody, {}).data); }, 3);
    return 0;
}
