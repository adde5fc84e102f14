#pragma once

#include "viewdocument.h"

#include <functional>

namespace service {

/// Finds a view's document by its identifier; null for one that is not served.
using DocumentFinder = std::function<const ViewDocument *(qint64)>;

/// Packs the configuration of a view as the wire has it: the members "View_Config", "Object_View_Config" and
/// "Object_View", without the braces around them.
///
/// Bands, filters, child views and chart become JSON text inside a text; so does each column's setting.
QByteArray packConfiguration(const ViewDocument &view, const DocumentFinder &find);

/// One column or band in the order of the tree, with its OwnerBand, SN and Level.
QJsonObject columnRecord(const BandNode &node, const QString &ownerBand, int number, int level);

/// The record with its keys beginning in lower case, as the column list of a cross table has them.
QJsonObject lowerCaseRecord(const QJsonObject &record);

/// The text `MAIN=CHILD;MAIN=数据源.PARAMETER` that feeds a child view from the selected row.
QString linkText(const ChildView &child, const DocumentFinder &find);

} // namespace service
