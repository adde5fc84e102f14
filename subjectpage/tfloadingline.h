#pragma once

#include <QTimer>
#include <QWidget>

/// A thin line that moves along the top edge of a view while it loads. Lies over the view and takes no room.
///
/// Its colour is the palette's Highlight, or the \c color of a style sheet.
class TFLoadingLine : public QWidget
{
    Q_OBJECT

public:
    /// Over \a view, at first out of sight.
    explicit TFLoadingLine(QWidget *view);
    ~TFLoadingLine() override;

    void start();
    void stop();

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void advance();

    QTimer m_timer;
    int m_step = 0;
};
