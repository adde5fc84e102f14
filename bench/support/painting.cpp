#include "painting.h"

#include "comparison.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QStandardItemModel>
#include <QTableView>
#include <QWidget>

#include <memory>

namespace {
constexpr int kPatience = 60000;

/// Sees the first paint event of a widget or of one inside it; it is painted when the event loop comes back.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget)
        : m_widget(widget)
    {
        qApp->installEventFilter(this);
    }

    bool isPainted() const { return m_isPainted; }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && (watched == m_widget || isInside(watched)))
            m_isPainted = true;
        return false;
    }

private:
    bool isInside(QObject *watched) const
    {
        auto *widget = qobject_cast<QWidget *>(watched);
        return widget && m_widget->isAncestorOf(widget);
    }

    QWidget *m_widget;
    bool m_isPainted = false;
};
} // namespace

void Bench::prepareToolkit()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

void Bench::waitForPaint(QWidget *widget)
{
    PaintWatch watch(widget);
    QElapsedTimer clock;
    clock.start();
    while (!watch.isPainted()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        if (clock.elapsed() > kPatience)
            qFatal("nothing was painted");
    }
}

double Bench::emptyTableTime(const QSize &size, int columns)
{
    QStandardItemModel model(0, columns);
    std::unique_ptr<QTableView> view;
    return milliseconds([&] {
        view = std::make_unique<QTableView>();
        view->setModel(&model);
        view->resize(size);
        view->show();
        waitForPaint(view->viewport());
    });
}
