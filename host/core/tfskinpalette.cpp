#include "tfcore/tfskinpalette.h"

#include "tfcore/tfcore.h"
#include "tfcorelog.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>

namespace {

const QString skinFile = QStringLiteral("skin.json");
const QString keyPalette = QStringLiteral("palette");
const QString keyDisabled = QStringLiteral("disabledPalette");

void setColors(QPalette *palette, QPalette::ColorGroup group, const QJsonObject &colors)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (auto it = colors.begin(); it != colors.end(); ++it) {
        bool known = false;
        const int role = roles.keyToValue(it.key().toLatin1().constData(), &known);
        const QColor color(it.value().toString());
        if (known && color.isValid())
            palette->setColor(group, QPalette::ColorRole(role), color);
        else
            qCWarning(lcCore).noquote()
                << "skin palette: no colour role and colour:" << it.key() << it.value();
    }
}

} // namespace

QPalette TFSkinPalette::current(const QPalette &base)
{
    QPalette palette = base;
    QFile file(TFCore::instance()->getCurrentSkinPath(skinFile));
    if (file.open(QIODevice::ReadOnly)) {
        const QJsonObject skin = QJsonDocument::fromJson(file.readAll()).object();
        setColors(&palette, QPalette::All, skin.value(keyPalette).toObject());
        setColors(&palette, QPalette::Disabled, skin.value(keyDisabled).toObject());
    }
    return palette;
}
