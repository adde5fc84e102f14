#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

class QUrl;

/// A blocking HTTP client: one POST a call, no state between calls. Any thread.
class TFWXRSHttp
{
public:
    using Headers = QList<QPair<QByteArray, QByteArray>>;

    struct HttpResult
    {
        bool ok = false;  ///< the reply finished without a network error
        QByteArray data;  ///< reply body; on failure the error text, as UTF-8
        QVariant cookies; ///< cookie header of the reply; invalid on failure
    };

    /// The headers "kvt-token", "kvt-format" and "kvt-language", in this order, each only where its text is
    /// not empty.
    static Headers headers(const QString &token, const QString &format, const QString &language);

    /// Sends \a body as JSON to \a url with \a headers and the identity of the terminal, and blocks until the
    /// reply is complete, fails, or the application quits. No time-out and no retry. Certificates are not
    /// verified; a redirect is followed unless it would leave https for http.
    static HttpResult post(const QUrl &url, const QByteArray &body, const Headers &headers);
};
