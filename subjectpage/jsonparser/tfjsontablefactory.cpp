#include "tfjsontablefactory.h"

#include "tfchartviewjsontable.h"
#include "tfchildviewjsontable.h"
#include "tfdatajsontable.h"
#include "tffilterjsontable.h"
#include "tfheaderfieldconfigdata.h"
#include "tfobjectpropertytable.h"
#include "tfobjectviewconfigtable.h"
#include "tfobjectviewjsontable.h"
#include "tfsummaryjsontable.h"
#include "tftablenames.h"
#include "tfviewconfigtable.h"

std::unique_ptr<TFBaseJsonTable> TFJsonTableFactory::create(int tableId)
{
    switch (tableId) {
    case TFTableId::Data:
        return std::make_unique<TFDataJsonTable>();
    case TFTableId::ObjectProperty:
        return std::make_unique<TFObjectPropertyTable>();
    case TFTableId::ObjectView:
        return std::make_unique<TFObjectViewJsonTable>();
    case TFTableId::ViewConfig:
        return std::make_unique<TFViewConfigTable>();
    case TFTableId::Summary:
        return std::make_unique<TFSummaryJsonTable>();
    case TFTableId::HeaderFields:
        return std::make_unique<TFHeaderFieldConfigData>(nullptr, true);
    case TFTableId::ChildViews:
        return std::make_unique<TFChildViewJsonTable>();
    case TFTableId::Filters:
        return std::make_unique<TFFilterJsonTable>();
    case TFTableId::ChartView:
        return std::make_unique<TFChartViewJsonTable>();
    case TFTableId::ObjectViewConfig:
        return std::make_unique<TFObjectViewConfigTable>();
    default:
        return nullptr;
    }
}
