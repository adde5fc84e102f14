#pragma once

#include "demodata.h"
#include "renderedpage.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// `subject-terminal --render` as a user starts it, with a folder of its own for files and settings.
class RenderProgram
{
public:
    static constexpr int PatienceMs = 120000;

    /// Draws without a display and finds no Xvfb to make one: enough for tables.
    RenderProgram()
    {
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("PATH", "/nonexistent");
    }

    /// Leaves the program to find that there is no display, and to make one.
    void useOwnDisplay()
    {
        environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
    }

    /// Runs to the end and returns the status; -1 for a crash.
    int run(const QStringList &arguments)
    {
        start(arguments);
        m_process.waitForFinished(PatienceMs);
        errors = QString::fromUtf8(m_process.readAllStandardError());
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    void start(const QStringList &arguments)
    {
        environment.insert("XDG_CONFIG_HOME", m_folder.filePath("config"));
        m_process.setProcessEnvironment(environment);
        m_process.start(PROJECT_BINARY_DIR "/bin/subject-terminal",
                        QStringList{"--out", folder(), "--skin", "white", "--language", "zh"} + arguments);
    }

    /// Options for the demonstration's own service.
    static QStringList demonstration()
    {
        return {"--db", DemoData::database(), "--views", DemoData::views()};
    }

    QString folder() const { return m_folder.filePath("out"); }
    QString path(const QString &name) const { return folder() + '/' + name; }

    QJsonObject page(const QString &name = "page.json") const
    {
        QFile file(path(name));
        file.open(QIODevice::ReadOnly);
        return QJsonDocument::fromJson(file.readAll()).object();
    }

    /// Compares a page with the file of that name under tests/data/expected/render; with UPDATE_EXPECTED set
    /// in the environment, writes the file instead. Returns what differs, or an empty text.
    QString difference(const QString &name, const QString &expected) const
    {
        QFile file(QString(TEST_DATA_DIR "/expected/render/%1.json").arg(expected));
        const QByteArray found = RenderedPage(page(name)).text();
        if (qEnvironmentVariableIsSet("UPDATE_EXPECTED"))
            return file.open(QIODevice::WriteOnly) && file.write(found) == found.size() ? "" : "not written";
        if (!file.open(QIODevice::ReadOnly))
            return file.errorString();
        const QList<QByteArray> wanted = file.readAll().split('\n');
        const QList<QByteArray> lines = found.split('\n');
        for (int i = 0; i < qMax(wanted.size(), lines.size()); ++i) {
            if (wanted.value(i) != lines.value(i))
                return QString("%1:%2\nfound:  %3\nwanted: %4")
                    .arg(file.fileName())
                    .arg(i + 1)
                    .arg(QString(lines.value(i)), QString(wanted.value(i)));
        }
        return {};
    }

    QProcess &process() { return m_process; }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString errors;

private:
    QTemporaryDir m_folder;
    QProcess m_process;
};
