#include "tfloadingline.h"

#include <QEvent>
#include <QPainter>

namespace {
constexpr int kHeight = 2;
constexpr int kInterval = 40; ///< milliseconds
constexpr int kSteps = 40;    ///< of one way along the edge
constexpr int kPartOfWidth = 4;
} // namespace

TFLoadingLine::TFLoadingLine(QWidget *view)
    : QWidget(view)
{
    setObjectName(QStringLiteral("loadingLine"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setForegroundRole(QPalette::Highlight);
    m_timer.setInterval(kInterval);
    connect(&m_timer, &QTimer::timeout, this, &TFLoadingLine::advance);
    view->installEventFilter(this);
    hide();
}

TFLoadingLine::~TFLoadingLine() = default;

void TFLoadingLine::start()
{
    setGeometry(0, 0, parentWidget()->width(), kHeight);
    m_step = 0;
    m_timer.start();
    raise();
    show();
}

void TFLoadingLine::stop()
{
    m_timer.stop();
    hide();
}

void TFLoadingLine::advance()
{
    m_step = (m_step + 1) % kSteps;
    update();
}

void TFLoadingLine::paintEvent(QPaintEvent *)
{
    const int length = width() / kPartOfWidth;
    const int left = (width() + length) * m_step / kSteps - length;
    QPainter(this).fillRect(left, 0, length, height(), palette().color(foregroundRole()));
}

bool TFLoadingLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        resize(parentWidget()->width(), kHeight);
    return QWidget::eventFilter(watched, event);
}
