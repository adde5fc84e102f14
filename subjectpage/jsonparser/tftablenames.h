#pragma once

#include <QLatin1String>

class QString;

/// Ids of the tables of a configuration document.
namespace TFTableId {
constexpr int Unknown = 0;
constexpr int Data = 1;
constexpr int ObjectProperty = 2;
constexpr int ObjectView = 3;
constexpr int ViewConfig = 4;
constexpr int Summary = 7;
constexpr int HeaderFields = 8;
constexpr int ChildViews = 9;
constexpr int Filters = 10;
constexpr int ChartView = 11;
constexpr int ObjectViewConfig = 12;
} // namespace TFTableId

/// The vocabulary of table names; some of them have no reader.
namespace TFTableName {
constexpr QLatin1String TableName("TABLENAME");
constexpr QLatin1String Structure("STRUCTURE");
constexpr QLatin1String UpperData("DATA");
constexpr QLatin1String Data("Data");
constexpr QLatin1String Object("Object");
constexpr QLatin1String ObjectProperty("Object_Property");
constexpr QLatin1String ObjectView("Object_View");
constexpr QLatin1String ObjectViewConfig("Object_View_Config");
constexpr QLatin1String Summary("Summary");
constexpr QLatin1String ViewConfig("View_Config");
constexpr QLatin1String View("View");

/// Id of the table of that name, TFTableId::Unknown for a name that is not in the map. "Object" has an id for
/// which no table exists.
int idOf(const QString &name);
} // namespace TFTableName
