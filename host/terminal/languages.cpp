#include "languages.h"

#include "terminallog.h"
#include "tfcore/tfserviceconfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace {
const char Chinese[] = "zh";
const char English[] = "en";

QLocale localeOf(const QString &code)
{
    return code == English ? QLocale(QLocale::English, QLocale::UnitedStates)
                           : QLocale(QLocale::Chinese, QLocale::China);
}
} // namespace

Languages::Languages(QObject *parent)
    : QObject(parent)
{}

Languages::~Languages() = default;

QStringList Languages::codes()
{
    return {Chinese, English};
}

QString Languages::nativeName(const QString &code)
{
    return code == English ? QStringLiteral("English") : QStringLiteral("中文");
}

void Languages::set(const QString &code)
{
    m_code = code == English ? English : Chinese;
    QLocale::setDefault(localeOf(m_code));
    TFServiceConfig::instance()->setCurrentLang(m_code == English ? TFServiceConfig::English
                                                                  : TFServiceConfig::Chinese);
    m_translators.clear();
    install("qtbase", QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    for (const QString &folder : qAsConst(m_folders)) {
        QStringList names;
        for (const QString &file : QDir(folder + "/translations").entryList({"*.qm"}, QDir::Files))
            names.append(file.section('_', 0, 0));
        names.removeDuplicates();
        for (const QString &name : qAsConst(names))
            install(name, folder + "/translations");
    }
    install("terminal", ":/i18n");
}

void Languages::setPluginFolders(const QStringList &folders)
{
    m_folders = folders;
    set(m_code);
}

void Languages::install(const QString &catalogue, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(localeOf(m_code), catalogue, "_", folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}
