#include "tfcheckcombox.h"

#include "tffilterdefaults.h"
#include "tfmenubutton.h"
#include "tfremotelist.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QSet>
#include <QStyledItemDelegate>
#include <QWidgetAction>

namespace {
constexpr int AllIndex = -1;
constexpr int RowHeight = 30;
constexpr int MaximumHeight = 510;
constexpr int MaximumTextWidth = 210;

/// Parts of a text at ";" where it has one, else at ",".
QStringList listParts(const QString &text)
{
    const QChar separator = text.contains(QLatin1Char(';')) ? QLatin1Char(';') : QLatin1Char(',');
    return text.split(separator, Qt::SkipEmptyParts);
}

/// Leaves ticking to the press on the whole entry; the box of the entry would tick it back.
class EntryDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool editorEvent(QEvent *, QAbstractItemModel *, const QStyleOptionViewItem &,
                     const QModelIndex &) override
    {
        return false;
    }
};

int indexOf(const QListWidgetItem *item)
{
    return item->data(Qt::UserRole).toInt();
}

QListWidgetItem *addCheckable(QListWidget *list, const QString &text, int index)
{
    auto *item = new QListWidgetItem(text, list);
    item->setFlags((item->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsSelectable);
    item->setCheckState(Qt::Unchecked);
    item->setData(Qt::UserRole, index);
    return item;
}
} // namespace

TFCheckCombox::TFCheckCombox(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_button(new TFMenuButton(this))
    , m_dm(this)
{
    buildWidgets();
    connect(this, &TFCheckCombox::signalItemDataUpdate, this, &TFCheckCombox::slotOnItemDataUpdate);
    connect(this, &TFCheckCombox::signalItemCheckStatusChanged, this, &TFCheckCombox::slotCheckStatusChanged);
    fill();
    selectDefault();
    setObjectName(QStringLiteral("CustomCheckCombobox"));
}

void TFCheckCombox::buildWidgets()
{
    QMenu *menu = m_button->menu();
    m_list = new QListWidget(menu);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setItemDelegate(new EntryDelegate(m_list));
    auto *holder = new QWidgetAction(menu);
    holder->setDefaultWidget(m_list);
    menu->addAction(holder);
    connect(m_list, &QListWidget::itemPressed, this, &TFCheckCombox::slotItemPressed);
    connect(m_list, &QListWidget::itemClicked, this, &TFCheckCombox::slotItemClicked);

    QLabel *label = makeLabel();
    label->setBuddy(m_button);
    QHBoxLayout *layout = makeLayout(6);
    layout->addWidget(label);
    layout->addWidget(m_button);
    setMaximumWidth(300);
}

void TFCheckCombox::fill()
{
    if (!row().DataSourceName.isEmpty()) {
        m_dm.startRequest(TFRemoteList::request(row()), [this](bool isOk, const QByteArray &data) {
            if (isOk)
                emit signalItemDataUpdate(TFRemoteList::entries(data));
        });
        return;
    }
    if (row().NameValues.isEmpty())
        return;
    QMap<QString, QString> byValue;
    for (const auto &pair : TFFilterDefaults::nameValues(row().NameValues))
        byValue.insert(pair.second, pair.first);
    emit signalItemDataUpdate(byValue);
}

void TFCheckCombox::slotOnItemDataUpdate(QMap<QString, QString> data)
{
    m_allItem = addCheckable(m_list, tr("All"), AllIndex);
    int index = 0;
    for (auto entry = data.constBegin(); entry != data.constEnd(); ++entry, ++index) {
        addCheckable(m_list, entry.key(), index);
        m_texts.insert(index, entry.key());
        m_values.insert(entry.key(), entry.value());
    }
    m_list->setFixedSize(m_list->sizeHintForColumn(0) + m_list->verticalScrollBar()->sizeHint().width() +
                             RowHeight,
                         qMin(RowHeight * (data.size() + 2), MaximumHeight));
    showCaption();
    if (!m_texts.isEmpty()) {
        checkAll(true);
        rebuildText();
    }
    takeAsDefault();
}

void TFCheckCombox::selectDefault()
{
    if (row().NameValues.isEmpty())
        return;
    const QStringList values = listParts(row().DefualtValue);
    if (values.isEmpty() || values.size() == listParts(row().NameValues).size()) {
        checkAll(true);
    } else {
        for (const QString &value : values)
            checkDefaultValue(value);
    }
    rebuildText();
}

void TFCheckCombox::checkDefaultValue(const QString &value)
{
    for (int i = 1; i < m_list->count(); ++i) {
        QListWidgetItem *item = m_list->item(i);
        if (valueOf(item->text()) != value)
            continue;
        item->setCheckState(Qt::Checked);
        m_checked.append(indexOf(item));
        return;
    }
}

void TFCheckCombox::checkAll(bool checked)
{
    m_checked.clear();
    for (int i = 0; i < m_list->count(); ++i) {
        QListWidgetItem *item = m_list->item(i);
        item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        if (checked && item != m_allItem)
            m_checked.append(indexOf(item));
    }
}

void TFCheckCombox::slotItemPressed(QListWidgetItem *item)
{
    const bool checked = item->checkState() != Qt::Checked;
    item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    emit signalItemCheckStatusChanged(item, checked);
}

void TFCheckCombox::slotItemClicked(QListWidgetItem *item)
{
    emit signalItemCheckStatusChanged(item, item->checkState() == Qt::Checked);
}

void TFCheckCombox::slotCheckStatusChanged(QListWidgetItem *item, bool checked)
{
    const int index = indexOf(item);
    if (index == AllIndex) {
        checkAll(checked);
    } else {
        if (!checked)
            m_checked.removeAll(index);
        else if (!m_checked.contains(index))
            m_checked.append(index);
        // A default that was ticked already stands in the list a second time.
        const QSet<int> entries(m_checked.begin(), m_checked.end());
        m_allItem->setCheckState(entries.size() == m_texts.size() ? Qt::Checked : Qt::Unchecked);
    }
    rebuildText();
    m_button->reopenMenu();
}

void TFCheckCombox::rebuildText()
{
    const bool isAll = m_checked.size() == m_texts.size();
    const QString text = isAll ? QStringLiteral("All") : checkedTexts().join(QLatin1Char(';'));
    m_button->setToolTip(isAll ? QString() : text);
    m_button->setText(m_button->fontMetrics().elidedText(text, Qt::ElideRight, MaximumTextWidth));
    markChange();
}

QStringList TFCheckCombox::checkedTexts() const
{
    QStringList texts;
    for (int index : m_checked)
        texts.append(m_texts.value(index));
    return texts;
}

QString TFCheckCombox::valueOf(const QString &text) const
{
    // The texts shown are the keys of the map: a text finds a result only where it is also somebody's value.
    return m_values.key(text, QString(QLatin1String("")));
}

FilterParam::Cntrl TFCheckCombox::getCntrl() const
{
    const QStringList texts =
        checkedTexts().join(QLatin1Char(';')).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (texts.isEmpty())
        return {};
    const bool numbers = row().ValueType.toLower() == QLatin1String("decimal");
    QVariantList values;
    for (const QString &text : texts)
        values.append(numbers ? QVariant(valueOf(text).toDouble()) : QVariant(valueOf(text)));
    FilterParam::Cntrl cntrl = described();
    cntrl.value = values;
    cntrl.valueType = numbers ? QStringLiteral("intlist") : QStringLiteral("stringList");
    return cntrl;
}
