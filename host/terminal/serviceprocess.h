#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>
#include <QUrl>

/// A data service that this terminal starts for itself on a free port of this machine.
///
/// The service ends with the object, and also when the terminal dies without a word: the kernel ends it with
/// its parent, and the service watches by itself as well.
class ServiceProcess : public QObject
{
    Q_OBJECT

public:
    /// Program, database file and folder of the view documents.
    struct Command
    {
        QString program;
        QString database;
        QString views;
    };

    explicit ServiceProcess(QObject *parent = nullptr);
    ~ServiceProcess() override;

    /// Starts the service; ready() or failed() follows. A service that is running is stopped first.
    void start(const Command &command);
    /// Ends the service and waits for it, a few seconds at most.
    void stop();
    bool isStarting() const { return m_state == Starting; }
    bool isRunning() const { return m_state == Running; }
    qint64 processId() const;

    /// Longest wait for the address, 10 s unless told.
    void setStartTimeout(int milliseconds) { m_patience.setInterval(milliseconds); }

signals:
    void ready(const QUrl &address);
    /// The service did not start, or ended by itself later.
    void failed(const QString &reason);

private:
    enum State { Stopped, Starting, Running };

    QString missingPart(const Command &command) const;
    void readOutput();
    void readErrors();
    void giveUp(const QString &reason);

    QProcess *m_process = nullptr;
    QTimer m_patience;
    State m_state = Stopped;
    QByteArray m_output;
    QByteArray m_lastErrors;
};
