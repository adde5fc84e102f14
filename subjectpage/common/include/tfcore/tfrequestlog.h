#pragma once

#include "tfcoreglobal.h"

#include <QByteArray>
#include <QDateTime>
#include <QMetaType>
#include <QObject>
#include <QString>

/// One finished request to the data service.
struct TFRequestRecord
{
    QDateTime time;   ///< when it was sent
    QString path;     ///< path of the address, "/bas/subject/data"
    QByteArray body;  ///< the body that was sent
    bool ok = false;  ///< finished without a network error
    qint64 bytes = 0; ///< size of the reply's body
    qint64 ms = 0;    ///< from sending to the whole reply
    QString error;    ///< text of the network error, empty if ok
};

/// Tells the host what the pages asked the data service.
///
/// report() may be called from any thread; finished() is emitted later, on the application's thread, in the
/// order of the reports.
class TFCORE_EXPORT TFRequestLog : public QObject
{
    Q_OBJECT

public:
    static TFRequestLog *instance();

    void report(const TFRequestRecord &record);

signals:
    void finished(const TFRequestRecord &record);

private:
    TFRequestLog();
    ~TFRequestLog() override;
};

Q_DECLARE_METATYPE(TFRequestRecord)
