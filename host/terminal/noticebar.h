#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

/// A line under the address line that tells of something that is wrong, with an action that may help. The
/// object name is "NoticeBar", those of its parts "NoticeText", "NoticeAction" and "NoticeClose".
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    /// Shows \a text; with an empty \a action there is no button.
    void tell(const QString &text, const QString &action = QString());
    QString text() const;

signals:
    void actionTriggered();

private:
    QLabel *m_text;
    QPushButton *m_action;
};
