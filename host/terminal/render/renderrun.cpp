#include "renderrun.h"

#include "mainwindow.h"
#include "pagetabs.h"
#include "renderfiles.h"
#include "terminaltab.h"
#include "tfcore/itfinspection.h"

#include <QDesktopServices>
#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QTimer>

#include <cstdio>

namespace {
const QStringList OutsideSchemes{"http", "https", "ftp", "mailto", "file"};
const char PageName[] = "page";
constexpr int ExportPatience = 10; ///< a workbook may take as many times the limit of a page

/// What is said of a page that does not offer a description: every key, and nothing in it.
QJsonObject emptyDescription(const TerminalTab *tab)
{
    return {{"url", tab ? tab->url().toString() : QString()},
            {"windowTitle", tab ? tab->title() : QString()},
            {"frameTitle", ""},
            {"caption", ""},
            {"titleLabel", ""},
            {"state", "loading"},
            {"tree", QJsonObject{{"title", ""}, {"nodes", QJsonArray()}, {"selected", QJsonArray()}}},
            {"blocks", QJsonValue()},
            {"web", QJsonValue()},
            {"main", QJsonValue()},
            {"children", QJsonArray()}};
}
} // namespace

RenderRun::RenderRun(const RenderOptions &options, MainWindow *window,
                     std::function<bool(const QString &)> setSkin, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_window(window)
    , m_setSkin(std::move(setSkin))
{
    m_settler.setWork([this] { return inspection() && inspection()->isAtWork(); });
    connect(&m_settler, &PageSettler::settled, this, &RenderRun::goOn);
    connect(&m_settler, &PageSettler::timedOut, this, &RenderRun::giveUp);
    for (const QString &scheme : OutsideSchemes)
        QDesktopServices::setUrlHandler(scheme, this, "refuseAddress");
}

RenderRun::~RenderRun()
{
    for (const QString &scheme : OutsideSchemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

void RenderRun::start()
{
    openNext();
}

void RenderRun::openNext()
{
    m_window->tabs().closeAll();
    if (++m_page == m_options.urls.size()) {
        emit finished(m_status);
        return;
    }
    m_requests.restart();
    m_steps = stepsOfPage();
    m_stepName.clear();
    m_isExporting = false;
    m_isTimedOut = false;
    m_window->openStringUrl(m_options.urls.at(m_page));
    wait();
}

QList<RenderRun::Step> RenderRun::stepsOfPage() const
{
    QList<Step> steps;
    if (m_options.row)
        steps.append({"--select-row", {{"do", "row"}, {"index", *m_options.row}}});
    for (const QJsonObject &values : m_options.script.steps) {
        const int number = steps.size() + 1 - (m_options.row ? 1 : 0);
        steps.append({QString("step %1 (%2)").arg(number).arg(values.value("do").toString()), values});
    }
    if (m_options.isWorkbookWanted)
        steps.append({"--xlsx", {{"do", "export"}}});
    return steps;
}

void RenderRun::wait()
{
    const bool isPictureNext = m_steps.isEmpty() || m_steps.first().values.value("do") == "snapshot";
    m_settler.start(m_isExporting ? m_options.timeoutMs * ExportPatience : m_options.timeoutMs,
                    isPictureNext);
}

void RenderRun::giveUp()
{
    // A page whose workbook is late is shown all the same.
    m_isTimedOut = !m_isExporting;
    if (m_isExporting)
        complain(m_stepName + ": the workbook was not written in time", TimedOut);
    conclude();
}

void RenderRun::goOn()
{
    QString reason = inspection() ? inspection()->takeFault() : QString();
    if (reason.isEmpty() && !m_steps.isEmpty()) {
        const Step step = m_steps.takeFirst();
        m_stepName = step.name;
        m_isExporting = step.values.value("do") == "export";
        if (perform(step.values, &reason)) {
            wait();
            return;
        }
    }
    if (!reason.isEmpty())
        complain(m_stepName + ": " + reason, NotShown);
    conclude();
}

bool RenderRun::perform(const QJsonObject &step, QString *reason)
{
    static const QHash<QString, Action> own = {
        {"skin", &RenderRun::changeSkin}, {"snapshot", &RenderRun::snapshot}, {"url", &RenderRun::openPage}};
    // An address belongs to the window, a node to the page.
    const QString word = step.contains("url") ? QString("url") : step.value("do").toString();
    const Action action = own.value(word);
    return action ? (this->*action)(step, reason) : performOnPage(step, reason);
}

bool RenderRun::performOnPage(QJsonObject step, QString *reason)
{
    if (!inspection()) {
        *reason = "there is no page";
        return false;
    }
    if (step.value("do") == "export") {
        step.insert("folder", folder());
        QDir().mkpath(folder());
    }
    return inspection()->perform(step, reason);
}

bool RenderRun::openPage(const QJsonObject &step, QString *)
{
    m_window->openStringUrl(step.value("url").toString());
    return true;
}

bool RenderRun::changeSkin(const QJsonObject &step, QString *reason)
{
    const QString name = step.value("name").toString();
    if (m_setSkin(name))
        return true;
    *reason = QString("there is no skin \"%1\"").arg(name);
    return false;
}

bool RenderRun::snapshot(const QJsonObject &step, QString *reason)
{
    return write(step.value("name").toString(), reason);
}

bool RenderRun::write(const QString &name, QString *reason)
{
    TerminalTab *tab = m_window->tabs().current();
    const QPixmap picture = tab ? tab->grab() : m_window->grab();
    *reason = RenderFiles::write(folder(), name, picture, description());
    if (!reason->isEmpty())
        return false;
    for (const char *suffix : {".png", ".json"})
        std::puts(qPrintable(QDir(folder()).filePath(name + suffix)));
    return true;
}

void RenderRun::conclude()
{
    QString fault;
    if (!write(PageName, &fault))
        complain(fault, NotShown);
    tellState(description().value("state").toString());
    // Not from within what the settler says: it is to watch the next page.
    QTimer::singleShot(0, this, &RenderRun::openNext);
}

void RenderRun::tellState(const QString &state)
{
    const QStringList failures = m_requests.failures();
    if (state == "timeout")
        complain(QString("the page did not come to rest within %1 s").arg(m_options.timeoutMs / 1000.0),
                 TimedOut);
    else if (state == "noData")
        complain("the page has no data", NotShown);
    else if (state == "waiting")
        complain("nothing has told the page to load", NotShown);
    else if (state == "failed" && failures.isEmpty())
        complain(inspection() ? "a reply could not be used, the page goes on loading" : "there is no page",
                 NotShown);
    for (const QString &failure : failures)
        complain("a request failed: " + failure, NotShown);
}

void RenderRun::complain(const QString &reason, Status status)
{
    std::fprintf(stderr, "subject-terminal: %s: %s\n", qPrintable(m_options.urls.at(m_page)),
                 qPrintable(reason));
    m_status = qMax(m_status, int(status));
}

void RenderRun::refuseAddress(const QUrl &url)
{
    std::fprintf(stderr, "subject-terminal: leads out of the terminal and is not opened: %s\n",
                 qPrintable(url.toString()));
}

QString RenderRun::folder() const
{
    const QDir folder(m_options.folder);
    return m_options.urls.size() == 1 ? folder.path() : folder.filePath(QString::number(m_page + 1));
}

ITFInspection *RenderRun::inspection() const
{
    const TerminalTab *tab = m_window->tabs().current();
    return tab ? tab->inspection() : nullptr;
}

QJsonObject RenderRun::description() const
{
    const ITFInspection *page = inspection();
    QJsonObject description = page ? page->describe() : emptyDescription(m_window->tabs().current());
    description.insert("state", state(description.value("state").toString()));
    description.insert("requests", m_requests.toJson());
    return description;
}

QString RenderRun::state(const QString &told) const
{
    if (m_isTimedOut)
        return "timeout";
    // Nothing is out any more: what still loads has failed.
    return told == "loading" || !m_requests.failures().isEmpty() ? QString("failed") : told;
}
