#include "screenbar.h"

#include "argumentfields.h"
#include "componentcatalog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QTime>
#include <QToolButton>

namespace {
template <typename Button> Button *makeButton(const char *name)
{
    auto *button = new Button;
    button->setObjectName(name);
    // The keyboard stays with the component that has it.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}
} // namespace

ScreenBar::ScreenBar(const ComponentCatalog *catalog, QWidget *parent)
    : QFrame(parent)
    , m_catalog(catalog)
    , m_name(new QLabel)
    , m_add(makeButton<QToolButton>("AddComponent"))
    , m_arguments(makeButton<QPushButton>("EditArguments"))
    , m_fields(new ArgumentFields)
    , m_state(new QLabel)
    , m_save(makeButton<QPushButton>("SaveScreen"))
{
    setObjectName("ScreenBar");
    m_name->setObjectName("ScreenName");
    m_name->setTextFormat(Qt::PlainText);
    m_state->setObjectName("SaveState");
    auto *menu = new QMenu(m_add);
    m_add->setMenu(menu);
    m_add->setPopupMode(QToolButton::InstantPopup);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        m_catalog->fill(menu, [this](const QByteArray &name) { emit addRequested(name); });
    });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 3, 8, 3);
    layout->setSpacing(8);
    layout->addWidget(m_name);
    layout->addSpacing(4);
    layout->addWidget(m_add);
    layout->addWidget(m_arguments);
    layout->addSpacing(8);
    layout->addWidget(m_fields, 1);
    layout->addWidget(m_state);
    layout->addWidget(m_save);
    connect(m_arguments, &QPushButton::clicked, this, &ScreenBar::argumentsRequested);
    connect(m_fields, &ArgumentFields::entered, this, &ScreenBar::argumentEntered);
    connect(m_save, &QPushButton::clicked, this, &ScreenBar::saveRequested);
    retranslate();
}

void ScreenBar::setName(const QString &name)
{
    m_name->setText(name);
}

void ScreenBar::setArguments(const QVariantMap &values)
{
    m_fields->setValues(values);
}

void ScreenBar::showSaved(const QString &fault)
{
    const QString time = QLocale().toString(QTime::currentTime(), "HH:mm");
    showState(fault.isEmpty() ? tr("Saved at %1").arg(time) : tr("Not saved"), fault, !fault.isEmpty());
}

void ScreenBar::showUnsaved()
{
    showState(tr("Changed"), QString(), false);
}

void ScreenBar::showState(const QString &text, const QString &detail, bool isFault)
{
    m_state->setText(text);
    m_state->setToolTip(detail);
    m_state->setProperty("fault", isFault);
    m_state->style()->unpolish(m_state);
    m_state->style()->polish(m_state);
}

void ScreenBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void ScreenBar::retranslate()
{
    m_add->setText(tr("Add component"));
    m_arguments->setText(tr("Global arguments..."));
    m_save->setText(tr("Save"));
    m_state->clear();
}
