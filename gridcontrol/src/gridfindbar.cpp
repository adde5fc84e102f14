#include "gridfindbar.h"

#include "celltext.h"
#include "gridarea.h"

#include <gridcontrol/grid.h>

#include <QCheckBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QToolButton>

namespace Qtitan {

GridFindBar::GridFindBar(GridArea *area, QWidget *parent)
    : QWidget(parent)
    , m_area(area)
    , m_edit(new QLineEdit)
    , m_state(new QLabel)
    , m_filter(new QCheckBox(GridBase::tr("只显示匹配行")))
{
    setObjectName(QStringLiteral("gridFindBar"));
    m_filter->setObjectName(QStringLiteral("gridFindFilter"));
    const auto button = [this](Qt::ArrowType arrow, int step, const QString &tip) {
        auto *made = new QToolButton;
        made->setArrowType(arrow);
        made->setAutoRaise(true);
        made->setToolTip(tip);
        connect(made, &QToolButton::clicked, this, [this, step] { find(step, false); });
        return made;
    };
    auto *closing = new QToolButton;
    closing->setText(QStringLiteral("\u00d7"));
    closing->setAutoRaise(true);
    closing->setToolTip(GridBase::tr("关闭"));
    connect(closing, &QToolButton::clicked, this, &GridFindBar::close);

    auto *box = new QHBoxLayout(this);
    box->setContentsMargins(8, 3, 4, 3);
    box->setSpacing(4);
    m_edit->setPlaceholderText(GridBase::tr("查找"));
    m_edit->setMaximumWidth(240);
    box->addWidget(m_edit, 1);
    box->addWidget(button(Qt::UpArrow, -1, GridBase::tr("上一个")));
    box->addWidget(button(Qt::DownArrow, 1, GridBase::tr("下一个")));
    box->addWidget(m_filter);
    box->addWidget(m_state);
    box->addStretch();
    box->addWidget(closing);

    m_slice.setInterval(0);
    connect(&m_slice, &QTimer::timeout, this, &GridFindBar::searchSlice);
    connect(m_edit, &QLineEdit::textChanged, this, &GridFindBar::textChanged);
    connect(m_filter, &QCheckBox::toggled, this, &GridFindBar::applyFilter);
    connect(&m_area->rows(), &QAbstractItemModel::modelAboutToBeReset, &m_slice, &QTimer::stop);
}

void GridFindBar::start()
{
    m_filter->setVisible(m_area->options().isFilterEnabled());
    show();
    m_edit->setFocus();
    m_edit->selectAll();
    m_area->markText(m_edit->text());
}

void GridFindBar::close()
{
    m_slice.stop();
    m_filter->setChecked(false);
    m_area->markText(QString());
    hide();
    m_area->setFocus();
}

void GridFindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        find(event->modifiers() & Qt::ShiftModifier ? -1 : 1, false);
    else
        QWidget::keyPressEvent(event);
}

void GridFindBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_area->colors().headerBackground);
    painter.fillRect(QRectF(0, 0, width(), 1.0 / devicePixelRatioF()), m_area->colors().strongLine);
}

void GridFindBar::textChanged()
{
    m_area->markText(m_edit->text());
    if (m_filter->isChecked())
        applyFilter();
    find(1, true);
}

void GridFindBar::find(int step, bool fromHere)
{
    m_slice.stop();
    m_state->clear();
    const int lines = m_area->rows().rowCount();
    const int shown = m_area->columns().count();
    if (m_edit->text().isEmpty() || lines == 0 || shown == 0)
        return;
    const QModelIndex current = m_area->currentIndex();
    m_step = step;
    m_line = current.isValid() ? current.row() : 0;
    m_slot = current.isValid() ? qMax(0, m_area->columns().slotOfModelColumn(current.column())) : 0;
    if (current.isValid() && !fromHere)
        m_slot += step;
    // Once around, the start line once more for what stands before the start.
    m_left = qint64(lines) + 1;
    searchSlice();
}

bool GridFindBar::lineMatches(int line, int fromSlot, int toSlot)
{
    for (int slot = fromSlot; slot != toSlot + m_step; slot += m_step) {
        if (m_area->textOf(line, slot).contains(m_edit->text(), Qt::CaseInsensitive)) {
            found(line, slot);
            return true;
        }
    }
    return false;
}

void GridFindBar::searchSlice()
{
    constexpr int sliceMs = 20;
    QElapsedTimer elapsed;
    elapsed.start();
    const int lines = m_area->rows().rowCount();
    const int last = m_area->columns().count() - 1;
    while (m_left > 0 && lines > 0) {
        --m_left;
        m_line = (m_line + lines) % lines;
        const int end = m_step > 0 ? last : 0;
        const bool some = m_step > 0 ? m_slot <= last : m_slot >= 0;
        if (some && lineMatches(m_line, m_slot, end))
            return;
        m_line += m_step;
        m_slot = m_step > 0 ? 0 : last;
        if (elapsed.elapsed() > sliceMs && m_left > 0) {
            m_state->setText(GridBase::tr("正在查找..."));
            m_slice.start();
            return;
        }
    }
    m_slice.stop();
    m_state->setText(GridBase::tr("未找到"));
}

void GridFindBar::found(int line, int slot)
{
    m_slice.stop();
    m_state->clear();
    m_area->setCurrentCell(line, slot, QItemSelectionModel::ClearAndSelect);
    m_area->scrollTo(m_area->currentIndex());
}

void GridFindBar::applyFilter()
{
    const QString text = m_edit->text();
    if (!m_filter->isChecked() || text.isEmpty()) {
        m_area->rows().setRowFilter(nullptr);
        return;
    }
    m_area->rows().setRowFilter([area = m_area, text](int row) {
        const GridViewBase *view = area->view();
        for (int slot = 0; slot < area->columns().count(); ++slot) {
            const int column = area->columns().at(slot).column->index();
            const QVariant value = view->model()->index(row, column, view->rootIndex()).data();
            if (displayText(value, area->locale()).contains(text, Qt::CaseInsensitive))
                return true;
        }
        return false;
    });
}

} // namespace Qtitan
