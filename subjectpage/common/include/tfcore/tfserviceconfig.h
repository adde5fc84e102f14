#pragma once

#include "tfcoreglobal.h"

#include <QString>
#include <QUrl>

#include <memory>

/// Where the services are, and in which language the terminal speaks. Safe from any thread.
class TFCORE_EXPORT TFServiceConfig
{
public:
    enum Language { Chinese = 1, ChineseTraditional = 2, English = 3 };

    static TFServiceConfig *instance();

    /// Base address of the service \a key ("servercfg.ini:Subject"), or \a fallback where none is set.
    QUrl getHttpUrl(const QString &key, const QString &fallback) const;
    /// One of Language, as an integer.
    int getCurrentLang() const;

    void setHttpUrl(const QString &key, const QUrl &url);
    void setCurrentLang(int language);

private:
    TFServiceConfig();
    ~TFServiceConfig();
    Q_DISABLE_COPY(TFServiceConfig)

    struct Private;
    std::unique_ptr<Private> d;
};
