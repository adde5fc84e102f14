#include "gallery.h"

#include "skinnedwidget.h"
#include "tfcore/tfcore.h"

#include <QAction>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMovie>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTableWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QIcon skinIcon(const QString &file)
{
    return QIcon(TFCore::instance()->getCurrentSkinPath(file));
}

template <typename T> T *named(T *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QBoxLayout *tight(QBoxLayout *layout, int spacing = 0)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

} // namespace

Gallery::Gallery(QWidget *parent)
    : QMainWindow(parent)
{
    setWindowTitle(QStringLiteral("Skin gallery"));
    addBars();
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(makePage());
    splitter->addWidget(makeControls());
    splitter->setSizes({860, 440});
    setCentralWidget(splitter);
}

void Gallery::addBars()
{
    QMenu *menu = menuBar()->addMenu(QStringLiteral("视图"));
    for (const QString &skin : TFCore::instance()->skins())
        menu->addAction(skin, this, [skin] { TFCore::instance()->setCurrentSkin(skin); });
    menuBar()->addMenu(QStringLiteral("帮助"));

    QToolBar *bar = addToolBar(QStringLiteral("地址"));
    bar->addAction(skinIcon(QStringLiteral("subject.png")), QStringLiteral("主页"));
    bar->addSeparator();
    bar->addWidget(new QLineEdit(QStringLiteral("view://subjectpage?objvwid=260")));
    bar->addAction(QStringLiteral("打开"));
    statusBar()->addWidget(new QLabel(QStringLiteral("http://127.0.0.1:8080")));
    statusBar()->addPermanentWidget(new QLabel(QStringLiteral("3 个请求，0.21 秒")));

    auto *dock = new QDockWidget(QStringLiteral("发生了什么"));
    dock->setWidget(new QTextBrowser);
    dock->widget()->setMaximumHeight(60);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
}

QWidget *Gallery::makePage()
{
    auto *page = new TFSubjectPage;
    auto *frame = named(new QSplitter(Qt::Horizontal), "mainLayout");
    frame->setHandleWidth(2);
    frame->addWidget(makeTree());

    auto *right = new QSplitter(Qt::Vertical);
    auto *main = new QWidget;
    auto *column = tight(new QVBoxLayout(main));
    column->addWidget(named(new QLabel(QStringLiteral("沪深股票 · 行情概览")), "subjectTitle"));
    column->addWidget(makeFilterBar());
    column->addWidget(makeTable(), 1);
    column->addWidget(makePageLine());
    right->addWidget(main);
    right->addWidget(makeChildViews());
    right->setSizes({420, 200});
    frame->addWidget(right);
    frame->setSizes({210, 650});

    tight(new QHBoxLayout(page))->addWidget(frame);
    TFCore::instance()->addStyle2View(page, QStringLiteral("subject/subject.css"));
    return page;
}

QWidget *Gallery::makeTree()
{
    auto *side = new QWidget;
    auto *column = tight(new QVBoxLayout(side));
    column->addWidget(named(new QLabel(QStringLiteral("股票专题")), "subjectTitle"));

    auto *search = named(new QLineEdit, "SearchLine");
    search->setPlaceholderText(QStringLiteral("搜索"));
    search->addAction(skinIcon(QStringLiteral("subject/search.png")), QLineEdit::TrailingPosition);
    auto *line = new QHBoxLayout;
    line->setContentsMargins(12, 5, 12, 5);
    line->addWidget(search);
    column->addLayout(line);

    auto *tree = named(new QTreeWidget, "SubjectTreeView");
    tree->setHeaderHidden(true);
    for (const char *group : {"市场概览", "公司财务", "股东与股本"}) {
        auto *item = new QTreeWidgetItem(tree, {QString::fromUtf8(group)});
        for (const char *leaf : {"每日行情", "区间统计", "指数成分"}) {
            auto *child = new QTreeWidgetItem(item, {QString::fromUtf8(leaf)});
            child->setIcon(0, skinIcon(QStringLiteral("subject/tree_item_normal_2.png")));
        }
    }
    tree->expandItem(tree->topLevelItem(0));
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    tree->topLevelItem(2)->setCheckState(0, Qt::PartiallyChecked);
    column->addWidget(tree, 1);
    return side;
}

QWidget *Gallery::makeFilterBar()
{
    auto *bar = named(new TFFilterWidget, "filterWidget");
    auto *line = new QHBoxLayout(bar);
    line->setContentsMargins(5, 4, 5, 4);
    line->setSpacing(6);

    line->addWidget(new QLabel(QStringLiteral("单位")));
    auto *unit = new QComboBox;
    unit->addItems({QStringLiteral("亿元"), QStringLiteral("万元")});
    line->addWidget(unit);
    line->addSpacing(6);

    line->addWidget(new QLabel(QStringLiteral("日期")));
    auto *date = new QDateEdit(QDate(2020, 7, 31));
    date->setCalendarPopup(true);
    date->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    line->addWidget(date);
    line->addSpacing(6);

    line->addWidget(new QLabel(QStringLiteral("行业")));
    auto *checks = new QToolButton;
    checks->setText(QStringLiteral("银行;保险"));
    checks->setPopupMode(QToolButton::MenuButtonPopup);
    checks->setMenu(new QMenu(checks));
    line->addWidget(checks);

    auto *query = named(new QToolButton, "SimpleButtonGetDataButton");
    query->setText(QStringLiteral("提取数据"));
    query->setIcon(skinIcon(QStringLiteral("subject/download_hover.png")));
    query->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    line->addWidget(query);

    auto *save = named(new QToolButton, "SimpleButtonSaveToExcelButton");
    save->setText(QStringLiteral("保存"));
    save->setIcon(skinIcon(QStringLiteral("subject/save.png")));
    save->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    save->setPopupMode(QToolButton::InstantPopup);
    save->setMenu(new QMenu(save));
    line->addWidget(save);
    line->addStretch(1);
    return bar;
}

QWidget *Gallery::makeTable()
{
    constexpr int columns = 6, rows = 40;
    auto *table = new QTableWidget(rows, columns);
    table->setHorizontalHeaderLabels({QStringLiteral("代码"), QStringLiteral("名称"),
                                      QStringLiteral("收盘价"), QStringLiteral("涨跌幅(%)"),
                                      QStringLiteral("成交额(亿元)"), QStringLiteral("市盈率")});
    table->verticalHeader()->setMinimumSectionSize(24);
    table->verticalHeader()->setDefaultSectionSize(24);
    table->verticalHeader()->hide();
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    for (int row = 0; row < rows; ++row) {
        table->setItem(row, 0, new QTableWidgetItem(QString::number(600000 + row)));
        table->setItem(row, 1, new QTableWidgetItem(QStringLiteral("示例股份")));
        for (int column = 2; column < columns; ++column) {
            auto *item = new QTableWidgetItem(QString::number((row * 37 % 91) * 1.11 * column, 'f', 2));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table->setItem(row, column, item);
        }
    }
    table->selectRow(3);
    return table;
}

QWidget *Gallery::makePageLine()
{
    auto *line = named(new QFrame, "pageBar");
    auto *row = tight(new QHBoxLayout(line));
    row->addWidget(named(new QLabel(QStringLiteral("用时0.21秒")), "TimeSpendLabel"));
    row->addStretch(10);

    auto *bar = new TFPaginationBar;
    auto *inner = tight(new QHBoxLayout(bar), 6);
    const auto addButton = [inner](const char *name, bool enabled) {
        auto *button = named(new QPushButton, name);
        button->setFixedSize(16, 16);
        button->setEnabled(enabled);
        inner->addWidget(button);
    };
    addButton("headButton", false);
    addButton("prevButton", false);
    auto *current = named(new QLineEdit(QStringLiteral("1")), "currentPage");
    current->setFixedWidth(30);
    current->setAlignment(Qt::AlignCenter);
    inner->addWidget(current);
    inner->addWidget(named(new QLabel(QStringLiteral("/")), "label_2"));
    inner->addWidget(named(new QLabel(QStringLiteral("25")), "totalPage"));
    addButton("nextButton", true);
    addButton("tailButton", true);
    inner->addWidget(named(new QFrame, "fmLine"));
    auto *sizes = named(new QComboBox, "totalPageCombox");
    sizes->addItems({QStringLiteral("200"), QStringLiteral("1000")});
    inner->addWidget(sizes);
    inner->addWidget(named(new QLabel(QStringLiteral("条/页")), "lbUnit"));
    row->addWidget(bar);
    row->addSpacing(8);
    TFCore::instance()->addStyle2View(bar, QStringLiteral("subject/pagination.css"));
    return line;
}

QWidget *Gallery::makeChildViews()
{
    auto *tabs = named(new QTabWidget, "subViewContainer");
    for (const char *title : {"分红", "股本变动", "主要财务指标", "十大股东"})
        tabs->addTab(new QWidget, QString::fromUtf8(title));
    auto *corner = named(new QPushButton, "cornerButton");
    corner->setCheckable(true);
    tabs->setCornerWidget(corner);

    auto *loading = new QLabel(tabs->widget(0));
    auto *movie = new QMovie(TFCore::instance()->getCurrentSkinPath(QStringLiteral("subject/loading.gif")),
                             QByteArray(), loading);
    loading->setMovie(movie);
    loading->setGeometry(300, 30, 32, 32);
    movie->start();
    return tabs;
}

QWidget *Gallery::makeControls()
{
    auto *side = new QWidget;
    auto *column = new QVBoxLayout(side);
    column->addWidget(makeButtons());
    column->addWidget(makeFields());
    column->addWidget(new QCalendarWidget);
    column->addStretch(1);
    return side;
}

QWidget *Gallery::makeButtons()
{
    auto *box = new QGroupBox(QStringLiteral("按钮"));
    auto *grid = new QGridLayout(box);
    const auto add = [grid](QWidget *widget) {
        grid->addWidget(widget, grid->count() / 4, grid->count() % 4);
    };
    add(new QPushButton(QStringLiteral("取消")));
    auto *main = new QPushButton(QStringLiteral("应用"));
    main->setDefault(true);
    add(main);
    auto *disabled = new QPushButton(QStringLiteral("停用"));
    disabled->setEnabled(false);
    add(disabled);
    auto *checked = new QPushButton(QStringLiteral("按下"));
    checked->setCheckable(true);
    checked->setChecked(true);
    add(checked);

    auto *check = new QCheckBox(QStringLiteral("过滤栏"));
    check->setChecked(true);
    add(check);
    add(new QCheckBox(QStringLiteral("主视图")));
    auto *partly = new QCheckBox(QStringLiteral("部分"));
    partly->setCheckState(Qt::PartiallyChecked);
    add(partly);
    auto *radio = new QRadioButton(QStringLiteral("单选"));
    radio->setChecked(true);
    add(radio);
    return box;
}

QWidget *Gallery::makeFields()
{
    auto *box = new QGroupBox(QStringLiteral("输入"));
    auto *grid = new QGridLayout(box);
    const auto add = [grid](QWidget *widget) {
        grid->addWidget(widget, grid->count() / 3, grid->count() % 3);
    };
    add(new QLineEdit(QStringLiteral("文本")));
    auto *disabled = new QLineEdit(QStringLiteral("停用"));
    disabled->setEnabled(false);
    add(disabled);
    auto *spin = new QSpinBox;
    spin->setRange(-10000, 10000);
    add(spin);
    auto *progress = new QProgressBar;
    progress->setValue(40);
    add(progress);
    auto *combo = new QComboBox;
    combo->addItem(QStringLiteral("停用"));
    combo->setEnabled(false);
    add(combo);

    auto *menu = new QMenu;
    menu->setParent(box, Qt::Widget);
    menu->addAction(QStringLiteral("复制"));
    menu->addSeparator();
    QAction *ticked = menu->addAction(QStringLiteral("只看持有"));
    ticked->setCheckable(true);
    ticked->setChecked(true);
    menu->addMenu(QStringLiteral("更多"));
    menu->addAction(QStringLiteral("停用"))->setEnabled(false);
    menu->setActiveAction(menu->actions().constFirst());
    grid->addWidget(menu, 2, 0, 2, 1);

    auto *list = new QListWidget;
    for (const char *text : {"银行", "保险", "证券"}) {
        auto *item = new QListWidgetItem(QString::fromUtf8(text), list);
        item->setCheckState(list->count() == 2 ? Qt::Checked : Qt::Unchecked);
    }
    list->setCurrentRow(1);
    list->setFixedHeight(90);
    grid->addWidget(list, 2, 1, 2, 2);
    return box;
}
