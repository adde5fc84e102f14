#include "tfmultiyear.h"

#include "expression/tfcustommath.h"
#include "tffilterdefaults.h"
#include "tfmenubutton.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QRegExp>

#include <algorithm>

namespace {
constexpr int FirstYear = 1999;
constexpr int ButtonWidth = 100;

/// The bound of a range of years that a part of the list gives: a date in it, or the result of a call.
bool readBound(const QString &part, QString *bound)
{
    QRegExp date(QStringLiteral("=.*(\\d+-\\d+-\\d+).*"));
    if (date.indexIn(part) >= 0) {
        *bound = date.cap(1);
        return true;
    }
    QRegExp call(QStringLiteral("([\\w,\\d]+)\\((-?\\d+)\\)"));
    if (call.indexIn(part) < 0)
        return false;
    QList<QVariant> arguments;
    if (!call.cap(2).isEmpty())
        arguments.append(call.cap(2));
    QVariant result;
    if (!TFCustomMath::instance()->callFunction(call.cap(1), arguments, result) || !result.isValid())
        return false;
    *bound = result.toString();
    return true;
}

QStringList yearsBetween(const QStringList &bounds)
{
    QList<QVariant> arguments;
    for (const QString &bound : bounds)
        arguments.append(QStringLiteral("date'%1'").arg(bound));
    QVariant years;
    TFCustomMath::instance()->callFunction(QStringLiteral("getYearsBetrweemDate"), arguments, years);
    return years.toString().split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString withoutSuffix(QString text)
{
    return text.remove(TFFilterDefaults::yearSuffix());
}
} // namespace

TFMultiYear::TFMultiYear(const TFTableModelData::FilterData &row, Choice choice, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_button(new TFMenuButton(this))
    , m_many(choice == Choice::Many)
{
    m_button->setFixedWidth(ButtonWidth);
    QLabel *label = makeLabel();
    label->setBuddy(m_button);
    QHBoxLayout *layout = makeLayout(6);
    layout->addWidget(label);
    layout->addWidget(m_button);
    fill();
    selectDefault();
}

void TFMultiYear::addYear(int index, const QString &text)
{
    QAction *action = m_button->menu()->addAction(text);
    action->setData(index);
    m_texts.insert(index, text);
    if (m_many) {
        action->setCheckable(true);
        connect(action, &QAction::toggled, this, &TFMultiYear::slotActionCheckStatusChanged);
    } else {
        connect(action, &QAction::triggered, this, &TFMultiYear::slotActionClickStatusChanged);
    }
}

void TFMultiYear::fill()
{
    if (!row().NameValues.isEmpty() && fillFromNameValues())
        return;
    int index = 0;
    for (const QString &year : TFFilterDefaults::yearsDownTo(FirstYear))
        addYear(index++, year);
}

bool TFMultiYear::fillFromNameValues()
{
    const QStringList parts = row().NameValues.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    QStringList bounds;
    bool onlyPairs = true;
    for (int index = 0; index < parts.size(); ++index) {
        const QStringList pieces = parts.at(index).split(QLatin1Char('='), Qt::SkipEmptyParts);
        if (pieces.size() == 2) {
            addYear(index, pieces.at(0));
            continue;
        }
        onlyPairs = false;
        QString bound;
        if (readBound(parts.at(index), &bound))
            bounds.append(bound);
    }
    if (onlyPairs)
        return true;
    if (bounds.size() != 2)
        return false;
    QStringList years = yearsBetween(bounds);
    std::reverse(years.begin(), years.end());
    for (int index = 0; index < years.size(); ++index)
        addYear(index, years.at(index));
    return true;
}

void TFMultiYear::selectDefault()
{
    showCaption();
    if (m_texts.isEmpty())
        return;
    QString text = TFFilterDefaults::withoutEquals(row().DefualtValue).left(4);
    if (row().DefualtValue.isEmpty())
        text = withoutSuffix(m_texts.first());
    text += TFFilterDefaults::yearSuffix();
    m_button->setText(text);
    if (!m_many)
        return;
    const int index = m_texts.key(text, -1);
    for (QAction *action : m_button->menu()->actions()) {
        if (action->data().toInt() == index)
            action->setChecked(true);
    }
    rebuildText();
}

void TFMultiYear::rebuildText()
{
    m_button->setText(chosenTexts().join(QLatin1Char(';')));
    m_button->setToolTip(m_button->text());
    markChange();
}

QStringList TFMultiYear::chosenTexts() const
{
    QStringList texts;
    for (int index : m_chosen)
        texts.append(m_texts.value(index));
    return texts;
}

void TFMultiYear::slotActionCheckStatusChanged(bool checked)
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;
    const int index = action->data().toInt();
    if (!checked)
        m_chosen.removeAll(index);
    else if (!m_chosen.contains(index))
        m_chosen.append(index);
    rebuildText();
    m_button->reopenMenu();
}

void TFMultiYear::slotActionClickStatusChanged(bool)
{
    if (const auto *action = qobject_cast<QAction *>(sender()))
        m_button->setText(action->text());
    markChange();
}

FilterParam::Cntrl TFMultiYear::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    if (!m_many) {
        cntrl.value = withoutSuffix(m_button->text());
        return cntrl;
    }
    QStringList years;
    for (const QString &text : chosenTexts())
        years.append(withoutSuffix(text));
    cntrl.value = years;
    cntrl.op = QStringLiteral("in");
    cntrl.valueType = QStringLiteral("stringList");
    return cntrl;
}
