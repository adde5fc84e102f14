#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVector>
#include <QVersionNumber>

/// Another plug-in that one needs, in a version that is compatible with the one named.
struct PluginDependency
{
    QString name;
    QVersionNumber version;
};

/// A plug-in file, what its metadata tells, and how far it has come.
struct PluginInfo
{
    enum State {
        Invalid,     ///< no plug-in of this terminal; see reason
        Read,        ///< the metadata was read
        Resolved,    ///< all that it depends on is there
        Loaded,      ///< the library is loaded and the entry object made
        Initialized, ///< at work
        Failed       ///< one of the steps above went wrong; see reason
    };

    QString filePath;
    QString name;
    QVersionNumber version;
    QVersionNumber compatVersion; ///< the oldest version that it can stand in for
    bool required = false;
    QString category;
    QStringList arguments; ///< handed to initialize()
    QVector<PluginDependency> dependencies;
    QUrl url; ///< home page of the plug-in
    QString description;
    /// Names for users of the components that it offers for composite screens: class name, language code,
    /// name.
    QMap<QString, QMap<QString, QString>> components;

    State state = Invalid;
    QString reason; ///< why it is Invalid or Failed, empty otherwise

    bool isAtWork() const { return state == Initialized; }
    bool provides(const PluginDependency &dependency) const;
    /// Untranslated word for the state.
    static const char *stateName(State state);

    /// Reads the metadata of \a filePath without loading its code.
    static PluginInfo read(const QString &filePath);
};
