#include "previewpage.h"

#include <QDesktopServices>
#include <QUrl>

bool PreviewPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool)
{
    if (url.scheme() == QLatin1String("qrc"))
        return true;
    QDesktopServices::openUrl(url);
    return false;
}
