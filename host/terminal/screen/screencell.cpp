#include "screencell.h"

#include "cellstrip.h"
#include "componentcatalog.h"
#include "screenobject.h"
#include "terminallog.h"
#include "tfcore/itfmemory.h"
#include "tfcore/tffactory.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {
const char ScreenObjectProperty[] = "zhpObj";
const char Placeholder[] = "CellPlaceholder";
constexpr QSize SmallestCell(160, 80);
} // namespace

ScreenCell::ScreenCell(const ComponentCatalog *catalog, ScreenArguments *arguments,
                       const ScreenComponent &component, QWidget *parent)
    : QFrame(parent)
    , m_catalog(catalog)
    , m_component(component)
    , m_strip(new CellStrip(catalog))
    , m_widget(nullptr)
{
    setObjectName("ScreenCell");
    auto *screen = new ScreenObject(arguments, this);
    connect(screen, &ScreenObject::componentChanged, this, &ScreenCell::takeState);
    setProperty(ScreenObjectProperty, QVariant::fromValue<QObject *>(screen));
    setFocusPolicy(Qt::ClickFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_strip);
    m_widget = makeWidget();
    layout->addWidget(m_widget ? m_widget : makePlaceholder(), 1);
    connect(m_strip, &CellStrip::settingsRequested, this, &ScreenCell::openSettings);
    connect(m_strip, &CellStrip::addRequested, this, &ScreenCell::addRequested);
    connect(m_strip, &CellStrip::removeRequested, this, &ScreenCell::removeRequested);
    if (m_widget) {
        adoptActions();
        connect(m_widget, &QWidget::windowTitleChanged, this, &ScreenCell::retranslate);
        if (m_memory && !m_component.state.isEmpty())
            m_memory->restore(m_component.state);
    }
    m_strip->setSettingsEnabled(settingsAction() != nullptr);
    retranslate();
}

QWidget *ScreenCell::makeWidget()
{
    const auto constructor = TFFactory<QWidget>::constructors().value(m_component.className);
    QWidget *widget = constructor ? constructor(this) : nullptr;
    if (!widget)
        qCWarning(lcScreens).noquote() << "no plug-in offers the component" << m_component.className;
    m_memory = dynamic_cast<ITFMemory *>(widget);
    return widget;
}

QWidget *ScreenCell::makePlaceholder()
{
    auto *label = new QLabel(this);
    label->setObjectName(Placeholder);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

/// The same key may be there in every component: each answers in its own cell only.
void ScreenCell::adoptActions()
{
    for (QAction *action : m_widget->actions()) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
    }
}

void ScreenCell::takeState()
{
    if (!m_memory)
        return;
    m_component.state.clear();
    m_memory->save(m_component.state);
    emit componentChanged();
}

QString ScreenCell::title() const
{
    const QString own = m_widget ? m_widget->windowTitle() : QString();
    return own.isEmpty() ? m_catalog->caption(m_component.className) : own;
}

void ScreenCell::openSettings()
{
    setFocus(Qt::OtherFocusReason);
    if (QAction *action = settingsAction())
        action->trigger();
}

QAction *ScreenCell::settingsAction() const
{
    const QList<QAction *> actions = m_widget ? m_widget->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_P)))
            return action;
    }
    return actions.value(0);
}

QSize ScreenCell::minimumSizeHint() const
{
    return SmallestCell;
}

void ScreenCell::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void ScreenCell::mousePressEvent(QMouseEvent *event)
{
    setFocus(Qt::MouseFocusReason);
    QFrame::mousePressEvent(event);
}

void ScreenCell::retranslate()
{
    m_strip->setTitle(title());
    if (auto *placeholder = findChild<QLabel *>(Placeholder, Qt::FindDirectChildrenOnly))
        placeholder->setText(tr("No plug-in offers the component %1. Its settings are kept.")
                                 .arg(QString::fromUtf8(m_component.className)));
}
