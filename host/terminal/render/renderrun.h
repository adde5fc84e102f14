#pragma once

#include "pagesettler.h"
#include "renderoptions.h"
#include "requestnotes.h"

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QUrl>

#include <functional>

class ITFInspection;
class MainWindow;

/// Renders pages one after the other: opens each, works it by its steps, and writes what it shows.
///
/// The files of a single page go into the folder itself, those of several into folders "1", "2", ... in it.
/// What was written is told on standard output, why a page is not shown on standard error.
class RenderRun : public QObject
{
    Q_OBJECT

public:
    /// How a page came out, as the program's status; of several pages the greatest counts.
    enum Status { Shown = 0, NotShown = 1, TimedOut = 3 };

    /// \a setSkin changes the skin, or returns false for an unknown name.
    RenderRun(const RenderOptions &options, MainWindow *window, std::function<bool(const QString &)> setSkin,
              QObject *parent = nullptr);
    ~RenderRun() override;

    void start();

signals:
    void finished(int status);

private slots:
    /// An address that is no page's was to be opened.
    void refuseAddress(const QUrl &url);

private:
    /// A step with what it is called where it can't be done.
    struct Step
    {
        QString name;
        QJsonObject values;
    };

    using Action = bool (RenderRun::*)(const QJsonObject &, QString *);

    void openNext();
    void wait();
    void giveUp();
    void goOn();
    bool perform(const QJsonObject &step, QString *reason);
    bool performOnPage(QJsonObject step, QString *reason);
    bool openPage(const QJsonObject &step, QString *reason);
    bool changeSkin(const QJsonObject &step, QString *reason);
    bool snapshot(const QJsonObject &step, QString *reason);
    bool write(const QString &name, QString *reason);
    void conclude();
    void tellState(const QString &state);
    void complain(const QString &reason, Status status);
    QList<Step> stepsOfPage() const;
    QString folder() const;
    ITFInspection *inspection() const;
    QJsonObject description() const;
    QString state(const QString &told) const;

    RenderOptions m_options;
    MainWindow *m_window;
    std::function<bool(const QString &)> m_setSkin;
    RequestNotes m_requests;
    PageSettler m_settler;
    int m_page = -1;
    QList<Step> m_steps; ///< still to be done
    QString m_stepName;  ///< the last that was begun, empty before the first
    bool m_isExporting = false;
    bool m_isTimedOut = false;
    int m_status = Shown;
};
