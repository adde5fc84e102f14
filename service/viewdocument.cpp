#include "viewdocument.h"

#include <algorithm>

namespace service {

QVector<BandNode> leavesOf(const QVector<BandNode> &bands)
{
    QVector<BandNode> leaves;
    for (const BandNode &node : bands) {
        if (node.isBand())
            leaves += leavesOf(node.children);
        else
            leaves << node;
    }
    return leaves;
}

int depthOf(const QVector<BandNode> &bands)
{
    int depth = 0;
    for (const BandNode &node : bands)
        depth = std::max(depth, 1 + depthOf(node.children));
    return depth;
}

} // namespace service
