#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

/// The screens in the user's configuration folder, one file each.
class ScreenStore
{
public:
    struct Entry
    {
        QString path;
        QString name; ///< as the screen calls itself; of a damaged file that of the file
        QDateTime changed;
        bool isDamaged = false;
    };

    /// \a folder is made when a screen is saved.
    explicit ScreenStore(const QString &folder);

    /// In the order of their names.
    QList<Entry> list() const;
    /// File of a new screen, not made yet and not among \a taken.
    QString freePath(const QStringList &taken) const;
    /// Both return why it could not be done, or an empty text.
    QString rename(const QString &path, const QString &name);
    QString remove(const QString &path);

private:
    QString m_folder;
};
