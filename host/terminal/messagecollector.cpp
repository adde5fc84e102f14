#include "messagecollector.h"

#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>

namespace {
QMutex mutex;
MessageCollector *current = nullptr;
} // namespace

MessageCollector::MessageCollector(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<LogMessage>();
    QMutexLocker lock(&mutex);
    current = this;
    m_previous = qInstallMessageHandler(handle);
}

MessageCollector::~MessageCollector()
{
    qInstallMessageHandler(m_previous);
    QMutexLocker lock(&mutex);
    current = nullptr;
}

void MessageCollector::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    QMutexLocker lock(&mutex);
    MessageCollector *self = current;
    if (!self)
        return;
    const QtMessageHandler previous = self->m_previous;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        LogMessage message;
        message.time = QDateTime::currentDateTime();
        message.category = QString::fromUtf8(context.category);
        message.text = text;
        if (context.file)
            message.place =
                QFileInfo(QString::fromUtf8(context.file)).fileName() + ':' + QString::number(context.line);
        // Queued even on the window's own thread: showing a message must not happen in the middle of what
        // gave it.
        QMetaObject::invokeMethod(
            self, [self, message] { emit self->message(message); }, Qt::QueuedConnection);
    }
    lock.unlock();
    if (previous)
        previous(type, context, text);
}
