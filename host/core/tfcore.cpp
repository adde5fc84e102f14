#include "tfcore/tfcore.h"

#include "tfcorelog.h"
#include "tfstylesheet.h"

#include <QDir>
#include <QSettings>

#include <algorithm>
#include <vector>

namespace {
/// One style sheet of one view; the view is alive as long as its widget is.
struct StyledView
{
    QPointer<QWidget> widget;
    ITFSkin *view;
    QString fileName;
};
} // namespace

struct TFCore::Private
{
    QString skinRoot;
    QString skinId = "white";
    QStringList configFolders;
    QPointer<QMainWindow> mainWindow;
    std::vector<StyledView> styledViews;

    QString skinFolder() const { return skinRoot.isEmpty() ? QString() : skinRoot + '/' + skinId; }
    QString styleSheet(const QString &fileName) const;
    void forgetDeadViews();
};

QString TFCore::Private::styleSheet(const QString &fileName) const
{
    if (skinRoot.isEmpty())
        return QString("");
    const QString path = skinFolder() + '/' + fileName;
    const QString sheet = TFStyleSheet::read(path, skinFolder());
    if (sheet.isNull())
        qCWarning(lcCore).noquote() << "style sheet cannot be read:" << path;
    return sheet.isNull() ? QString("") : sheet;
}

void TFCore::Private::forgetDeadViews()
{
    const auto dead = [](const StyledView &styled) { return styled.widget.isNull(); };
    styledViews.erase(std::remove_if(styledViews.begin(), styledViews.end(), dead), styledViews.end());
}

TFCore::TFCore()
    : d(std::make_unique<Private>())
{}

TFCore::~TFCore() = default;

TFCore *TFCore::instance()
{
    static TFCore core;
    return &core;
}

void TFCore::addStyle2View(ITFSkin *view, const QString &fileName)
{
    if (!view || !view->object())
        return;
    d->forgetDeadViews();
    const StyledView added{view->object(), view, fileName};
    const bool known =
        std::any_of(d->styledViews.begin(), d->styledViews.end(), [&](const StyledView &styled) {
            return styled.widget == added.widget && styled.fileName == fileName;
        });
    if (!known)
        d->styledViews.push_back(added);
    view->applySkinStyle(d->styleSheet(fileName));
}

QString TFCore::getCurrentSkinPath(const QString &fileName) const
{
    return d->skinFolder() + '/' + fileName;
}

QString TFCore::getCurrentSkinId() const
{
    return d->skinId;
}

QMainWindow *TFCore::mainWindow() const
{
    return d->mainWindow;
}

QVariant TFCore::value(const QString &key, const QVariant &defaultValue) const
{
    const int colon = key.indexOf(':');
    if (colon <= 0)
        return defaultValue;
    for (const QString &folder : qAsConst(d->configFolders)) {
        const QString path = folder + '/' + key.left(colon);
        if (!QFile::exists(path))
            continue;
        QSettings settings(path, QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        const QVariant found = settings.value(key.mid(colon + 1));
        // The toolkit splits every unquoted text at its commas.
        if (found.type() == QVariant::StringList)
            return found.toStringList().join(',');
        if (found.isValid())
            return found;
    }
    return defaultValue;
}

void TFCore::setSkinRoot(const QString &folder)
{
    d->skinRoot = folder.isEmpty() ? QString() : QDir(folder).absolutePath();
}

void TFCore::setConfigFolders(const QStringList &folders)
{
    d->configFolders = folders;
}

QString TFCore::configFolder() const
{
    return d->configFolders.value(0);
}

QStringList TFCore::skins() const
{
    if (d->skinRoot.isEmpty())
        return {};
    return QDir(d->skinRoot).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

bool TFCore::setCurrentSkin(const QString &skinId)
{
    if (!skins().contains(skinId)) {
        qCWarning(lcCore).noquote() << "unknown skin:" << skinId << "in" << d->skinRoot;
        return false;
    }
    d->skinId = skinId;
    d->forgetDeadViews();
    // A copy: a view that gets its sheet may make or delete others.
    const std::vector<StyledView> views = d->styledViews;
    for (const StyledView &styled : views) {
        if (styled.widget)
            styled.view->applySkinStyle(d->styleSheet(styled.fileName));
    }
    emit signalSkinChanged(skinId);
    return true;
}

QString TFCore::styleSheet(const QString &fileName) const
{
    return d->styleSheet(fileName);
}

void TFCore::setMainWindow(QMainWindow *window)
{
    d->mainWindow = window;
}
