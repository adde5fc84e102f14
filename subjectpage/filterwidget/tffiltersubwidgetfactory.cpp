#include "tffiltersubwidgetfactory.h"

#include "records/tfcategories.h"
#include "tfcheckcombox.h"
#include "tfcombobox.h"
#include "tfdateedit.h"
#include "tfdatetimeinterval.h"
#include "tfdecimaltexteditinterval.h"
#include "tffilterlabel.h"
#include "tffilterwidget.h"
#include "tflineedit.h"
#include "tfmultiyear.h"
#include "tfpushbutton.h"
#include "tfreportdatesimple.h"
#include "tfyearmonthinterval.h"
#include "tfyearmonthsimple.h"

namespace {
using Row = TFTableModelData::FilterData;
using Maker = TFBaseFilterWidget *(*)(const Row &, TFFilterWidget *);

template <typename Control> TFBaseFilterWidget *make(const Row &row, TFFilterWidget *bar)
{
    return new Control(row, bar);
}

template <TFMultiYear::Choice choice> TFBaseFilterWidget *makeYears(const Row &row, TFFilterWidget *bar)
{
    return new TFMultiYear(row, choice, bar);
}

TFBaseFilterWidget *makeComboBox(const Row &row, TFFilterWidget *bar)
{
    auto *box = new TFComboBox(row, bar);
    if (box->objectName() == QLatin1String("UnitFactorCombobox"))
        QObject::connect(box, &TFComboBox::signalCurrentIndexChanged, bar,
                         &TFFilterWidget::signalComboBoxChanged);
    return box;
}

TFBaseFilterWidget *makeButton(const Row &row, TFFilterWidget *bar)
{
    auto *button = new TFPushbutton(row, bar);
    if (button->objectName() == QLatin1String("SimpleButtonGetData"))
        QObject::connect(button, &TFPushbutton::clicked, bar,
                         &TFFilterWidget::slotSimpleButtonGetDataClicked);
    else if (button->objectName() == QLatin1String("SimpleButtonSaveToExcel"))
        QObject::connect(button, &TFPushbutton::clickedSaveBtn, bar,
                         &TFFilterWidget::slotSimpleButtonSaveToExcel);
    else if (button->objectName() == QLatin1String("SimpleButtonSort"))
        QObject::connect(button, &TFPushbutton::clicked, bar, &TFFilterWidget::signalSortChanged);
    return button;
}

TFBaseFilterWidget *makeHidden(const Row &row, TFFilterWidget *bar)
{
    auto *label = new TFFilterLabel(row, bar);
    label->hide();
    return label;
}

struct Rule
{
    enum Test { Equals, Contains } test;
    const char *word;
    Maker maker;

    bool holds(const QString &className) const
    {
        return test == Equals ? className == QLatin1String(word)
                              : className.contains(QLatin1String(word), Qt::CaseInsensitive);
    }
};

// The first rule that holds decides: the order belongs to the format.
const Rule Rules[] = {
    {Rule::Equals, "DecimalTextEditInterval", make<TFDecimalTextEditInterval>},
    {Rule::Contains, "dateedit", make<TFDateEdit>},
    {Rule::Contains, "simpleyear", makeYears<TFMultiYear::Choice::Single>},
    {Rule::Contains, "multyear", makeYears<TFMultiYear::Choice::Many>},
    {Rule::Contains, "checkcombobox", make<TFCheckCombox>},
    {Rule::Contains, "combobox", makeComboBox},
    {Rule::Contains, "textedit", make<TFLineEdit>},
    {Rule::Contains, "KeywordsBox", make<TFLineEdit>},
    {Rule::Contains, "button", makeButton},
    {Rule::Contains, "datetimeinterval", make<TFDatetimeInterval>},
    {Rule::Contains, "ReportDateSimple", make<TFReportDateSimple>},
    {Rule::Contains, "YearMonthInterval", make<TFYearMonthInterval>},
    {Rule::Contains, "virtualcntrl", makeHidden},
    {Rule::Contains, "F9SecuIdCntrl", makeHidden},
    {Rule::Contains, "F9COMIDCntrl", makeHidden},
    {Rule::Contains, "YearMonthSimple", make<TFYearMonthSimple>},
};
} // namespace

TFBaseFilterWidget *TFFilterCtlFactory::createWidget(const TFTableModelData::FilterData &row,
                                                     TFFilterWidget *bar)
{
    if (row.ClassName.isEmpty())
        return nullptr;
    for (const Rule &rule : Rules) {
        if (!rule.holds(row.ClassName))
            continue;
        TFBaseFilterWidget *control = rule.maker(row, bar);
        control->takeAsDefault();
        return control;
    }
    qCDebug(lcFilter) << "\n--------------not suports no contains-------------\n ";
    qCDebug(lcFilter) << "not suports no contains: " << row.ClassName << row.Caption;
    qCDebug(lcFilter) << "\n--------------not suports no contains-------------\n ";
    return nullptr;
}
