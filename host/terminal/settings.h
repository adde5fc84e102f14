#pragma once

#include "endpoint.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/// What the terminal keeps between two runs, in one INI file that only its user can read.
class Settings
{
public:
    /// \a folder is made when something is written.
    explicit Settings(const QString &folder);

    QString folder() const { return m_folder; }

    Endpoint endpoint() const;
    void setEndpoint(const Endpoint &endpoint);
    QString skin() const;
    void setSkin(const QString &skin);
    /// "zh" or "en".
    QString language() const;
    void setLanguage(const QString &language);
    /// Files of the composite screens that were open.
    QStringList openScreens() const;
    void setOpenScreens(const QStringList &paths);
    QByteArray geometry() const;
    QByteArray windowState() const;
    void setWindow(const QByteArray &geometry, const QByteArray &state);

private:
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    void setValues(const QVariantMap &values);

    QString m_folder;
};
