#include "tfcomboxview.h"

#include "tffocusdelegate.h"

#include <QComboBox>
#include <QHBoxLayout>

TFComboxView::TFComboxView(QWidget *parent)
    : QWidget(parent)
    , m_list(new QComboBox(this))
{
    m_list->setItemDelegate(new TFFocusDelegate(m_list));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    setFocusProxy(m_list);
    connect(m_list, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            QOverload<int>::of(&TFComboxView::slotCurrentIndexChanged));
    connect(m_list, &QComboBox::currentTextChanged, this,
            QOverload<QString>::of(&TFComboxView::slotCurrentIndexChanged));
    connect(m_list, &QComboBox::currentTextChanged, this, &TFComboxView::slotCurrentTextChanged);
}

TFComboxView::~TFComboxView() = default;

void TFComboxView::setEntries(const QStringList &entries)
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    m_list->addItems(entries);
}

QString TFComboxView::currentText() const
{
    return m_list->currentText();
}

void TFComboxView::setCurrentText(const QString &text)
{
    m_list->setCurrentText(text);
}

void TFComboxView::slotCurrentIndexChanged(int index)
{
    emit signalCurrentIndexChanged(index);
}

void TFComboxView::slotCurrentIndexChanged(QString text)
{
    emit signalCurrentIndexChanged(text);
}

void TFComboxView::slotCurrentTextChanged(QString text)
{
    emit signalCurrentTextChanged(text);
}
