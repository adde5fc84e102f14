#include "look.h"

#include "terminallog.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfskinpalette.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
#include <QSvgRenderer>

#include <memory>
#include <set>

namespace {
constexpr int FontPixels = 12;
constexpr int IconPixels = 16;
const char BaseStyle[] = "Fusion";
const char SheetFile[] = "terminal.css";
const char InkInIcons[] = "#000000";

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A TrueType font with Chinese characters: one with CFF outlines takes three times as long to paint.
QFont terminalFont()
{
    static const char *const families[] = {"WenQuanYi Micro Hei", "WenQuanYi Zen Hei", "Microsoft YaHei",
                                           "PingFang SC", "Droid Sans Fallback"};
    const QStringList present = QFontDatabase().families();
    QFont font = QApplication::font();
    for (const char *family : families) {
        if (present.contains(family)) {
            font.setFamily(family);
            break;
        }
    }
    font.setPixelSize(FontPixels);
    font.setStyleHint(QFont::SansSerif);
    return font;
}

QPixmap drawn(const QByteArray &svg, const QColor &ink, qreal scale)
{
    QByteArray tinted = svg;
    QSvgRenderer renderer(tinted.replace(InkInIcons, ink.name().toUtf8()));
    QPixmap pixmap(QSize(IconPixels, IconPixels) * scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}
} // namespace

Look::Look(QObject *parent)
    : QObject(parent)
{}

void Look::prepare(QApplication *application)
{
    application->setStyle(QStyleFactory::create(BaseStyle));
    application->setFont(terminalFont());
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &Look::apply);
}

bool Look::setSkin(const QString &skin)
{
    TFCore *core = TFCore::instance();
    const QStringList skins = core->skins();
    if (skins.isEmpty()) {
        qCWarning(lcTerminal) << "no skin was found";
        return false;
    }
    if (!skins.contains(skin))
        qCWarning(lcTerminal).noquote() << "unknown skin:" << skin << "- there are:" << skins.join(", ");
    return core->setCurrentSkin(skins.contains(skin) ? skin : skins.last());
}

void Look::apply()
{
    const TFCore *core = TFCore::instance();
    const std::unique_ptr<QStyle> base(QStyleFactory::create(BaseStyle));
    QApplication::setPalette(TFSkinPalette::current(base->standardPalette()));
    qApp->setStyleSheet(core->styleSheet(SheetFile));
}

QIcon Look::icon(const QString &name)
{
    const QByteArray svg = contents(":/terminal/icons/" + name + ".svg");
    const QPalette palette = QApplication::palette();
    QIcon icon;
    std::set<qreal> scales{1.0};
    for (const QScreen *screen : QGuiApplication::screens())
        scales.insert(screen->devicePixelRatio());
    for (qreal scale : scales) {
        icon.addPixmap(drawn(svg, palette.color(QPalette::Active, QPalette::ButtonText), scale));
        icon.addPixmap(drawn(svg, palette.color(QPalette::Disabled, QPalette::ButtonText), scale),
                       QIcon::Disabled);
    }
    return icon;
}
