#include "topic.h"

namespace service {

QByteArray Topic::rows(const Sight &maySee) const
{
    QVector<const QByteArray *> kept;
    int size = 0;
    QVector<int> shownChildren; // by level, of the node that comes next on the way up
    QVector<int> hiddenChildren;
    for (int i = m_nodes.size() - 1; i >= 0; --i) {
        const TopicRow &node = m_nodes.at(i);
        const int below = node.level + 1;
        if (shownChildren.size() <= below) {
            shownChildren.resize(below + 1);
            hiddenChildren.resize(below + 1);
        }
        const bool isViewShown = node.view == 0 || maySee(node.view);
        const bool isEmptied = hiddenChildren.at(below) > 0 && shownChildren.at(below) == 0;
        const bool isShown =
            node.level == 0 || (node.isGroup ? !isEmptied || (node.view != 0 && isViewShown) : isViewShown);
        shownChildren[below] = hiddenChildren[below] = 0;
        ++(isShown ? shownChildren : hiddenChildren)[node.level];
        if (!isShown)
            continue;
        kept << (isViewShown ? &node.row : &node.bareRow);
        size += kept.last()->size() + 1;
    }
    QByteArray rows;
    rows.reserve(size);
    for (auto it = kept.crbegin(); it != kept.crend(); ++it)
        rows += (rows.isEmpty() ? QByteArray() : QByteArray(",")) + **it;
    return rows;
}

} // namespace service
