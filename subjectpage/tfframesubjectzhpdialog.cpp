#include "tfframesubjectzhpdialog.h"

#include <QPushButton>
#include <QScreen>
#include <QWindow>

namespace {
constexpr QSize dialogSize(507, 482);
constexpr int dragHeight = 30;
} // namespace

TFFrameDialog::TFFrameDialog(QObject *content)
{
    initContentWithWidget(content);
    setWidgetMovable(true, dragHeight);
    setWidgetResizable(true);
    applyShadow();
    setModal(true);
    resize(dialogSize);
    connectButtons();
    if (auto *widget = qobject_cast<QWidget *>(content))
        setWindowTitle(widget->windowTitle());
}

void TFFrameDialog::connectButtons()
{
    for (const char *name : {"pbClose", "pbCancel"}) {
        if (auto *button = CommonTemplate::get<QPushButton>(this, QLatin1String(name)))
            connect(button, &QPushButton::clicked, this, &QDialog::reject);
    }
    if (auto *button = CommonTemplate::get<QPushButton>(this, QStringLiteral("pbOk")))
        connect(button, &QPushButton::clicked, this, &QDialog::accept);
}

void TFFrameDialog::standOver(const QWidget *opener)
{
    const QRect available = opener->screen()->availableGeometry();
    move(available.x() + qRound((available.width() - width()) / 2.0),
         available.y() + qRound((available.height() - height()) / 2.0));
    winId(); // makes the native window, which is told whose dialog it is
    windowHandle()->setTransientParent(opener->window()->windowHandle());
    connect(opener, &QObject::destroyed, this, &QDialog::reject);
}
