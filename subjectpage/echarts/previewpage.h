#pragma once

#include <QWebEnginePage>

/// The web page of a chart. It stays on the page of the resources: any other address is opened in the
/// desktop's browser.
class PreviewPage : public QWebEnginePage
{
    Q_OBJECT

public:
    using QWebEnginePage::QWebEnginePage;

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
};
