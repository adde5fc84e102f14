#pragma once

#include <QDialog>
#include <QTimer>

class QLabel;
class QProgressBar;

/// Shows that an export goes on, with a way out: rejected() is the user giving it up. Comes up only when the
/// export takes its time, and holds the window under it meanwhile.
class TFSubjectTableExportProgress : public QDialog
{
    Q_OBJECT

public:
    explicit TFSubjectTableExportProgress(QWidget *parent);

    /// \a done of \a total; a total of 0 means that nobody knows how long it takes.
    void setStep(const QString &text, int done = 0, int total = 0);

private:
    QLabel *m_text;
    QProgressBar *m_bar;
    QTimer m_delay;
};
