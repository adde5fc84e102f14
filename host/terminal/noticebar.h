#pragma once

#include <QFrame>

#include <array>

class QLabel;
class QPushButton;

/// Lines under the address line that tell of what is wrong, with an action that may help. The object name is
/// "NoticeBar", those of its parts "NoticeText", "NoticeAction" and "NoticeClose".
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    /// What a notice is about; there is one line a subject, in this order.
    enum Subject { Plugins, Service, Page, Screen, SubjectCount };

    explicit NoticeBar(QWidget *parent = nullptr);

    /// Says \a text about \a subject; an empty one takes its line away.
    void tell(Subject subject, const QString &text);
    /// Text of the button that goes with the line about the service.
    void setServiceAction(const QString &text);
    /// All lines.
    QString text() const;

signals:
    void serviceActionTriggered();

private:
    void refresh();

    std::array<QString, SubjectCount> m_lines;
    QLabel *m_text;
    QPushButton *m_action;
};
