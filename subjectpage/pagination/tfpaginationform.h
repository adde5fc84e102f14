#pragma once

#include <QString>

class QComboBox;
class QFrame;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

/// The child widgets of a page bar. All belong to the frame that build() is given.
struct TFPaginationForm
{
    QPushButton *headButton = nullptr;
    QPushButton *prevButton = nullptr;
    QLineEdit *currentPage = nullptr;
    QLabel *label_2 = nullptr;
    QLabel *totalPage = nullptr;
    QPushButton *nextButton = nullptr;
    QPushButton *tailButton = nullptr;
    QFrame *fmLine = nullptr;
    QComboBox *totalPageCombox = nullptr;
    QLabel *lbUnit = nullptr;

    /// Makes the widgets in \a bar, each named as its member, and lays them out in one line.
    void build(QFrame *bar);

private:
    QPushButton *addButton(QHBoxLayout *line, const QString &name, const QString &toolTip);
    void addPageNumber(QHBoxLayout *line);
    void addPageSize(QHBoxLayout *line);
};
