// A plug-in that tells when the terminal painted last: loaded with --plugin-path, it writes the time to
// standard output when the terminal ends, in nanoseconds of the steady clock.

#include "tfcore/iplugin.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>

#include <chrono>
#include <cstdio>

class PaintWatch : public IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TF_APP_PLUGIN_IID FILE "paintwatch.json")

public:
    bool initialize(const QStringList &, QString *) override
    {
        QApplication::setCursorFlashTime(0); // what blinks would be painted for ever
        qApp->installEventFilter(this);
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            if (m_isPainting)
                m_painted = std::chrono::steady_clock::now();
            m_isPainting = false;
        });
        return true;
    }

    void extensionsInitialized() override {}

    ShutdownFlag aboutToShutdown() override
    {
        std::printf("%lld\n", static_cast<long long>(m_painted.time_since_epoch().count()));
        std::fflush(stdout);
        return SynchronousShutdown;
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_isPainting = m_isPainting || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_isPainting = false;
    std::chrono::steady_clock::time_point m_painted;
};

#include "paintwatch.moc"
