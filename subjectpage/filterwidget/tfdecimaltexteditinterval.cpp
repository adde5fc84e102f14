#include "tfdecimaltexteditinterval.h"

#include "tffilterdefaults.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace {
constexpr int Limit = 10000;

int stepOf(const QString &controlParameters)
{
    const QStringList pieces = controlParameters.split(QLatin1Char('='));
    const int step = pieces.size() >= 2 ? pieces.at(1).toInt() : 1;
    return step == 0 ? 1 : step;
}
} // namespace

TFDecimalTextEditInterval::TFDecimalTextEditInterval(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_start(makeBox(stepOf(row.ControlParameters)))
    , m_end(makeBox(stepOf(row.ControlParameters)))
{
    QHBoxLayout *layout = makeLayout(2);
    QLabel *label = makeLabel(2);
    label->setBuddy(m_start);
    layout->addWidget(label);
    showCaption();
    layout->addWidget(m_start);
    layout->addWidget(makeDash(QStringLiteral("-")));
    layout->addWidget(m_end);
    const QStringList parts =
        TFFilterDefaults::withoutEquals(row.DefualtValue).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    m_start->setValue(parts.size() >= 2 ? parts.at(0).toInt() : 0);
    m_end->setValue(parts.size() >= 2 ? parts.at(1).toInt() : 0);
}

QSpinBox *TFDecimalTextEditInterval::makeBox(int step)
{
    auto *box = new QSpinBox(this);
    box->setRange(-Limit, Limit);
    box->setSingleStep(step);
    return box;
}

FilterParam::Cntrl TFDecimalTextEditInterval::getCntrl() const
{
    if (m_start->value() == 0 && m_end->value() == 0)
        return {};
    FilterParam::Cntrl cntrl = described();
    cntrl.value = QStringLiteral("%1,%2").arg(m_start->value()).arg(m_end->value());
    cntrl.op = QStringLiteral(">=,<=");
    cntrl.multiField = true;
    return cntrl;
}
