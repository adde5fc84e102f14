#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

/// Tells when the pages have come to rest: no request is out and the last reply has been shown.
class PageSettler : public QObject
{
    Q_OBJECT

public:
    explicit PageSettler(QObject *parent = nullptr);

    /// Asks \a isAtWork for what else is under way.
    void setWork(std::function<bool()> isAtWork) { m_isAtWork = std::move(isAtWork); }
    /// Starts watching; settled() or timedOut() follows once. \a isForPicture leaves web pages the time to
    /// draw.
    void start(int timeoutMs, bool isForPicture = true);

signals:
    void settled();
    void timedOut();

private:
    void look();

    QTimer m_poll;
    QElapsedTimer m_total;
    int m_quietLooks =
        0; ///< in a row; a clock would run on while a loaded machine leaves the program waiting
    int m_timeoutMs = 0;
    bool m_isForPicture = true;
    std::function<bool()> m_isAtWork;
};
