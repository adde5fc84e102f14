#include "tfviewsteps.h"

#include "echarts/tfmulticharts.h"
#include "filterwidget/tfbasefilterwidget.h"
#include "filterwidget/tffilterwidget.h"
#include "pagination/tfpaginationbar.h"
#include "tfcontrolsurface.h"
#include "tfgridaccess.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjecttablewidget.h"

#include <QComboBox>
#include <QJsonObject>
#include <QTabWidget>

#include <algorithm>
#include <functional>

namespace {
const char kPageSizeBox[] = "totalPageCombox";
const QString kUnitControl = QStringLiteral("UnitFactorCombobox");
const QString kQueryControl = QStringLiteral("SimpleButtonGetData");

int number(const QJsonObject &step, const char *key)
{
    return step.value(QLatin1String(key)).toInt(-1);
}

TFSubjectTableWidget *mainTable(const TFRightContainer &views, QString *reason)
{
    auto *table = qobject_cast<TFSubjectTableWidget *>(views.mainView()->currentView());
    if (!table)
        *reason = QStringLiteral("the main view is no table");
    return table;
}

TFFilterWidget *filterBar(const TFRightContainer &views, QString *reason)
{
    TFBaseView *view = views.mainView()->currentView();
    const auto *chart = qobject_cast<TFMultiCharts *>(view);
    const auto *table = qobject_cast<TFSubjectTableWidget *>(view);
    TFFilterWidget *bar = chart ? chart->filterBar() : table ? table->filterBar() : nullptr;
    if (bar && !bar->isHidden())
        return bar;
    *reason = QStringLiteral("the page shows no filter bar");
    return nullptr;
}

using Wanted = std::function<bool(const TFTableModelData::FilterData &)>;

/// The first control of the bar for whose row \a isWanted holds; \a name tells of one that is missing.
TFBaseFilterWidget *findControl(const TFRightContainer &views, const Wanted &isWanted, const QString &name,
                                QString *reason)
{
    const TFFilterWidget *bar = filterBar(views, reason);
    if (!bar)
        return nullptr;
    const QList<TFBaseFilterWidget *> controls = bar->controls();
    const auto found =
        std::find_if(controls.begin(), controls.end(), [&isWanted](const TFBaseFilterWidget *control) {
            return !control->isHidden() && isWanted(control->row());
        });
    if (found != controls.end())
        return *found;
    *reason = QStringLiteral("the filter bar has no %1").arg(name);
    return nullptr;
}

TFBaseFilterWidget *controlOfClass(const TFRightContainer &views, const QString &className,
                                   const QString &name, QString *reason)
{
    return findControl(
        views, [&className](const TFTableModelData::FilterData &row) { return row.ClassName == className; },
        name, reason);
}

TFBaseFilterWidget *controlOfStep(const TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    const QString field = step.value(QLatin1String("field")).toString();
    if (!field.isEmpty())
        return findControl(
            views, [&field](const TFTableModelData::FilterData &row) { return row.FieldName == field; },
            QStringLiteral("control of the field \"%1\"").arg(field), reason);
    const QString caption = step.value(QLatin1String("caption")).toString();
    return findControl(
        views, [&caption](const TFTableModelData::FilterData &row) { return row.Caption == caption; },
        QStringLiteral("control \"%1\"").arg(caption), reason);
}
} // namespace

namespace TFViewSteps {

bool row(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    const TFSubjectTableWidget *table = mainTable(views, reason);
    return table && TFGridAccess(table->grid()).selectRow(number(step, "index"), reason);
}

bool link(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    const TFSubjectTableWidget *table = mainTable(views, reason);
    return table &&
           TFGridAccess(table->grid()).followLink(number(step, "row"), number(step, "column"), reason);
}

bool sort(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    const TFSubjectTableWidget *table = mainTable(views, reason);
    return table && TFGridAccess(table->grid()).sort(number(step, "column"), reason);
}

bool page(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    const TFSubjectTableWidget *table = mainTable(views, reason);
    if (!table)
        return false;
    const int wanted = number(step, "number");
    TFPaginationBar *bar = table->paginationBar();
    if (wanted < 1 || wanted > bar->pageCount()) {
        *reason = QStringLiteral("there is no page %1, the table has %2").arg(wanted).arg(bar->pageCount());
        return false;
    }
    if (wanted != bar->currentPage())
        bar->setCurrentPage(wanted);
    return true;
}

bool pageSize(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    const TFSubjectTableWidget *table = mainTable(views, reason);
    if (!table)
        return false;
    const QString wanted = QString::number(number(step, "size"));
    auto *box = table->paginationBar()->findChild<QComboBox *>(QLatin1String(kPageSizeBox));
    const int index = table->paginationBar()->pageSizes().indexOf(wanted);
    if (index < 0) {
        *reason = QStringLiteral("%1 rows a page is not among: %2")
                      .arg(wanted, table->paginationBar()->pageSizes().join(", "));
        return false;
    }
    box->setCurrentIndex(index);
    emit box->activated(index);
    return true;
}

bool filter(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    TFBaseFilterWidget *control = controlOfStep(views, step, reason);
    return control && TFControlSurface(control).setValue(step.value(QLatin1String("value")), reason);
}

bool unit(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    TFBaseFilterWidget *control =
        controlOfClass(views, kUnitControl, QStringLiteral("choice of units"), reason);
    return control && TFControlSurface(control).setValue(step.value(QLatin1String("text")), reason);
}

bool query(TFRightContainer &views, const QJsonObject &, QString *reason)
{
    TFBaseFilterWidget *control =
        controlOfClass(views, kQueryControl, QStringLiteral("query button"), reason);
    if (!control || TFControlSurface(control).press())
        return control;
    *reason = QStringLiteral("the query button can't be pressed");
    return false;
}

bool tab(TFRightContainer &views, const QJsonObject &step, QString *reason)
{
    QTabWidget *tabs = views.childViews();
    const int wanted = number(step, "index");
    if (wanted < 0 || wanted >= tabs->count()) {
        *reason = QStringLiteral("there is no tab %1, the page has %2 from 0").arg(wanted).arg(tabs->count());
        return false;
    }
    tabs->setCurrentIndex(wanted);
    return true;
}

} // namespace TFViewSteps
