#include "trees.h"

#include <QJsonArray>
#include <QJsonObject>

QJsonArray Bench::navigation(int rows)
{
    constexpr int FirstCode = 10;
    QJsonArray array;
    for (int i = 0; i < rows; ++i) {
        const int parent = i < NavigationChildren ? NavigationRoot : i / NavigationChildren + FirstCode - 1;
        array.append(QJsonObject{{"NODE_CODE", i + FirstCode},
                                 {"P_NODE_CODE", parent},
                                 {"NODE_CAP", QStringLiteral("节点 %1").arg(i)},
                                 {"NODE_TYP", 1},
                                 {"LEVEL", 2},
                                 {"OBJ_VW_ID", i},
                                 {"NODE_URL", QString()}});
    }
    return array;
}
