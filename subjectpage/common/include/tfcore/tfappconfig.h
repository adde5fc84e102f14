#pragma once

#include "tfcoreglobal.h"

#include <QString>

#include <memory>

/// Who is logged in.
struct USERINFO
{
    QString userId;
    QString userName;
};

/// Identity of the running terminal. Safe to read and write from any thread.
class TFCORE_EXPORT TFAppConfig
{
public:
    static TFAppConfig *instance();

    QString getAppToken() const;
    /// Product identifier; the name is spelled so in the host.
    QString getProuctId() const;
    USERINFO getUserInfo() const;

    void setAppToken(const QString &token);
    void setProuctId(const QString &productId);
    void setUserInfo(const USERINFO &user);

private:
    TFAppConfig();
    ~TFAppConfig();
    Q_DISABLE_COPY(TFAppConfig)

    struct Private;
    std::unique_ptr<Private> d;
};
