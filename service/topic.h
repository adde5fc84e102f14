#pragma once

#include <QByteArray>
#include <QVector>

#include <functional>

namespace service {

/// One row of a topic's tree.
struct TopicRow
{
    int level = 0;   ///< 0 for the topic itself
    qint64 view = 0; ///< the view that it opens, 0 for none
    bool isGroup = false;
    QByteArray row;     ///< JSON object of the wire
    QByteArray bareRow; ///< the same without its view; of a group with a view alone
};

/// A topic's tree, parents before their children.
class Topic
{
public:
    /// Tells whether a view may be seen.
    using Sight = std::function<bool(qint64 view)>;

    void append(const TopicRow &node) { m_nodes << node; }
    bool isEmpty() const { return m_nodes.isEmpty(); }

    /// The rows joined by commas. Leaves whose view may not be seen are left out, and with them each group
    /// that then holds nothing.
    QByteArray rows(const Sight &maySee) const;

private:
    QVector<TopicRow> m_nodes;
};

} // namespace service
