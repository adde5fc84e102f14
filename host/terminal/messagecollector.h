#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QObject>
#include <QString>

/// One warning or error of the program, with the place that it came from.
struct LogMessage
{
    QDateTime time;
    QString category;
    QString text;
    QString place; ///< "file:line", empty in a build without that
};

Q_DECLARE_METATYPE(LogMessage)

/// Hears all messages of the process and tells the window of warnings and worse.
///
/// Messages of all levels still go where they went before, in the form "time category: text". There is one at
/// a time.
class MessageCollector : public QObject
{
    Q_OBJECT

public:
    explicit MessageCollector(QObject *parent = nullptr);
    ~MessageCollector() override;

signals:
    /// Emitted on the thread of this object, whatever thread the message came from.
    void message(const LogMessage &message);

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QtMessageHandler m_previous;
};
