#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Tells when the pages have come to rest: no request is out and the last reply has been shown.
class PageSettler : public QObject
{
    Q_OBJECT

public:
    explicit PageSettler(QObject *parent = nullptr);

    /// Starts watching; settled() or timedOut() follows once.
    void start(int timeoutMs);

signals:
    void settled();
    void timedOut();

private:
    void look();

    QTimer m_poll;
    QElapsedTimer m_total;
    QElapsedTimer m_quiet;
    int m_timeoutMs = 0;
};
