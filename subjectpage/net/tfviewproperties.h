#pragma once

#include <QJsonArray>
#include <QString>

namespace TFUc {

/// The property rows of a view's configuration as one record. Names are those of the wire, misspellings too.
struct TFViewProperties
{
    bool isShowRelated = false;
    bool isShowChild = false;
    bool IsStat = false;
    bool IsSeriesDataRelation = false;
    bool IsOutput = false;
    bool IsHideState = false;
    bool IsCellSelect = false;
    bool IsShowIndicator = false;
    bool IsGetChartData = false;
    bool isShowBand = false;
    bool IsWrap = false;
    bool isPaged = true;
    bool IsPagesize = false;
    bool IsTurnOver = false;
    bool IsOutputAfterCross = false;
    bool IsGroupByBand = false;
    bool IsCrossSortByDesc = false;
    bool IsCross = false;
    bool IsHideVertLines = false;
    bool IsAutoSizeColumns = false;
    bool IsGroupSortByDesc = false;
    bool IsGroup = false;
    bool isAllowExport = false;
    bool IsOrder = false;
    bool isShowFilter = true;
    bool isShowBlock = false;

    // JSON texts of the rows that carry a table.
    QString relatedView;
    QString childView;
    QString filters;
    QString ChartViewConfig;
    QString Bands;

    // Whole numbers.
    double pageSize = 200;
    double VGridColumnWidth = 200;
    double FrozenCount = 0;
    double BandsLevel = 1;

    QString WebPageURL;
    QString ObjViewType;
    QString MainViewHeight;
    QString ViewStyle;
    QString VGridTextAlignment;
    QString MaxColumnWith;
    QString RowHeaderWith;
    QString VGridRowHeaderType;
    QString VGridColHeaderField;
    QString SectorNum;
    QString RootSectorNum;
    QString GroupFormatString;
    QString FieldNameSortGroup;
    QString GroupFields;
    QString BandGroupType;
    QString CrossField;
    QString FilterBarType;
    QString Order;
};

/// Reads the rows of "View_Config". Names are matched exactly; of several rows of one name the last counts.
/// A flag is true only for the text "1". Rows that are not objects or have another name are passed over.
TFViewProperties readViewProperties(const QJsonArray &rows);

} // namespace TFUc
