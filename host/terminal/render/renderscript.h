#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

/// The steps of a script file, in order.
///
/// The file holds a JSON array of objects; the key "do" names the step, the others are its values. Everything
/// that can be wrong with a file is found here, before anything opens: a step word that is not known, a key
/// that is missing, of the wrong type or of no meaning to its step.
struct RenderScript
{
    QList<QJsonObject> steps;
    QString fault; ///< "file:line:column: ..." or "file: step n: ...", empty if the script is good

    static RenderScript read(const QString &file);
    /// \a name stands for the file in faults.
    static RenderScript parse(const QByteArray &text, const QString &name);
};
