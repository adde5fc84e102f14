#include "tfframesubjectzhp.h"

#include "records/tfcategories.h"
#include "tfcore/tfcore.h"
#include "tfcore/tffactory.h"
#include "tfframesubjectzhpsettings.h"
#include "tfframesubjectzhpstate.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMetaMethod>

#include <algorithm>

namespace {
constexpr char cacheProperty[] = "cacheVisibleArgs";
constexpr int margin = 10;

template <typename Component> QWidget *makeComponent(QWidget *parent)
{
    return new Component(parent);
}
} // namespace

TFFrameSubjectZHP::TFFrameSubjectZHP(QWidget *parent, const QString &list)
    : QFrame(parent)
    , m_page(new TFRightContainer(this))
{
    if (parent) {
        m_screen = parent->property("zhpObj").value<QObject *>();
        qCDebug(lcScreen) << "TFFrameSubjectZHP::TFFrameSubjectZHP mZhpObj:" << m_screen.data();
        connectScreen();
    }
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_page);
    addSettingsAction(list);
    connect(m_page, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    connect(m_page, &TFRightContainer::signalDataChanged, this, &TFFrameSubjectZHP::applyCachedVisibility);
    TFCore::instance()->addStyle2View(this, QStringLiteral("subject/subject.css"));
}

TFFrameSubjectZHP::~TFFrameSubjectZHP() = default;

void TFFrameSubjectZHP::registerComponents()
{
    auto &constructors = TFFactory<QWidget>::constructors();
    constructors.insert("TFFrameSubjectZHP", makeComponent<TFFrameSubjectZHP>);
    constructors.insert("TFFrameSubjectZHP_CQ", makeComponent<TFFrameSubjectZHP_CQ>);
    constructors.insert("TFFrameSubjectZHP_ZZ", makeComponent<TFFrameSubjectZHP_ZZ>);
}

void TFFrameSubjectZHP::unregisterComponents()
{
    auto &constructors = TFFactory<QWidget>::constructors();
    for (const char *name : {"TFFrameSubjectZHP", "TFFrameSubjectZHP_CQ", "TFFrameSubjectZHP_ZZ"})
        constructors.remove(name);
}

void TFFrameSubjectZHP::connectScreen()
{
    if (!m_screen)
        return;
    const QMetaObject *meta = m_screen->metaObject();
    const int changed = meta->indexOfSignal("argsChanged(QVariantMap)");
    if (changed < 0) {
        qCWarning(lcScreen) << "the screen's object" << meta->className()
                            << "has no signal argsChanged(QVariantMap); global arguments are read once";
        return;
    }
    const int slot = staticMetaObject.indexOfSlot("slotsArgsChanged(QVariantMap)");
    connect(m_screen, meta->method(changed), this, staticMetaObject.method(slot));
}

void TFFrameSubjectZHP::addSettingsAction(const QString &list)
{
    auto *action = new QAction(QStringLiteral("设置"), this);
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+p")));
    // Several components stand on one screen; the one with the focus is meant.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    addAction(action);
    connect(action, &QAction::triggered, this, [this, list] { TFFrameSettings::open(this, list); });
}

void TFFrameSubjectZHP::applySkinStyle(const QVariant &style)
{
    if (style.isValid())
        setStyleSheet(style.toString());
}

void TFFrameSubjectZHP::setObjVwId(qlonglong id)
{
    if (id >= 1 && id != m_objVwId)
        m_objVwId = id;
}

void TFFrameSubjectZHP::setTitle(const QString &title)
{
    m_title = title;
    m_page->setTitle(title);
}

void TFFrameSubjectZHP::refreshPage()
{
    m_page->refreshPage(m_objVwId, m_title);
}

void TFFrameSubjectZHP::chooseView(qlonglong id)
{
    if (id == m_objVwId)
        return;
    setObjVwId(id);
    m_filterMap.clear();
    refreshPage();
}

QVariantMap TFFrameSubjectZHP::screenArguments() const
{
    return m_screen ? m_screen->property("args").toMap() : QVariantMap();
}

QVariantMap TFFrameSubjectZHP::glFilterArgs() const
{
    QVariantMap merged = screenArguments();
    for (auto own = m_filterMap.begin(); own != m_filterMap.end(); ++own)
        merged.insert(own.key(), own.value());
    return merged;
}

void TFFrameSubjectZHP::setGlFilterArgs(const QVariantMap &arguments)
{
    if (m_filterMap == arguments)
        return;
    m_filterMap = arguments;
    qCDebug(lcScreen) << "refresh page with gl filter args";
    refreshPage();
}

void TFFrameSubjectZHP::setObjVwIdGlKey(const QString &key)
{
    qCDebug(lcScreen) << "binding objVmIdAndTitle to global arg,global name -->" << key;
    if (key.isEmpty() || key == m_binderKey) {
        qCDebug(lcScreen) << "binding failed: no key, or the present one";
        return;
    }
    qCDebug(lcScreen) << "binding sucessed!";
    m_binderKey = key;
    slotsArgsChanged(screenArguments());
}

void TFFrameSubjectZHP::slotsArgsChanged(const QVariantMap &glArgs)
{
    qCDebug(lcScreen) << "global args changed" << glArgs << " binderKey:" << m_binderKey;
    if (!m_binderKey.isEmpty() && glArgs.contains(m_binderKey))
        followBinder(glArgs.value(m_binderKey).toString());
    const QStringList keys = glArgs.keys();
    const bool isAnyNotOurs = std::any_of(keys.begin(), keys.end(),
                                          [this](const QString &key) { return !m_filterMap.contains(key); });
    if (isAnyNotOurs)
        refreshPage();
}

void TFFrameSubjectZHP::followBinder(const QString &value)
{
    qCDebug(lcScreen) << "TFFrameSubjectZHP::slotsArgsChanged:" << m_binderKey << "=" << value;
    const QStringList parts = value.split(QLatin1Char('|'));
    if (parts.size() != 2)
        return;
    m_title = parts.first();
    const qlonglong id = parts.last().toLongLong();
    if (id == m_objVwId)
        return;
    setObjVwId(id);
    refreshPage();
}

TFFrameState TFFrameSubjectZHP::state() const
{
    TFFrameState state;
    // Bars that are not there have no state but the one that they are to get.
    const bool arePending = m_isVisibilityPending || !m_page->mainView()->hasBars();
    state.titleVisible = m_page->isTitleVisible();
    state.mainViewVisible = m_page->isMainViewVisible();
    state.subViewVisible = m_isVisibilityPending ? isCachedVisible(TFFrameState::SubViewVisible)
                                                 : m_page->areChildViewsVisible();
    state.filterVisible =
        arePending ? isCachedVisible(TFFrameState::FilterVisible) : m_page->mainView()->isFilterBarVisible();
    state.pageBarVisible =
        arePending ? isCachedVisible(TFFrameState::PageBarVisible) : m_page->mainView()->isPageBarVisible();
    state.objVwId = m_objVwId;
    state.title = m_title;
    state.binderKey = m_binderKey;
    state.filterMap = m_filterMap;
    return state;
}

void TFFrameSubjectZHP::save(QMap<QString, QVariant> &map)
{
    state().write(map);
    qCDebug(lcScreen) << "TFFrameSubjectZHP::save:" << map;
}

void TFFrameSubjectZHP::restore(const QMap<QString, QVariant> &map)
{
    qCDebug(lcScreen) << "TFFrameSubjectZHP::restore:" << map;
    const TFFrameState state = TFFrameState::read(map);
    m_title = state.title;
    setObjVwId(state.objVwId);
    setObjVwIdGlKey(state.binderKey);
    m_page->setTitle(m_title);
    m_page->setTitleVisible(state.titleVisible);
    m_page->setMainViewVisible(state.mainViewVisible);
    setProperty(cacheProperty, map);
    m_isVisibilityPending = true;
    if (state.hasFilterMap())
        m_filterMap = state.filterMap;
    refreshPage();
}

void TFFrameSubjectZHP::keepVisible(QLatin1String key, bool visible)
{
    QVariantMap cached = property(cacheProperty).toMap();
    cached.insert(key, visible);
    setProperty(cacheProperty, cached);
}

bool TFFrameSubjectZHP::isCachedVisible(QLatin1String key) const
{
    return property(cacheProperty).toMap().value(key).toBool();
}

void TFFrameSubjectZHP::applyCachedVisibility()
{
    m_isVisibilityPending = false;
    m_page->mainView()->setPageBarVisible(isCachedVisible(TFFrameState::PageBarVisible));
    m_page->setChildViewsVisible(isCachedVisible(TFFrameState::SubViewVisible));
    m_page->mainView()->setFilterBarVisible(isCachedVisible(TFFrameState::FilterVisible));
}

TFFrameSubjectZHP_CQ::TFFrameSubjectZHP_CQ(QWidget *parent)
    : TFFrameSubjectZHP(parent, QStringLiteral("专题-船期:2114000074"))
{}

TFFrameSubjectZHP_ZZ::TFFrameSubjectZHP_ZZ(QWidget *parent)
    : TFFrameSubjectZHP(parent, QStringLiteral("专题-装置:2"))
{}
