#pragma once

#include "records/filterparam.h"
#include "records/tftablemodeldata.h"

#include <QVariantMap>

/// What a component keeps of the filter bar of its settings.
namespace TFSettingArguments {

/// Whether the control named \a objName only acts on a view: the hidden value and the query and export
/// buttons. It has no say in the arguments.
bool isPassedOver(const QString &objName);

/// A map from field to value: an interval under its fields, a list joined by commas, all else as it is. Of
/// two controls on one field the later counts.
QVariantMap read(const QList<FilterParam::Cntrl> &controls);

/// The default that has the control of \a row show \a argument: its text, but in the form that dates and
/// intervals read. An interval shows its one argument at both ends. What read() gives for the control is then
/// the argument again.
QString asDefault(const TFTableModelData::FilterData &row, const QVariant &argument);

} // namespace TFSettingArguments
