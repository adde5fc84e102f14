#include "tfpaginationform.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
const QSize kBarSize(285, 22);
const QSize kButtonSize(16, 16);

QString text(const char *source)
{
    return QCoreApplication::translate("TFPaginationBar", source);
}
} // namespace

void TFPaginationForm::build(QFrame *bar)
{
    bar->resize(kBarSize);
    auto *grid = new QGridLayout(bar);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    auto *line = new QHBoxLayout;
    line->setSpacing(6);
    line->setContentsMargins(2, 0, 2, 0);
    grid->addLayout(line, 0, 0);

    headButton = addButton(line, QStringLiteral("headButton"), text("首页"));
    prevButton = addButton(line, QStringLiteral("prevButton"), text("上一页"));
    addPageNumber(line);
    nextButton = addButton(line, QStringLiteral("nextButton"), text("下一页"));
    tailButton = addButton(line, QStringLiteral("tailButton"), text("末页"));
    addPageSize(line);
}

QPushButton *TFPaginationForm::addButton(QHBoxLayout *line, const QString &name, const QString &toolTip)
{
    auto *button = new QPushButton;
    button->setObjectName(name);
    button->setFixedSize(kButtonSize);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    line->addWidget(button);
    return button;
}

void TFPaginationForm::addPageNumber(QHBoxLayout *line)
{
    currentPage = new QLineEdit(QStringLiteral("1"));
    currentPage->setObjectName(QStringLiteral("currentPage"));
    currentPage->setFixedWidth(30);
    currentPage->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    currentPage->setAlignment(Qt::AlignCenter);
    currentPage->setAccessibleName(text("当前页"));
    line->addWidget(currentPage);

    label_2 = new QLabel(QStringLiteral("/"));
    label_2->setObjectName(QStringLiteral("label_2"));
    label_2->setFixedWidth(10);
    line->addWidget(label_2);

    totalPage = new QLabel(QStringLiteral("5"));
    totalPage->setObjectName(QStringLiteral("totalPage"));
    totalPage->setMinimumWidth(24);
    line->addWidget(totalPage);
}

void TFPaginationForm::addPageSize(QHBoxLayout *line)
{
    fmLine = new QFrame;
    fmLine->setObjectName(QStringLiteral("fmLine"));
    line->addWidget(fmLine);

    totalPageCombox = new QComboBox(line->parentWidget());
    totalPageCombox->setObjectName(QStringLiteral("totalPageCombox"));
    totalPageCombox->setAccessibleName(text("每页行数"));
    line->addWidget(totalPageCombox);

    lbUnit = new QLabel(text("条/页"));
    lbUnit->setObjectName(QStringLiteral("lbUnit"));
    line->addWidget(lbUnit);
}
