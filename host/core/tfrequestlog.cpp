#include "tfcore/tfrequestlog.h"

#include <QCoreApplication>

TFRequestLog::TFRequestLog()
{
    qRegisterMetaType<TFRequestRecord>();
    // The first reporter may be a pool thread, which runs no event loop of its own.
    if (QCoreApplication *application = QCoreApplication::instance())
        moveToThread(application->thread());
}

TFRequestLog::~TFRequestLog() = default;

TFRequestLog *TFRequestLog::instance()
{
    static TFRequestLog log;
    return &log;
}

void TFRequestLog::report(const TFRequestRecord &record)
{
    QMetaObject::invokeMethod(
        this, [this, record] { emit finished(record); }, Qt::QueuedConnection);
}
