#include "tfcontrolparts.h"

#include <QAction>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>
#include <QWidgetAction>

#include <algorithm>
#include <iterator>

namespace {
const QString kDateFormat = QStringLiteral("yyyy-MM-dd");

/// The list that drops down from \a button in place of plain entries, or null.
QListWidget *listOf(const QToolButton *button)
{
    const QMenu *menu = button->menu();
    const QList<QAction *> actions = menu ? menu->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (auto *holder = qobject_cast<QWidgetAction *>(action))
            return qobject_cast<QListWidget *>(holder->defaultWidget());
    }
    return nullptr;
}

QStringList buttonEntries(const QToolButton *button, bool onlyChecked)
{
    QStringList entries;
    if (const QListWidget *list = listOf(button)) {
        for (int i = 0; i < list->count(); ++i) {
            if (!onlyChecked || list->item(i)->checkState() == Qt::Checked)
                entries.append(list->item(i)->text());
        }
        return entries;
    }
    const QList<QAction *> actions = button->menu() ? button->menu()->actions() : QList<QAction *>();
    for (const QAction *action : actions) {
        if (!onlyChecked || action->isChecked())
            entries.append(action->text());
    }
    return entries;
}

QString notAmong(const QString &text, const QStringList &entries)
{
    return entries.contains(text) ? QString()
                                  : QStringLiteral("\"%1\" is not one of: %2").arg(text, entries.join(", "));
}

QString numberRefusal(const QSpinBox *box, const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= box->minimum() && number <= box->maximum()
               ? QString()
               : QStringLiteral("\"%1\" is no whole number from %2 to %3")
                     .arg(text)
                     .arg(box->minimum())
                     .arg(box->maximum());
}

QString dateRefusal(const QString &text)
{
    return QDate::fromString(text, kDateFormat).isValid()
               ? QString()
               : QStringLiteral("\"%1\" is no date of the form 2001-12-31").arg(text);
}

void choose(QComboBox *box, const QString &text)
{
    const int index = box->findText(text);
    box->setCurrentIndex(index);
    emit box->activated(index);
    emit box->textActivated(text);
}

void trigger(const QToolButton *button, const QString &text)
{
    const QList<QAction *> actions = button->menu()->actions();
    const auto action = std::find_if(actions.begin(), actions.end(),
                                     [&text](const QAction *entry) { return entry->text() == text; });
    if (action != actions.end())
        (*action)->trigger();
}

/// The first entry stands for all.
void tickList(QListWidget *list, const QStringList &wanted)
{
    const bool wantsAll = list->count() > 0 && wanted.contains(list->item(0)->text());
    for (int i = 0; i < (wantsAll ? 1 : list->count()); ++i) {
        QListWidgetItem *item = list->item(i);
        if ((item->checkState() == Qt::Checked) != wanted.contains(item->text()))
            emit list->itemPressed(item);
    }
}

/// How the kinds of part are read and set; the first that fits a widget counts.
struct Kind
{
    bool (*fits)(const QWidget *);
    QString (*text)(const QWidget *);
    QString (*refusal)(const QWidget *, const QString &);
    void (*set)(QWidget *, const QString &);
};

template <typename Part> bool is(const QWidget *widget)
{
    return qobject_cast<const Part *>(widget);
}

template <typename Part> const Part *as(const QWidget *widget)
{
    return static_cast<const Part *>(widget);
}

const Kind Kinds[] = {
    {is<QComboBox>, [](const QWidget *w) { return as<QComboBox>(w)->currentText(); },
     [](const QWidget *w, const QString &text) { return notAmong(text, TFControlParts::entries(w)); },
     [](QWidget *w, const QString &text) { choose(static_cast<QComboBox *>(w), text); }},
    {is<QDateTimeEdit>, [](const QWidget *w) { return as<QDateTimeEdit>(w)->text(); },
     [](const QWidget *, const QString &text) { return dateRefusal(text); },
     [](QWidget *w, const QString &text) {
         static_cast<QDateTimeEdit *>(w)->setDate(QDate::fromString(text, kDateFormat));
     }},
    {is<QSpinBox>, [](const QWidget *w) { return as<QSpinBox>(w)->text(); },
     [](const QWidget *w, const QString &text) { return numberRefusal(as<QSpinBox>(w), text); },
     [](QWidget *w, const QString &text) { static_cast<QSpinBox *>(w)->setValue(text.toInt()); }},
    {is<QLineEdit>, [](const QWidget *w) { return as<QLineEdit>(w)->text(); },
     [](const QWidget *, const QString &) { return QString(); },
     [](QWidget *w, const QString &text) { static_cast<QLineEdit *>(w)->setText(text); }},
    {is<QToolButton>, [](const QWidget *w) { return as<QToolButton>(w)->text(); },
     [](const QWidget *w, const QString &text) { return notAmong(text, TFControlParts::entries(w)); },
     [](QWidget *w, const QString &text) { trigger(static_cast<QToolButton *>(w), text); }},
};

const Kind *kindOf(const QWidget *widget)
{
    const auto *kind = std::find_if(std::begin(Kinds), std::end(Kinds),
                                    [widget](const Kind &entry) { return entry.fits(widget); });
    return kind == std::end(Kinds) ? nullptr : kind;
}
} // namespace

namespace TFControlParts {

bool isPart(const QWidget *widget)
{
    return kindOf(widget);
}

QString text(const QWidget *part)
{
    return kindOf(part)->text(part);
}

QStringList entries(const QWidget *part)
{
    if (const auto *button = qobject_cast<const QToolButton *>(part))
        return buttonEntries(button, false);
    QStringList entries;
    const auto *box = qobject_cast<const QComboBox *>(part);
    for (int i = 0; box && i < box->count(); ++i)
        entries.append(box->itemText(i));
    return entries;
}

QStringList checked(const QWidget *part)
{
    const auto *button = qobject_cast<const QToolButton *>(part);
    return button ? buttonEntries(button, true) : QStringList();
}

QString refusal(const QWidget *part, const QString &text)
{
    return kindOf(part)->refusal(part, text);
}

void set(QWidget *part, const QString &text)
{
    kindOf(part)->set(part, text);
}

bool hasTicks(const QToolButton *button)
{
    if (listOf(button))
        return true;
    const QList<QAction *> actions = button->menu() ? button->menu()->actions() : QList<QAction *>();
    return !actions.isEmpty() && actions.first()->isCheckable();
}

void setTicks(QToolButton *button, const QStringList &wanted)
{
    // A control opens its list again after a tick unless it stands open.
    QMenu *menu = button->menu();
    menu->setAttribute(Qt::WA_DontShowOnScreen);
    menu->popup(button->mapToGlobal(button->rect().bottomLeft()));
    if (QListWidget *list = listOf(button)) {
        tickList(list, wanted);
    } else {
        for (QAction *action : menu->actions())
            action->setChecked(wanted.contains(action->text()));
    }
    menu->hide();
    menu->setAttribute(Qt::WA_DontShowOnScreen, false);
}

} // namespace TFControlParts
