#include "filterwidget/tfbasefilterwidget.h"
#include "filterwidget/tffilterwidget.h"
#include "filterwidget/tfsortview.h"
#include "jsonparser/tffilterjsontable.h"
#include "look.h"
#include "records/tfclock.h"
#include "tfcore/itfskin.h"
#include "tfcore/tfcore.h"
#include "tftranslations.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <cstdio>

using Rows = QList<TFTableModelData::FilterData>;

namespace {
struct Picture
{
    QString name;
    Rows rows;
};

/// The examples of docs/filters.md: each block of JSON, with the name of the picture behind it.
QList<Picture> readExamples(const QString &document)
{
    QList<Picture> pictures;
    QFile file(document);
    if (!file.open(QIODevice::ReadOnly))
        return pictures;
    const QStringList sections = QString::fromUtf8(file.readAll()).split(QStringLiteral("```json\n"));
    for (const QString &section : sections.mid(1)) {
        const QString json = section.section(QStringLiteral("\n```"), 0, 0);
        const QString picture =
            section.section(QStringLiteral("filters-"), 1).section(QStringLiteral(".png"), 0, 0);
        TFFilterJsonTable table;
        table.initWith('[' + json + ']');
        pictures.append({picture, table.filters()});
    }
    return pictures;
}

/// A bar as it looks in a page.
class Stage : public QWidget, public ITFSkin
{
public:
    explicit Stage(const Rows &rows)
        : bar(new TFFilterWidget)
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(bar);
        TFCore::instance()->addStyle2View(this, QStringLiteral("subject/subject.css"));
        bar->setFilterData(rows);
    }

    QWidget *object() override { return this; }
    void applySkinStyle(const QVariant &style) override { setStyleSheet(style.toString()); }

    TFFilterWidget *bar;
};

bool save(QWidget &widget, const QString &file)
{
    QApplication::processEvents();
    if (QWidget *focused = QApplication::focusWidget())
        focused->clearFocus();
    const bool isWritten = widget.grab().save(file);
    if (!isWritten)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    return isWritten;
}

/// One picture an example, as narrow as the controls.
bool drawExamples(const QList<Picture> &examples, const QString &folder)
{
    for (const Picture &example : examples) {
        Stage stage(example.rows);
        stage.show();
        int width = 5;
        for (const auto *control : stage.bar->findChildren<TFBaseFilterWidget *>())
            width += control->isHidden() ? 0 : control->sizeHint().width() + 12;
        stage.resize(qMax(60, width), 36);
        if (!save(stage, folder + "/filters-" + example.name + ".png"))
            return false;
    }
    return true;
}

/// All examples in one bar, some of them changed, what pops up from them, and the sort dialog.
bool drawBar(const QList<Picture> &examples, const QString &prefix)
{
    Rows rows;
    for (const Picture &example : examples)
        rows += example.rows;
    Stage stage(rows);
    stage.resize(1000, 200);
    stage.show();
    stage.bar->findChild<QLineEdit *>()->setText(QStringLiteral("银行"));
    stage.bar->findChild<QComboBox *>()->setCurrentIndex(1);
    if (!save(stage, prefix + "-bar.png"))
        return false;
    auto *list = stage.bar->findChild<QListWidget *>();
    QWidget *menu = list->parentWidget();
    menu->adjustSize();
    auto *date = stage.bar->findChild<QDateEdit *>();
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(date, &press);
    QCalendarWidget *calendar = date->calendarWidget();
    calendar->setSelectedDate(QDate(2020, 7, 31));
    auto *box = stage.bar->findChild<QComboBox *>();
    box->showPopup();
    TFSortView sorting({QStringLiteral("最新价"), QStringLiteral("涨跌幅")});
    sorting.on_pushButton_2_clicked();
    sorting.on_pushButton_2_clicked();
    sorting.show();
    return save(*menu, prefix + "-ticks.png") && save(*calendar, prefix + "-calendar.png") &&
           save(*box->view()->window(), prefix + "-list.png") && save(sorting, prefix + "-sort.png");
}
} // namespace

/// Draws the pictures of docs/filters.md from its own examples: filter-pictures DOCUMENT FOLDER [SKIN]. With
/// a skin it draws the whole bar and its popups in that skin instead.
int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    Look look;
    look.prepare(&app);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: filter-pictures DOCUMENT FOLDER [SKIN]\n");
        return 2;
    }
    const QString skin = arguments.value(3, QStringLiteral("white"));
    TFCore::instance()->setSkinRoot(QStringLiteral(SKIN_FOLDER));
    if (!look.setSkin(skin))
        return 2;
    TFTranslations::install();
    TFClock::setNow([] { return QDateTime(QDate(2021, 5, 20), QTime(10, 0)); });
    const QList<Picture> examples = readExamples(arguments.at(1));
    const QString folder = arguments.at(2);
    if (arguments.size() <= 3)
        return drawExamples(examples, folder) ? 0 : 1;
    return drawBar(examples, folder + '/' + skin) ? 0 : 1;
}
