#include "tfbasefilterwidget.h"

#include "tffilteroperators.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolButton>

namespace {
constexpr int CaptionGap = 6;
constexpr int MarkSize = 5;
constexpr int DashGap = 4;
} // namespace

TFSubWidgetExpandData::TFSubWidgetExpandData(const TFTableModelData::FilterData &row, QWidget *parent)
    : QWidget(parent)
    , m_row(row)
{}

TFSubWidgetExpandData::~TFSubWidgetExpandData() = default;

TFBaseFilterWidget::TFBaseFilterWidget(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFSubWidgetExpandData(row, parent)
{
    setObjectName(row.ClassName);
}

TFBaseFilterWidget::~TFBaseFilterWidget() = default;

FilterParam::Cntrl TFBaseFilterWidget::described() const
{
    const TFTableModelData::FilterData data = row();
    FilterParam::Cntrl cntrl;
    cntrl.key = data.FieldName;
    cntrl.op = TFFilterOperators::serviceWord(data.Operator);
    cntrl.valueType = data.ValueType;
    cntrl.caption = data.Caption;
    return cntrl;
}

QHBoxLayout *TFBaseFilterWidget::makeLayout(int spacing)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QLabel *TFBaseFilterWidget::makeLabel(int spacing)
{
    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("filterCaption"));
    m_caption->setContentsMargins(0, 0, qMax(0, CaptionGap - spacing), 0);
    m_caption->hide();
    return m_caption;
}

QLabel *TFBaseFilterWidget::makeDash(const QString &sign)
{
    auto *dash = new QLabel(sign, this);
    dash->setContentsMargins(DashGap, 0, DashGap, 0);
    return dash;
}

void TFBaseFilterWidget::showCaption()
{
    m_caption->setText(row().Caption);
    m_caption->setVisible(!row().Caption.isEmpty());
}

QString TFBaseFilterWidget::shownCaption() const
{
    return m_caption && !m_caption->isHidden() ? m_caption->text() : QString();
}

void TFBaseFilterWidget::takeAsDefault()
{
    if (!m_caption)
        return;
    m_default = shownText();
    if (m_mark) {
        markChange();
        return;
    }
    m_mark = new QWidget(this);
    m_mark->setObjectName(QStringLiteral("filterChangedMark"));
    m_mark->setAttribute(Qt::WA_StyledBackground);
    m_mark->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_mark->resize(MarkSize, MarkSize);
    m_mark->hide();
    watchBoxes();
}

void TFBaseFilterWidget::watchBoxes()
{
    for (const QComboBox *box : findChildren<QComboBox *>(QString(), Qt::FindDirectChildrenOnly))
        connect(box, &QComboBox::currentTextChanged, this, &TFBaseFilterWidget::markChange);
    for (const QLineEdit *edit : findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly))
        connect(edit, &QLineEdit::textChanged, this, &TFBaseFilterWidget::markChange);
    for (const QDateTimeEdit *edit : findChildren<QDateTimeEdit *>(QString(), Qt::FindDirectChildrenOnly))
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, &TFBaseFilterWidget::markChange);
    for (const QSpinBox *box : findChildren<QSpinBox *>(QString(), Qt::FindDirectChildrenOnly))
        connect(box, &QSpinBox::textChanged, this, &TFBaseFilterWidget::markChange);
}

QString TFBaseFilterWidget::shownText() const
{
    QStringList texts;
    for (const QWidget *child : findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (const auto *box = qobject_cast<const QComboBox *>(child))
            texts.append(box->currentText());
        else if (const auto *edit = qobject_cast<const QLineEdit *>(child))
            texts.append(edit->text());
        else if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(child))
            texts.append(spin->text());
        else if (const auto *button = qobject_cast<const QToolButton *>(child))
            texts.append(button->text() + button->toolTip());
    }
    return texts.join(QChar::LineFeed);
}

void TFBaseFilterWidget::markChange()
{
    if (!m_mark)
        return;
    m_mark->setVisible(shownText() != m_default);
    placeMark();
}

void TFBaseFilterWidget::placeMark()
{
    // The gap between the caption and the box is as wide as the dot and one pixel more.
    const int gapEnd =
        m_caption && m_caption->isVisibleTo(this)
            ? m_caption->geometry().right() + 1 - m_caption->contentsMargins().right() + CaptionGap
            : CaptionGap;
    m_mark->move(gapEnd - MarkSize - 1, 4);
    m_mark->raise();
}

void TFBaseFilterWidget::resizeEvent(QResizeEvent *event)
{
    TFSubWidgetExpandData::resizeEvent(event);
    if (m_mark)
        placeMark();
}
