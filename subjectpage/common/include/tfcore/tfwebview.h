#pragma once

#include "itfabstractpage.h"
#include "itfmemory.h"
#include "itfnavigation.h"
#include "itfwebcontrols.h"

#include <QWebEngineView>

/// The host's web view. The web engine starts with the first address that is not empty, and not before.
class TFCORE_EXPORT TFWebView : public QWebEngineView,
                                public ITFAbstractPage,
                                public ITFNavigation,
                                public ITFZoom,
                                public ITFAudioMuted,
                                public ITFWebSettings,
                                public ITFMemory
{
    Q_OBJECT
    Q_INTERFACES(ITFAbstractPage ITFNavigation ITFZoom ITFAudioMuted ITFWebSettings ITFMemory)

public:
    explicit TFWebView(QWidget *parent = nullptr);
    ~TFWebView() override;

    QWidget *object() override;

    /// Shows \a url; an empty address shows nothing and starts nothing.
    void init(const QUrl &url, QVariant argument) override;
    /// Shows \a url; an empty address loads the present one again.
    void refresh(const QUrl &url, QVariant argument) override;

    QString signalWindowTitleChanged() override;
    QString signalUrlChanged() override;
    QString signalWindowIconChanged() override;
    QString signalLoadProgressChanged() override;
    QString url() override;
    void setUrl(const QString &url) override;
    QIcon icon() override;
    QString title() override;

    bool hasBack() override;
    void goBack() override;
    bool hasForward() override;
    void goForward() override;
    void stop() override;
    QList<QUrl> getBackList() override;
    QList<QUrl> getForwardList() override;

    qreal zoom() const override;
    void setZoom(qreal factor) override;
    bool isMuted() const override;
    void setMuted(bool muted) override;
    bool isJavaScriptEnabled() const override;
    void setJavaScriptEnabled(bool enabled) override;

    void save(QMap<QString, QVariant> &state) override;
    void restore(const QMap<QString, QVariant> &state) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void open(const QUrl &url);

    bool m_started = false;
    bool m_muted = false;
    bool m_javaScript = true;
    qreal m_zoom = 1.0;
};
