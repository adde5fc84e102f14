#pragma once

#include "screenformat.h"

/// One screen's file.
///
/// A save replaces the file in one step, so that the last good state survives a crash in the middle. What
/// lies there and is not what this object read soundly or wrote itself, such as a damaged file or one that
/// another terminal wrote meanwhile, is first put aside under the name "FILE.kept-1", "FILE.kept-2" and so
/// on.
class ScreenFile
{
public:
    explicit ScreenFile(const QString &path);

    QString path() const { return m_path; }
    /// Reads the file; one that is missing or no ordinary file is told among the problems.
    ScreenFormat::Reading load();
    /// Writes \a state unless the file has just that. Returns why it could not be written, or an empty text.
    QString save(const ScreenState &state);
    /// Name under which the last save put a foreign file aside, or an empty text.
    QString keptAside() const { return m_keptAside; }

private:
    QString keepAside(const QByteArray &text);

    QString m_path;
    QByteArray m_known; ///< text that may be replaced
    QString m_keptAside;
};
