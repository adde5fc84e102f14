#pragma once

#include "documentplace.h"
#include "topic.h"

#include <QMap>
#include <QSet>

namespace service {

/// The topics of `navigation.json` as the wire has them.
struct Navigation
{
    QMap<qint64, Topic> topics; ///< by the topic's code
    QSet<qint64> views;         ///< every view that a node names
};

Navigation readNavigation(const QJsonObject &object, const DocumentPlace &place);

} // namespace service
