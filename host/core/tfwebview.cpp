#include "tfcore/tfwebview.h"

#include <QContextMenuEvent>
#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <QWebEngineSettings>

namespace {
const char UrlKey[] = "webUrl";
const char ZoomKey[] = "webZoom";

QList<QUrl> urls(const QList<QWebEngineHistoryItem> &items)
{
    QList<QUrl> result;
    for (const QWebEngineHistoryItem &item : items)
        result.append(item.url());
    return result;
}
} // namespace

// Every access to page() of the base class makes one and with it starts the web engine, so each operation
// asks m_started first.

TFWebView::TFWebView(QWidget *parent)
    : QWebEngineView(parent)
{
    setAcceptDrops(false);
}

TFWebView::~TFWebView() = default;

QWidget *TFWebView::object()
{
    return this;
}

void TFWebView::init(const QUrl &url, QVariant)
{
    open(url);
}

void TFWebView::refresh(const QUrl &url, QVariant)
{
    if (!url.isEmpty())
        open(url);
    else if (m_started)
        reload();
}

void TFWebView::open(const QUrl &url)
{
    if (url.isEmpty())
        return;
    if (!m_started) {
        m_started = true;
        setAcceptDrops(true);
        page()->setAudioMuted(m_muted);
        settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, m_javaScript);
        setZoomFactor(m_zoom);
    }
    load(url);
}

QString TFWebView::signalWindowTitleChanged()
{
    return SIGNAL(titleChanged(QString));
}

QString TFWebView::signalUrlChanged()
{
    return SIGNAL(urlChanged(QUrl));
}

QString TFWebView::signalWindowIconChanged()
{
    return SIGNAL(iconChanged(QIcon));
}

QString TFWebView::signalLoadProgressChanged()
{
    return SIGNAL(loadProgress(int));
}

QString TFWebView::url()
{
    return m_started ? QWebEngineView::url().toString() : QString();
}

void TFWebView::setUrl(const QString &url)
{
    open(QUrl::fromUserInput(url));
}

QIcon TFWebView::icon()
{
    return m_started ? QWebEngineView::icon() : QIcon();
}

QString TFWebView::title()
{
    return m_started ? QWebEngineView::title() : QString();
}

bool TFWebView::hasBack()
{
    return m_started && history()->canGoBack();
}

void TFWebView::goBack()
{
    if (m_started)
        back();
}

bool TFWebView::hasForward()
{
    return m_started && history()->canGoForward();
}

void TFWebView::goForward()
{
    if (m_started)
        forward();
}

void TFWebView::stop()
{
    if (m_started)
        QWebEngineView::stop();
}

QList<QUrl> TFWebView::getBackList()
{
    return m_started ? urls(history()->backItems(history()->count())) : QList<QUrl>();
}

QList<QUrl> TFWebView::getForwardList()
{
    return m_started ? urls(history()->forwardItems(history()->count())) : QList<QUrl>();
}

qreal TFWebView::zoom() const
{
    return m_zoom;
}

void TFWebView::setZoom(qreal factor)
{
    m_zoom = factor;
    if (m_started)
        setZoomFactor(factor);
}

bool TFWebView::isMuted() const
{
    return m_muted;
}

void TFWebView::setMuted(bool muted)
{
    m_muted = muted;
    if (m_started)
        page()->setAudioMuted(muted);
}

bool TFWebView::isJavaScriptEnabled() const
{
    return m_javaScript;
}

void TFWebView::setJavaScriptEnabled(bool enabled)
{
    m_javaScript = enabled;
    if (m_started)
        settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, enabled);
}

void TFWebView::save(QMap<QString, QVariant> &state)
{
    state.insert(UrlKey, url());
    state.insert(ZoomKey, m_zoom);
}

void TFWebView::restore(const QMap<QString, QVariant> &state)
{
    const qreal factor = state.value(ZoomKey).toReal();
    if (factor > 0)
        setZoom(factor);
    open(QUrl(state.value(UrlKey).toString()));
}

void TFWebView::showEvent(QShowEvent *event)
{
    m_started ? QWebEngineView::showEvent(event) : QWidget::showEvent(event);
}

void TFWebView::hideEvent(QHideEvent *event)
{
    m_started ? QWebEngineView::hideEvent(event) : QWidget::hideEvent(event);
}

void TFWebView::closeEvent(QCloseEvent *event)
{
    m_started ? QWebEngineView::closeEvent(event) : QWidget::closeEvent(event);
}

void TFWebView::contextMenuEvent(QContextMenuEvent *event)
{
    m_started ? QWebEngineView::contextMenuEvent(event) : event->ignore();
}
