#pragma once

#include <QMainWindow>

/// Every kind of control that the terminal and its pages show, side by side, under the object names that the
/// style sheets address.
class Gallery : public QMainWindow
{
    Q_OBJECT

public:
    explicit Gallery(QWidget *parent = nullptr);

private:
    void addBars();
    QWidget *makePage();
    QWidget *makeTree();
    QWidget *makeFilterBar();
    QWidget *makeTable();
    QWidget *makePageLine();
    QWidget *makeChildViews();
    QWidget *makeControls();
    QWidget *makeButtons();
    QWidget *makeFields();
};
