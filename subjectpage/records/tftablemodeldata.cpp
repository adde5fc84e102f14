#include "tftablemodeldata.h"

#include <tuple>

namespace TFTableModelData {

namespace {
auto tied(const FilterData &f)
{
    return std::tie(f.DefualtValue, f.FieldName, f.ShowValue, f.Width, f.ParameterCategory, f.BeginGroup,
                    f.Filter, f.DataSource, f.Operator, f.NameValues, f.UnitCategory, f.ValueType,
                    f.FilterCntrl, f.ClassName, f.Value, f.ImageIndex, f.Caption, f.ControlParameters,
                    f.DataSourceFilter, f.DataSourceFilterParams, f.DataSourceName);
}
} // namespace

bool FilterData::operator==(const FilterData &other) const
{
    return tied(*this) == tied(other);
}

} // namespace TFTableModelData
