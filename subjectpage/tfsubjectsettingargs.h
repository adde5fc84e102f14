#pragma once

#include "records/filterparam.h"

#include <QVariantMap>

/// What a component keeps of the filter bar of its settings.
namespace TFSettingArguments {

/// Whether the control named \a objName only acts on a view: the hidden value and the query and export
/// buttons. It has no say in the arguments.
bool isPassedOver(const QString &objName);

/// A map from field to value: an interval under its fields, a list joined by commas, all else as it is. Of
/// two controls on one field the later counts.
QVariantMap read(const QList<FilterParam::Cntrl> &controls);

} // namespace TFSettingArguments
