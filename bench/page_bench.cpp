// A change of page with two child views, from the click to the picture, the service on loopback: against its
// requests, each sent by itself, and an empty table shown for each view.

#include "comparison.h"
#include "httpservice/tfwxrshttp.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "net/tfdm.h"
#include "painting.h"
#include "replies.h"
#include "server.h"
#include "tfcore/tfserviceconfig.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjecttablewidget.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTabWidget>
#include <QThreadPool>

#include <mutex>

namespace {
constexpr int kRows = 200;
constexpr int kViews = 3;
constexpr QSize kSize(1400, 800);

QJsonObject configuration(qint64 view)
{
    QJsonObject document = Bench::configuration();
    document.insert("Object_View", QJsonArray{QJsonObject{{"obj_vw_name", QString::number(view)}}});
    if (view != Bench::ViewId)
        return document;
    const QByteArray children =
        R"([{"ObjShowName":"261","Caption":"a"},{"ObjShowName":"262","Caption":"b"}])";
    QJsonArray properties = document.value("View_Config").toArray();
    properties.append(QJsonObject{{"obj_vw_id", view},
                                  {"prop_typ", "EXTEND"},
                                  {"prop_name", "childView"},
                                  {"ext_prop_val", QString::fromUtf8(children)}});
    document.insert("View_Config", properties);
    return document;
}

/// Answers from replies made beforehand and keeps what it was asked.
class Service
{
public:
    Service()
        : m_rows(Bench::reply(kRows))
        , m_server([this](const QByteArray &body) { return answer(body); })
    {
        for (qint64 view = Bench::ViewId; view < Bench::ViewId + kViews; ++view) {
            const QJsonObject envelope{
                {"state", 1}, {"msg", ""}, {"extend", QJsonValue()}, {"data", configuration(view)}};
            m_configurations.insert(view, QJsonDocument(envelope).toJson(QJsonDocument::Compact));
        }
    }

    QUrl url() const { return m_server.url(); }
    QByteArrayList takeRequests()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_requests, {});
    }

private:
    QByteArray answer(const QByteArray &body)
    {
        const QJsonObject request = QJsonDocument::fromJson(body).object();
        const std::lock_guard lock(m_mutex);
        m_requests.append(body);
        return request.value("flag").toInt() == 0 ? m_configurations.value(request.value("obj_vw_id").toInt())
                                                  : m_rows;
    }

    QByteArray m_rows;
    QHash<qint64, QByteArray> m_configurations;
    std::mutex m_mutex;
    QByteArrayList m_requests;
    Bench::Server m_server; // the last to be made and the first to go
};

/// Null until the view has its rows.
QWidget *filledGrid(QWidget *view)
{
    auto *table = qobject_cast<TFSubjectTableWidget *>(view);
    const bool isFilled = table && table->model() && table->model()->rowCount() == kRows;
    return isFilled ? table->grid()->rowsWidget() : nullptr;
}

void waitForGrid(const std::function<QWidget *()> &view)
{
    while (!filledGrid(view()))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void changePage(TFRightContainer *page)
{
    page->refreshPage(Bench::ViewId, QStringLiteral("page"));
    waitForGrid([page] { return page->mainView()->currentView(); });
    for (int tab = 0; tab < kViews - 1; ++tab)
        waitForGrid([page, tab] { return page->childViews()->widget(tab); });
    page->update();
    Bench::waitForPaint(page);
}

void settle()
{
    QThreadPool::globalInstance()->waitForDone();
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}
} // namespace

int main(int argc, char *argv[])
{
    Bench::prepareToolkit();
    QApplication application(argc, argv);
    Service service;
    TFServiceConfig::instance()->setHttpUrl(TFDm::ServiceKey, service.url().toString());
    TFRightContainer page;
    page.resize(kSize);
    page.show();
    QByteArrayList requests;
    const auto change = [&] {
        service.takeRequests();
        const double time = Bench::milliseconds([&] { changePage(&page); });
        requests = service.takeRequests();
        settle();
        return time;
    };
    const auto parts = [&] {
        double time = 0;
        for (const QByteArray &request : qAsConst(requests))
            time += Bench::milliseconds([&] { TFWXRSHttp::post(service.url(), request, {}); });
        for (int view = 0; view < kViews; ++view)
            time += Bench::emptyTableTime(kSize, Bench::Columns);
        return time;
    };
    change();
    Bench::compareTimed({QStringLiteral("page change with two child views"),
                         QStringLiteral("its requests and an empty QTableView for each view"), 1.5},
                        21, parts, change);
    return 0;
}
