#include "demoview.h"
#include "quotemodel.h"

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qtitan;

namespace {
class DemoWindow : public QWidget
{
public:
    DemoWindow(int rows, int columns)
        : m_model(rows, columns)
        , m_grid(new Grid(this))
        , m_said(new QLabel(this))
    {
        auto *tools = new QToolBar(this);
        auto *layouts = new QComboBox(tools);
        layouts->addItems({tr("多级表头"), tr("单级表头"), tr("分组")});
        connect(layouts, QOverload<int>::of(&QComboBox::activated), this, &DemoWindow::choose);
        tools->addWidget(layouts);
        QAction *dark = tools->addAction(tr("深色"));
        dark->setCheckable(true);
        connect(dark, &QAction::toggled, this, &DemoWindow::setDark);
        tools->addAction(tr("查找"), this, [this] { m_grid->rootView()->showFindBar(); });

        auto *box = new QVBoxLayout(this);
        box->setContentsMargins(8, 4, 8, 8);
        box->addWidget(tools);
        box->addWidget(m_grid, 1);
        box->addWidget(m_said);
        choose(0);
        setWindowTitle(QStringLiteral("gridcontrol"));
        resize(1280, 800);
    }

    void choose(int layout)
    {
        if (layout == 1)
            showPlain(*m_grid, m_model);
        else
            showBanded(*m_grid, m_model);
        GridViewBase *view = m_grid->rootView();
        if (layout == 2) {
            view->getColumn(QuoteModel::Board)->setGroupIndex(0);
            view->expandAll();
        }
        connect(view, &GridViewBase::focusRowChanged, m_said,
                [this](int, int row) { m_said->setText(tr("第 %1 行").arg(row + 1)); });
        connect(view, &GridViewBase::editorLinkActivated, m_said, [this](EditorLinkEventArgs *args) {
            m_said->setText(tr("链接: 第 %1 行").arg(args->row().rowIndex() + 1));
        });
        connect(view->getColumn(QuoteModel::Note), &GridColumn::buttonClicked, m_said,
                [this](CellButtonClickEventArgs *args) {
                    m_said->setText(args->row().cell(QuoteModel::Note).modelIndex().data().toString());
                });
    }

    void setDark(bool on) { qApp->setStyleSheet(QString::fromLatin1(on ? darkSheet() : lightSheet())); }

private:
    QuoteModel m_model;
    Grid *m_grid;
    QLabel *m_said;
};
} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication application(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Shows the grid control on invented quotes."));
    options.addHelpOption();
    options.addOptions(
        {{QStringLiteral("rows"), QStringLiteral("Rows of the table."), QStringLiteral("n"),
          QStringLiteral("1000000")},
         {QStringLiteral("columns"), QStringLiteral("Columns of the table."), QStringLiteral("n"),
          QStringLiteral("200")},
         {QStringLiteral("dark"), QStringLiteral("Start in the dark scheme.")},
         {QStringLiteral("layout"), QStringLiteral("0 banded, 1 plain, 2 grouped."), QStringLiteral("n"),
          QStringLiteral("0")},
         {QStringLiteral("shot"), QStringLiteral("Write a picture and end."), QStringLiteral("file")}});
    options.process(application);

    QFont font = QApplication::font();
    font.setFamilies({QStringLiteral("WenQuanYi Micro Hei"), font.family()});
    font.setPixelSize(12);
    QApplication::setFont(font);
    DemoWindow window(qMax(0, options.value(QStringLiteral("rows")).toInt()),
                      qMax(QuoteModel::FirstFigure + 1, options.value(QStringLiteral("columns")).toInt()));
    window.choose(options.value(QStringLiteral("layout")).toInt());
    window.setDark(options.isSet(QStringLiteral("dark")));
    window.show();
    if (!options.isSet(QStringLiteral("shot")))
        return QApplication::exec();
    QApplication::processEvents();
    return window.grab().save(options.value(QStringLiteral("shot"))) ? 0 : 1;
}
