#include "tfdatetimeinterval.h"

#include "expression/tfcustommath.h"
#include "records/tfclock.h"
#include "tfdateedit.h"
#include "tffilterdefaults.h"

#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>

TFDatetimeInterval::TFDatetimeInterval(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_start(TFDateEdit::makeEditor(this))
    , m_end(TFDateEdit::makeEditor(this))
    , m_functions(TFCustomMath::instance())
{
    QHBoxLayout *layout = makeLayout(2);
    QLabel *label = makeLabel(2);
    label->setBuddy(m_start);
    layout->addWidget(label);
    showCaption();
    layout->addWidget(m_start);
    layout->addWidget(makeDash(QStringLiteral("一")));
    layout->addWidget(m_end);
    applyDefault();
    m_end->setMinimumDate(m_start->date());
    connect(m_start, &QDateEdit::dateChanged, m_end, &QDateEdit::setMinimumDate);
}

void TFDatetimeInterval::applyDefault()
{
    const QStringList parts =
        TFFilterDefaults::withoutEquals(row().DefualtValue).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (parts.size() < 2) {
        const QDate today = TFClock::now().date();
        m_start->setDate(today);
        m_end->setDate(today);
        return;
    }
    const QDate start = QDate::fromString(resolved(parts.at(0)), QStringLiteral("yyyy-MM-dd"));
    const QDate end = QDate::fromString(resolved(parts.at(1)), QStringLiteral("yyyy-MM-dd"));
    if (start.isValid())
        m_start->setDate(start);
    if (end.isValid())
        m_end->setDate(end);
}

QString TFDatetimeInterval::resolved(QString part) const
{
    if (part.contains(QLatin1String("date"))) {
        part.remove(QLatin1String("date'"));
        part.chop(1);
        return part;
    }
    QString function;
    QList<QVariant> arguments;
    QVariant result;
    if (TFFilterDefaults::readCall(part, &function, &arguments) &&
        m_functions->callFunction(function, arguments, result) && result.isValid())
        return result.toString();
    return part;
}

FilterParam::Cntrl TFDatetimeInterval::getCntrl() const
{
    const QString format = QStringLiteral("yyyy-MM-dd hh:mm:ss");
    FilterParam::Cntrl cntrl = described();
    cntrl.value = QStringLiteral("%1,%2").arg(QDateTime(m_start->date(), QTime(0, 0)).toString(format),
                                              QDateTime(m_end->date(), QTime(23, 59, 59)).toString(format));
    cntrl.op = QStringLiteral(">=,<=");
    cntrl.multiField = true;
    return cntrl;
}
