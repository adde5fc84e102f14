#include "demofeatures.h"
#include "demoview.h"
#include "quotemodel.h"

#include <gridcontrol/grid.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCommandLineParser>
#include <QLabel>
#include <QMimeData>
#include <QTextBrowser>
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
        , m_list(new QComboBox(this))
        , m_pasted(new QTextBrowser(this))
        , m_said(new QLabel(this))
    {
        auto *tools = new QToolBar(this);
        for (const Feature &feature : features())
            m_list->addItem(feature.title);
        connect(m_list, QOverload<int>::of(&QComboBox::activated), this,
                [this](int index) { choose(features().at(index)); });
        tools->addWidget(m_list);
        QAction *dark = tools->addAction(tr("深色"));
        dark->setCheckable(true);
        connect(dark, &QAction::toggled, this, &DemoWindow::setDark);
        tools->addAction(tr("查找"), this, [this] { m_grid->rootView()->showFindBar(); });

        auto *box = new QVBoxLayout(this);
        box->setContentsMargins(8, 4, 8, 8);
        box->addWidget(tools);
        box->addWidget(m_grid, 1);
        box->addWidget(m_pasted);
        box->addWidget(m_said);
        m_pasted->setFixedHeight(200);
        setWindowTitle(QStringLiteral("gridcontrol"));
    }

    void choose(const Feature &feature)
    {
        m_list->setCurrentText(feature.title);
        m_pasted->setVisible(feature.name == QLatin1String("copy"));
        feature.show(*m_grid, m_model);
        if (const QMimeData *copied = QApplication::clipboard()->mimeData())
            m_pasted->setHtml(copied->html());
        GridViewBase *view = m_grid->rootView();
        connect(view->itemView()->selectionModel(), &QItemSelectionModel::currentChanged, m_said,
                [this] { sayCurrent(); });
        connect(view, &GridViewBase::editorLinkActivated, m_said, [this](EditorLinkEventArgs *args) {
            m_said->setText(tr("链接: 第 %1 行").arg(args->row().rowIndex() + 1));
        });
        connect(view->getColumn(QuoteModel::Note), &GridColumn::buttonClicked, m_said,
                [this](CellButtonClickEventArgs *args) {
                    m_said->setText(args->row().cell(QuoteModel::Note).modelIndex().data().toString());
                });
        sayCurrent();
    }

    void setDark(bool on)
    {
        qApp->setStyleSheet(QString::fromLatin1(on ? darkSheet() : lightSheet()));
        m_model.setDark(on);
    }

private:
    // What a screen reader is told of the current cell.
    void sayCurrent()
    {
        QAccessibleInterface *table = QAccessible::queryAccessibleInterface(m_grid->rootView()->itemView());
        const QAccessibleInterface *cell = table->focusChild();
        m_said->setText(
            cell ? tr("朗读: %1, %2").arg(cell->text(QAccessible::Description), cell->text(QAccessible::Name))
                 : QString());
    }

    QuoteModel m_model;
    Grid *m_grid;
    QComboBox *m_list;
    QTextBrowser *m_pasted;
    QLabel *m_said;
};

// The feature of that name; null for none.
const Feature *featureOf(const QString &name)
{
    const auto found = std::find_if(features().begin(), features().end(),
                                    [&](const Feature &feature) { return feature.name == name; });
    return found == features().end() ? nullptr : &*found;
}

void addOptions(QCommandLineParser &options)
{
    QStringList names;
    for (const Feature &feature : features())
        names.append(feature.name);
    options.setApplicationDescription(QStringLiteral("Shows the grid control on invented quotes."));
    options.addHelpOption();
    options.addOptions(
        {{QStringLiteral("rows"), QStringLiteral("Rows of the table."), QStringLiteral("n"),
          QStringLiteral("1000000")},
         {QStringLiteral("columns"), QStringLiteral("Columns of the table."), QStringLiteral("n"),
          QStringLiteral("200")},
         {QStringLiteral("dark"), QStringLiteral("Start in the dark scheme.")},
         {QStringLiteral("feature"), QStringLiteral("One of %1.").arg(names.join(QStringLiteral(", "))),
          QStringLiteral("name"), QStringLiteral("bands")},
         {QStringLiteral("size"), QStringLiteral("Size of the window."), QStringLiteral("WIDTHxHEIGHT"),
          QStringLiteral("1280x800")},
         {QStringLiteral("shot"), QStringLiteral("Write a picture of the window and end."),
          QStringLiteral("file")}});
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    QCommandLineParser options;
    addOptions(options);
    options.process(application);
    const Feature *feature = featureOf(options.value(QStringLiteral("feature")));
    if (!feature) {
        qCritical("gridcontrol-demo: there is no feature \"%s\"; --help lists them",
                  qPrintable(options.value(QStringLiteral("feature"))));
        return 2;
    }
    QFont font = QApplication::font();
    font.setFamilies({QStringLiteral("WenQuanYi Micro Hei"), font.family()});
    font.setPixelSize(12);
    QApplication::setFont(font);
    DemoWindow window(qMax(0, options.value(QStringLiteral("rows")).toInt()),
                      qMax(QuoteModel::FirstFigure + 1, options.value(QStringLiteral("columns")).toInt()));
    window.setDark(options.isSet(QStringLiteral("dark")));
    const QStringList size = options.value(QStringLiteral("size")).split(QLatin1Char('x'));
    window.resize(size.value(0).toInt(), size.value(1).toInt());
    window.show();
    window.choose(*feature);
    if (!options.isSet(QStringLiteral("shot")))
        return QApplication::exec();
    QApplication::processEvents();
    return window.grab().save(options.value(QStringLiteral("shot"))) ? 0 : 1;
}
