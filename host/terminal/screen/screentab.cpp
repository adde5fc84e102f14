#include "screentab.h"

#include "look.h"
#include "screenbar.h"
#include "screenview.h"
#include "terminallog.h"
#include "tfcore/tfcore.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QVBoxLayout>

namespace {
constexpr int SaveDelayMs = 400;
constexpr int ProblemsTold = 3;
} // namespace

ScreenTab::ScreenTab(const ComponentCatalog *catalog, const QString &path, const QString &name,
                     QWidget *parent)
    : TerminalTab(parent)
    , m_file(path)
    , m_name(name)
    , m_arguments(this)
    , m_bar(new ScreenBar(catalog))
    , m_view(new ScreenView(catalog, &m_arguments))
{
    setObjectName("ScreenTab");
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addWidget(m_view, 1);
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(SaveDelayMs);
    m_arguments.setProposals([this] { return m_view->shownViews(); });
    connectParts();
}

void ScreenTab::connectParts()
{
    connect(m_bar, &ScreenBar::addRequested, m_view, [this](const QByteArray &name) { m_view->add(name); });
    connect(m_bar, &ScreenBar::argumentsRequested, &m_arguments, &ScreenArguments::edit);
    connect(m_bar, &ScreenBar::saveRequested, this, &ScreenTab::save);
    connect(m_bar, &ScreenBar::argumentEntered, &m_arguments, &ScreenArguments::setValue);
    connect(&m_arguments, &ScreenArguments::changed, this,
            [this] { m_bar->setArguments(m_arguments.values()); });
    connect(m_view, &ScreenView::layoutChanged, this, &ScreenTab::saveSoon);
    connect(m_view, &ScreenView::componentChanged, this, &ScreenTab::save);
    connect(&m_arguments, &ScreenArguments::changed, this, &ScreenTab::saveSoon);
    connect(&m_saveTimer, &QTimer::timeout, this, &ScreenTab::save);
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, [this] { emit iconChanged(icon()); });
}

QIcon ScreenTab::icon() const
{
    return Look::icon("screen");
}

void ScreenTab::open()
{
    emit iconChanged(icon());
    ScreenState state;
    state.name = m_name;
    if (QFileInfo::exists(m_file.path())) {
        ScreenFormat::Reading reading = m_file.load();
        tellProblems(reading.problems);
        state = std::move(reading.state);
    }
    m_name = state.name.isEmpty() ? QFileInfo(m_file.path()).baseName() : state.name;
    m_bar->setName(m_name);
    emit titleChanged(m_name);
    // Before the cells, which read the arguments when they are made; a value that was just read is no change.
    QSignalBlocker quiet(m_arguments);
    m_arguments.setValues(state.args);
    quiet.unblock();
    m_bar->setArguments(state.args);
    m_view->restoreLayout(state.layout);
    m_view->focusCurrent();
}

void ScreenTab::tellProblems(const QStringList &problems)
{
    if (problems.isEmpty())
        return;
    for (const QString &problem : problems)
        qCWarning(lcScreens).noquote() << m_file.path() << problem;
    QStringList first = problems.mid(0, ProblemsTold);
    if (problems.size() > ProblemsTold)
        first.append(tr("and %1 more").arg(problems.size() - ProblemsTold));
    emit told(tr("%1 is damaged; what can be read is open, and the file is kept when the screen is saved. %2")
                  .arg(m_file.path(), first.join("; ")));
}

void ScreenTab::reload()
{
    m_view->restoreLayout(m_view->layoutState());
    m_view->focusCurrent();
}

ScreenState ScreenTab::state() const
{
    return {m_name, m_arguments.values(), m_view->layoutState()};
}

void ScreenTab::saveSoon()
{
    m_isChanged = true;
    m_bar->showUnsaved();
    m_saveTimer.start();
}

bool ScreenTab::save()
{
    m_saveTimer.stop();
    const QString fault = m_file.save(state());
    m_isChanged = !fault.isEmpty();
    m_bar->showSaved(fault);
    if (!fault.isEmpty()) {
        qCWarning(lcScreens).noquote() << "the screen cannot be saved:" << fault;
        emit told(tr("The screen cannot be saved. %1").arg(fault));
    } else if (!m_file.keptAside().isEmpty()) {
        emit told(tr("What lay in the file of the screen before is kept as %1").arg(m_file.keptAside()));
    }
    return fault.isEmpty();
}

bool ScreenTab::mayClose()
{
    // A damaged file that nobody has touched stays as it is.
    if (m_isForgotten || !m_isChanged || save())
        return true;
    return QMessageBox::question(this, tr("Composite screen"),
                                 tr("%1 cannot be saved. Close it and lose the changes?").arg(m_name),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void ScreenTab::rename(const QString &name)
{
    m_name = name;
    m_bar->setName(name);
    emit titleChanged(name);
    save();
}
