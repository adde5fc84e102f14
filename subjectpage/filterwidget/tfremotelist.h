#pragma once

#include "net/tfuc.h"
#include "records/tftablemodeldata.h"

#include <QMap>
#include <QString>

class QByteArray;

/// The remote list behind a list control: its request and its reply.
namespace TFRemoteList {

/// The request of a row with a DataSourceName: objName, filter and filterParams, without an identity.
TFUc::TFRequestContent request(const TFTableModelData::FilterData &row);

/// Value by name of a reply. Anything but an object with an array under "data" gives an empty map.
QMap<QString, QString> entries(const QByteArray &reply);

} // namespace TFRemoteList
