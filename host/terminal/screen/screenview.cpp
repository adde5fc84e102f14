#include "screenview.h"

#include "cellstrip.h"
#include "emptyscreen.h"
#include "screencell.h"
#include "screensplitter.h"
#include "tfcore/tfcore.h"

#include <QApplication>
#include <QMessageBox>
#include <QVBoxLayout>

#include <utility>

namespace {
const char ViewProperty[] = "objVwId";

Qt::Orientation orientationOf(ScreenNode::Kind kind)
{
    return kind == ScreenNode::Row ? Qt::Horizontal : Qt::Vertical;
}
} // namespace

ScreenView::ScreenView(const ComponentCatalog *catalog, ScreenArguments *arguments, QWidget *parent)
    : QWidget(parent)
    , m_catalog(catalog)
    , m_arguments(arguments)
    , m_empty(new EmptyScreen(catalog))
{
    setObjectName("ScreenView");
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(0);
    layout->addWidget(m_empty);
    connect(m_empty, &EmptyScreen::chosen, this, [this](const QByteArray &name) { add(name); });
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &ScreenView::redraw);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { follow(now); });
}

std::optional<ScreenNode> ScreenView::layoutState() const
{
    return m_root ? std::optional<ScreenNode>(nodeOf(m_root)) : std::nullopt;
}

ScreenNode ScreenView::nodeOf(const QWidget *widget) const
{
    ScreenNode node;
    if (const auto *cell = qobject_cast<const ScreenCell *>(widget)) {
        node.component = cell->component();
        return node;
    }
    const auto *splitter = static_cast<const ScreenSplitter *>(widget);
    node.kind = splitter->orientation() == Qt::Horizontal ? ScreenNode::Row : ScreenNode::Column;
    node.shares = splitter->shares();
    for (int i = 0; i < splitter->count(); ++i)
        node.children.push_back(nodeOf(splitter->widget(i)));
    return node;
}

void ScreenView::restoreLayout(const std::optional<ScreenNode> &layout)
{
    m_current = nullptr;
    delete std::exchange(m_root, nullptr);
    setRoot(layout ? build(*layout) : nullptr);
    const QList<ScreenCell *> made = cells();
    setCurrent(made.isEmpty() ? nullptr : made.first());
}

QWidget *ScreenView::build(const ScreenNode &node)
{
    if (node.kind == ScreenNode::Cell)
        return makeCell(node.component);
    auto *splitter = new ScreenSplitter(orientationOf(node.kind));
    for (const ScreenNode &child : node.children)
        splitter->addWidget(build(child));
    splitter->setShares(node.shares);
    connect(splitter, &ScreenSplitter::sharesMoved, this, &ScreenView::layoutChanged);
    return splitter;
}

ScreenCell *ScreenView::makeCell(const ScreenComponent &component)
{
    auto *cell = new ScreenCell(m_catalog, m_arguments, component);
    connect(
        cell, &ScreenCell::addRequested, this,
        [this, cell](const QByteArray &name, Qt::Orientation orientation) { add(name, orientation, cell); });
    connect(cell, &ScreenCell::removeRequested, this, [this, cell] { removeIfWanted(cell); });
    connect(cell, &ScreenCell::componentChanged, this, &ScreenView::componentChanged);
    return cell;
}

QList<ScreenCell *> ScreenView::cells() const
{
    QList<ScreenCell *> found;
    QList<QWidget *> rest;
    if (m_root)
        rest.append(m_root);
    while (!rest.isEmpty()) {
        QWidget *widget = rest.takeFirst();
        if (auto *splitter = qobject_cast<ScreenSplitter *>(widget)) {
            for (int i = splitter->count() - 1; i >= 0; --i)
                rest.prepend(splitter->widget(i));
        } else {
            found.append(static_cast<ScreenCell *>(widget));
        }
    }
    return found;
}

ScreenCell *ScreenView::currentCell() const
{
    return m_current;
}

QStringList ScreenView::shownViews() const
{
    QStringList views;
    for (const ScreenCell *cell : cells()) {
        const qint64 view = cell->widget() ? cell->widget()->property(ViewProperty).toLongLong() : 0;
        if (view > 0)
            views.append(QString("%1|%2").arg(cell->title().remove('|')).arg(view));
    }
    views.removeDuplicates();
    return views;
}

ScreenCell *ScreenView::add(const QByteArray &className, Qt::Orientation orientation, ScreenCell *beside)
{
    ScreenCell *cell = makeCell({className, {}});
    place(cell, beside ? beside : m_current, orientation);
    setCurrent(cell);
    focusCurrent();
    emit layoutChanged();
    return cell;
}

void ScreenView::place(ScreenCell *cell, ScreenCell *beside, Qt::Orientation orientation)
{
    if (!beside)
        return setRoot(cell);
    auto *around = qobject_cast<ScreenSplitter *>(beside->parentWidget());
    if (!around || around->orientation() != orientation) {
        auto *splitter = new ScreenSplitter(orientation);
        connect(splitter, &ScreenSplitter::sharesMoved, this, &ScreenView::layoutChanged);
        replace(beside, splitter);
        splitter->addWidget(beside);
        splitter->setShares({1});
        beside->show();
        around = splitter;
    }
    around->insertAfter(beside, cell);
    cell->show();
}

void ScreenView::remove(ScreenCell *cell)
{
    const QList<ScreenCell *> before = cells();
    const int index = before.indexOf(cell);
    auto *around = qobject_cast<ScreenSplitter *>(cell->parentWidget());
    cell->deleteLater();
    if (!around) {
        cell->hide();
        m_root = nullptr;
        setRoot(nullptr);
    } else {
        around->take(cell);
        if (around->count() == 1) {
            replace(around, around->widget(0));
            around->deleteLater();
        }
    }
    setCurrent(before.size() < 2 ? nullptr : before.at(index > 0 ? index - 1 : 1));
    focusCurrent();
    emit layoutChanged();
}

/// A component that has been set up is not lost to a slip of the mouse.
void ScreenView::removeIfWanted(ScreenCell *cell)
{
    const QString question = tr("Remove %1? Its settings are lost.").arg(cell->title());
    if (cell->component().state.isEmpty() ||
        QMessageBox::question(this, tr("Composite screen"), question, QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) == QMessageBox::Yes)
        remove(cell);
}

void ScreenView::setRoot(QWidget *root)
{
    m_root = root;
    if (root) {
        layout()->addWidget(root);
        root->show();
    }
    m_empty->setVisible(!root);
}

/// Puts \a other where \a present stands; \a present is left without a place.
void ScreenView::replace(QWidget *present, QWidget *other)
{
    auto *around = qobject_cast<ScreenSplitter *>(present->parentWidget());
    if (around) {
        around->replaceWidget(around->indexOf(present), other);
    } else {
        layout()->removeWidget(present);
        setRoot(other);
    }
    present->hide();
    other->show();
}

void ScreenView::follow(QWidget *focused)
{
    for (QWidget *widget = focused; widget && widget != this; widget = widget->parentWidget()) {
        auto *cell = qobject_cast<ScreenCell *>(widget);
        if (cell && isAncestorOf(cell))
            return setCurrent(cell);
    }
}

void ScreenView::setCurrent(ScreenCell *cell)
{
    m_current = cell;
    for (ScreenCell *each : cells())
        each->strip().setCurrent(each == cell);
}

void ScreenView::focusCurrent()
{
    if (m_current)
        m_current->setFocus(Qt::OtherFocusReason);
}

void ScreenView::redraw()
{
    for (const ScreenCell *cell : cells())
        cell->strip().redraw();
}
