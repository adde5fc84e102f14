#include "tflineedit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {
const QLatin1String KeywordsKey("keywords");
}

TFLineEdit::TFLineEdit(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_edit(new QLineEdit(row.DefualtValue, this))
{
    QHBoxLayout *layout = makeLayout(6);
    layout->setContentsMargins(10, 0, 0, 0);
    QLabel *label = makeLabel();
    label->setBuddy(m_edit);
    layout->addWidget(label);
    showCaption();
    layout->addWidget(m_edit);
}

FilterParam::Cntrl TFLineEdit::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    if (cntrl.key.isEmpty())
        cntrl.key = KeywordsKey;
    cntrl.value = m_edit->text();
    if (cntrl.op != QLatin1String("in"))
        return cntrl;
    // Numbers travel as text here; only the name of the list's type tells them apart.
    cntrl.value = m_edit->text().split(QLatin1Char(','), Qt::SkipEmptyParts);
    const bool numbers = cntrl.valueType.compare(QLatin1String("decimal"), Qt::CaseInsensitive) == 0;
    cntrl.valueType = numbers ? QStringLiteral("intlist") : QStringLiteral("stringList");
    return cntrl;
}
