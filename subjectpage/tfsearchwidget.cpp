#include "tfsearchwidget.h"

#include <QAction>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>

#include "tfcore/tfcore.h"

namespace {
/// The clear button's action is the line's own and has no accessor.
const QString clearActionName = QStringLiteral("_q_qlineeditclearaction");
} // namespace

TFSearchWidget::TFSearchWidget(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_line(new QLineEdit(this))
    , m_action(new QAction(m_line))
{
    setObjectName(QStringLiteral("SearchWidget"));
    m_line->setObjectName(QStringLiteral("SearchLine"));
    m_line->setClearButtonEnabled(true);
    m_line->setPlaceholderText(tr("搜索"));
    m_line->addAction(m_action, QLineEdit::TrailingPosition);
    m_line->installEventFilter(this);
    m_action->setToolTip(m_line->placeholderText());
    m_layout->setContentsMargins(12, 5, 12, 0);
    m_layout->addWidget(m_line);
    setFocusProxy(m_line);
    loadIcon();

    connect(m_line, &QLineEdit::editingFinished, this, &TFSearchWidget::finishEditing);
    connect(m_action, &QAction::triggered, this, &TFSearchWidget::search);
    if (const auto *clear = m_line->findChild<QAction *>(clearActionName))
        connect(clear, &QAction::triggered, this, &TFSearchWidget::search);
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &TFSearchWidget::loadIcon);
}

QString TFSearchWidget::text() const
{
    return m_line->text();
}

void TFSearchWidget::setText(const QString &text)
{
    m_line->setText(text);
}

void TFSearchWidget::loadIcon()
{
    m_action->setIcon(QIcon(TFCore::instance()->getCurrentSkinPath(QStringLiteral("subject/search.png"))));
}

void TFSearchWidget::search()
{
    m_searched = m_line->text();
    emit signalSearch(m_searched);
}

void TFSearchWidget::finishEditing()
{
    if (!std::exchange(m_isLeaving, false) || m_line->text() != m_searched)
        search();
}

bool TFSearchWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // For these two reasons the line goes on being edited and tells of no end.
        m_isLeaving = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
    } else if (event->type() == QEvent::FocusIn) {
        m_isLeaving = false;
    }
    return QWidget::eventFilter(watched, event);
}
