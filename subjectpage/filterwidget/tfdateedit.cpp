#include "tfdateedit.h"

#include "tffilterdefaults.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextCharFormat>

namespace {
/// Makes its calendar when it is pressed, no earlier: that takes longer than the rest of a filter bar.
class DateEditor : public QDateEdit
{
public:
    using QDateEdit::QDateEdit;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        // The red that a calendar gives its weekends can't be read on a dark ground.
        calendarWidget()->setWeekdayTextFormat(Qt::Saturday, QTextCharFormat());
        calendarWidget()->setWeekdayTextFormat(Qt::Sunday, QTextCharFormat());
        QDateEdit::mousePressEvent(event);
    }
};
} // namespace

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
    auto *edit = new DateEditor(parent);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    return edit;
}

FilterParam::Cntrl TFDateEdit::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    cntrl.value =
        QDateTime(m_edit->date(), QTime(23, 59, 59)).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return cntrl;
}
