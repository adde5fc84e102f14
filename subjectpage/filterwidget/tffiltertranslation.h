#pragma once

#include "records/filterparam.h"

class QObject;

/// Turns the reports of controls into the entries of a request.
namespace TFFilterTranslation {

/// Value of \a key as a request carries it. A global argument of the composite screen around \a bar, if it
/// has that key, replaces what the control holds.
QVariant value(const QObject *bar, const QString &key, const QVariant &held, const QString &valueType);

/// \a cntrl with its value translated, or one entry a value when it stands for several fields or bounds.
/// Empty when a report of several has no keys or no values.
QList<FilterParam::Cntrl> expanded(const QObject *bar, const FilterParam::Cntrl &cntrl);

/// The condition that \a entry makes. An empty list of values means that it makes none.
FilterParam::CustomFilter condition(const FilterParam::Cntrl &entry);

} // namespace TFFilterTranslation
