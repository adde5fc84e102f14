#include "settings.h"

#include "terminallog.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QVariantMap>

namespace {
const char FileName[] = "terminal.ini";
const char ServiceKey[] = "Endpoint/Service";
const char UserKey[] = "Endpoint/User";
const char ProductKey[] = "Endpoint/Product";
const char TokenKey[] = "Endpoint/Token";
const char SkinKey[] = "Look/Skin";
const char LanguageKey[] = "Look/Language";
const char GeometryKey[] = "Window/Geometry";
const char StateKey[] = "Window/State";
const char OpenScreensKey[] = "Screens/Open";
const char DefaultUser[] = "demo";
const char DefaultProduct[] = "terminal";
const char DefaultSkin[] = "white";
const char DefaultLanguage[] = "zh";
} // namespace

Settings::Settings(const QString &folder)
    : m_folder(folder)
{}

QVariant Settings::value(const QString &key, const QVariant &defaultValue) const
{
    QSettings file(m_folder + '/' + FileName, QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    return file.value(key, defaultValue);
}

void Settings::setValues(const QVariantMap &values)
{
    QDir().mkpath(m_folder);
    const QString path = m_folder + '/' + FileName;
    QSettings file(path, QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    for (auto it = values.begin(); it != values.end(); ++it)
        file.setValue(it.key(), it.value());
    file.sync();
    // The access token is in it.
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    if (file.status() != QSettings::NoError)
        qCWarning(lcTerminal).noquote() << "settings cannot be written:" << path;
}

Endpoint Settings::endpoint() const
{
    Endpoint endpoint;
    endpoint.service = QUrl(value(ServiceKey).toString());
    endpoint.user = value(UserKey, DefaultUser).toString();
    endpoint.product = value(ProductKey, DefaultProduct).toString();
    endpoint.token = value(TokenKey).toString();
    return endpoint;
}

void Settings::setEndpoint(const Endpoint &endpoint)
{
    setValues({{ServiceKey, endpoint.service.toString()},
               {UserKey, endpoint.user},
               {ProductKey, endpoint.product},
               {TokenKey, endpoint.token}});
}

QString Settings::skin() const
{
    return value(SkinKey, DefaultSkin).toString();
}

void Settings::setSkin(const QString &skin)
{
    setValues({{SkinKey, skin}});
}

QString Settings::language() const
{
    return value(LanguageKey, DefaultLanguage).toString();
}

void Settings::setLanguage(const QString &language)
{
    setValues({{LanguageKey, language}});
}

QStringList Settings::openScreens() const
{
    return value(OpenScreensKey).toStringList();
}

void Settings::setOpenScreens(const QStringList &paths)
{
    setValues({{OpenScreensKey, paths}});
}

QByteArray Settings::geometry() const
{
    return value(GeometryKey).toByteArray();
}

QByteArray Settings::windowState() const
{
    return value(StateKey).toByteArray();
}

void Settings::setWindow(const QByteArray &geometry, const QByteArray &state)
{
    setValues({{GeometryKey, geometry}, {StateKey, state}});
}
