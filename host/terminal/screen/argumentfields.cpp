#include "argumentfields.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {
constexpr int FieldWidth = 128;
constexpr int CaptionGap = 6;
constexpr int FieldGap = 12;
const char ArgumentProperty[] = "argument";

QVariantMap textsOf(const QVariantMap &values)
{
    QVariantMap texts;
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (it.value().userType() == QMetaType::QString)
            texts.insert(it.key(), it.value());
    }
    return texts;
}
} // namespace

ArgumentFields::ArgumentFields(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(FieldGap);
    m_layout->addStretch(1);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ArgumentFields::setValues(const QVariantMap &values)
{
    const QVariantMap texts = textsOf(values);
    QStringList present;
    for (const QLineEdit *field : qAsConst(m_fields))
        present.append(field->property(ArgumentProperty).toString());
    if (present != texts.keys())
        makeFields(texts);
    for (QLineEdit *field : qAsConst(m_fields)) {
        const QString text = texts.value(field->property(ArgumentProperty).toString()).toString();
        if (field->text() == text)
            continue;
        field->setText(text);
        field->setCursorPosition(0);
    }
}

void ArgumentFields::makeFields(const QVariantMap &texts)
{
    // A field may be the one whose signal is on its way.
    for (QWidget *cell : qAsConst(m_cells)) {
        cell->hide();
        cell->deleteLater();
    }
    m_cells.clear();
    m_fields.clear();
    for (const QString &name : texts.keys()) {
        auto *cell = new QWidget;
        auto *caption = new QLabel(name);
        caption->setObjectName("ArgumentCaption");
        caption->setTextFormat(Qt::PlainText);
        auto *field = new QLineEdit;
        field->setObjectName("ArgumentField");
        field->setProperty(ArgumentProperty, name);
        field->setFixedWidth(FieldWidth);
        auto *layout = new QHBoxLayout(cell);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(CaptionGap);
        layout->addWidget(caption);
        layout->addWidget(field);
        m_layout->insertWidget(m_cells.size(), cell);
        m_cells.append(cell);
        m_fields.append(field);
        connect(field, &QLineEdit::editingFinished, this,
                [this, field, name] { emit entered(name, field->text()); });
    }
    showWhatFits();
}

void ArgumentFields::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showWhatFits();
}

void ArgumentFields::showWhatFits()
{
    int edge = 0;
    for (QWidget *cell : qAsConst(m_cells)) {
        edge += cell->sizeHint().width();
        cell->setVisible(edge <= width());
        edge += FieldGap;
    }
}
