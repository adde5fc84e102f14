#include "pagesettler.h"

#include "tfcore/tfrequestlog.h"

#include <QApplication>
#include <QThreadPool>
#include <QWebEngineView>

#include <algorithm>

namespace {
constexpr int PollMs = 25;
constexpr int QuietMs = 400;
/// A web page may still be drawing after its data has come.
constexpr int QuietWithWebMs = 1800;

bool showsWebPage()
{
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](QWidget *widget) {
        return qobject_cast<QWebEngineView *>(widget) && widget->isVisible();
    });
}
} // namespace

PageSettler::PageSettler(QObject *parent)
    : QObject(parent)
{
    m_poll.setInterval(PollMs);
    connect(&m_poll, &QTimer::timeout, this, &PageSettler::look);
    // A request may begin and end between two looks.
    connect(TFRequestLog::instance(), &TFRequestLog::finished, this, [this] { m_quietLooks = 0; });
}

void PageSettler::start(int timeoutMs, bool isForPicture)
{
    m_isForPicture = isForPicture;
    m_timeoutMs = timeoutMs;
    m_total.start();
    m_quietLooks = 0;
    m_poll.start();
}

void PageSettler::look()
{
    if (QThreadPool::globalInstance()->activeThreadCount() > 0 || (m_isAtWork && m_isAtWork()))
        m_quietLooks = 0;
    else
        ++m_quietLooks;
    if (m_quietLooks * PollMs >= (m_isForPicture && showsWebPage() ? QuietWithWebMs : QuietMs)) {
        m_poll.stop();
        emit settled();
    } else if (m_total.elapsed() >= m_timeoutMs) {
        m_poll.stop();
        emit timedOut();
    }
}
