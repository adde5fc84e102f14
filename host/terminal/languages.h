#pragma once

#include <QObject>
#include <QTranslator>

#include <memory>
#include <vector>

/// The language of the terminal, of the toolkit's own dialogs, and of what is asked of the services.
class Languages : public QObject
{
    Q_OBJECT

public:
    explicit Languages(QObject *parent = nullptr);
    ~Languages() override;

    /// Codes that set() takes: "zh" and "en".
    static QStringList codes();
    /// Name of the language in itself.
    static QString nativeName(const QString &code);

    QString current() const { return m_code; }
    /// Changes the texts at once; an unknown code counts as Chinese. What an open page has already read
    /// stays as it is until it is opened anew.
    void set(const QString &code);
    /// Looks for further catalogues, \e name_zh_CN.qm and so on, in the subfolder "translations" of each of
    /// \a folders.
    void setPluginFolders(const QStringList &folders);

private:
    void install(const QString &catalogue, const QString &folder);

    QString m_code;
    QStringList m_folders;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
