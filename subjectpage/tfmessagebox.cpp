#include "tfmessagebox.h"

#include "records/tfcategories.h"
#include "tfcore/tfadwidget.h"

#include <QCursor>
#include <QDialog>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QUiLoader>

namespace {

constexpr QSize boxSize(300, 200);
constexpr int titleHeight = 30;

} // namespace

/// The library is linked statically, so nothing else pulls its resources in. Outside any namespace, as the
/// macro demands.
static void initResources()
{
    Q_INIT_RESOURCE(messagebox);
}

namespace {

QWidget *loadContent()
{
    initResources();
    QUiLoader loader;
    QFile file(QStringLiteral(":/messagebox.ui"));
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcPage).nospace().noquote() << "failed open failed:" << file.errorString();
        return nullptr;
    }
    QWidget *content = loader.load(&file);
    if (!content)
        qCWarning(lcPage).nospace().noquote() << "failed open failed:" << loader.errorString();
    return content;
}

void fillContent(QDialog *dialog, const QString &title, const QString &text)
{
    if (auto *label = CommonTemplate::get<QLabel>(dialog, QStringLiteral("lbTitle")))
        label->setText(title);
    if (auto *browser = CommonTemplate::get<QTextBrowser>(dialog, QStringLiteral("tbMsg")))
        browser->append(text);
    if (auto *button = CommonTemplate::get<QPushButton>(dialog, QStringLiteral("pbMsgClose")))
        QObject::connect(button, &QPushButton::clicked, dialog, &QDialog::close, Qt::DirectConnection);
}

QPoint positionAtCursor()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QPoint position = QCursor::pos();
    if (position.x() + boxSize.width() > available.width())
        position.rx() -= boxSize.width();
    if (position.y() + boxSize.height() > available.height())
        position.ry() -= boxSize.height();
    return position;
}

} // namespace

void TFMessageBox::showMsg(const QString &title, const QString &text)
{
    TFAdWidget<QDialog> dialog;
    QWidget *content = loadContent();
    if (!content)
        return;

    dialog.initContentWithWidget(content);
    dialog.setWidgetMovable(true, titleHeight);
    dialog.setBlurRadius(0);
    dialog.setShadowMargin(1);
    dialog.setShadowStyle(QStringLiteral("background-color:#cccccc;border:none;border-radius: 0px;"));
    dialog.applyShadow();
    fillContent(&dialog, title, text);
    dialog.resize(boxSize);
    dialog.setWidgetResizable(false);
    dialog.move(positionAtCursor());
    dialog.exec();
}
