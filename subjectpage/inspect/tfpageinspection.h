#pragma once

#include "tfcore/itfinspection.h"
#include "tfpageexport.h"

#include <QObject>

class QWidget;
class TFSubjectMainFrame;

/// What a page answers to those that read and work it without a user.
class TFPageInspection : public QObject, public ITFInspection
{
    Q_OBJECT
    Q_INTERFACES(ITFInspection)

public:
    /// \a page is the parent; \a frame fills it.
    TFPageInspection(QWidget *page, TFSubjectMainFrame *frame);
    ~TFPageInspection() override;

    QJsonObject describe() const override;
    bool perform(const QJsonObject &step, QString *reason) override;
    bool isAtWork() const override;
    QString takeFault() override { return m_export.takeFault(); }

public slots:
    /// The page has given itself \a title.
    void setWindowTitle(const QString &title) { m_windowTitle = title; }

private:
    QString state() const;
    bool startExport(const QJsonObject &step, QString *reason);

    QWidget *m_page;
    TFSubjectMainFrame *m_frame;
    QString m_windowTitle;
    TFPageExport m_export;
};
