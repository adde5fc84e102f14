#pragma once

#include <QToolButton>

/// A button that drops a menu down, wherever it is pressed. A text that is too long for it ends in an
/// ellipsis.
class TFMenuButton : public QToolButton
{
    Q_OBJECT

public:
    explicit TFMenuButton(QWidget *parent);

    /// Shows the menu again after a choice, so that it stays open for more. A button that is not on the
    /// screen has nothing to open.
    void reopenMenu();

protected:
    void paintEvent(QPaintEvent *event) override;
};
