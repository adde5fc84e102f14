#include "tfdateedit.h"

#include "tffilterdefaults.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextCharFormat>

TFDateEdit::TFDateEdit(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_edit(makeEditor(this))
{
    QHBoxLayout *layout = makeLayout(6);
    QLabel *label = makeLabel();
    label->setBuddy(m_edit);
    layout->addWidget(label);
    showCaption();
    layout->addWidget(m_edit);
    const QDate date = TFFilterDefaults::literalDate(row.DefualtValue);
    if (date.isValid())
        m_edit->setDate(date);
}

QDateEdit *TFDateEdit::makeEditor(QWidget *parent)
{
    auto *edit = new QDateEdit(parent);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    // The red that a calendar gives its weekends can't be read on a dark ground.
    edit->calendarWidget()->setWeekdayTextFormat(Qt::Saturday, QTextCharFormat());
    edit->calendarWidget()->setWeekdayTextFormat(Qt::Sunday, QTextCharFormat());
    return edit;
}

FilterParam::Cntrl TFDateEdit::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    cntrl.value =
        QDateTime(m_edit->date(), QTime(23, 59, 59)).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return cntrl;
}
