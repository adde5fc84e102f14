#include "tftablenames.h"

#include <QHash>
#include <QString>

namespace {
/// No table has this id; "Object" ends at it.
constexpr int NoTable = 5;
} // namespace

int TFTableName::idOf(const QString &name)
{
    static const QHash<QString, int> ids = {
        {Data, TFTableId::Data},
        {Object, NoTable},
        {ObjectView, TFTableId::ObjectView},
        {ViewConfig, TFTableId::ViewConfig},
        {ObjectViewConfig, TFTableId::ObjectViewConfig},
        {Summary, TFTableId::Summary},
    };
    return ids.value(name, TFTableId::Unknown);
}
