#include "navigationreader.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace service {

namespace {

const int MaxDepth = 16;

enum NodeType { TopicNode = 0, GroupNode = 1, LeafNode = 2 };

const MemberRules &topicRules()
{
    static const MemberRules rules{
        {"code", MemberType::Whole, true}, {"name", MemberType::Text, true}, {"nodes", MemberType::Array}};
    return rules;
}

const MemberRules &nodeRules()
{
    static const MemberRules rules{{"code", MemberType::Whole, true},
                                   {"caption", MemberType::Text, true},
                                   {"view", MemberType::Whole},
                                   {"url"},
                                   {"nodes", MemberType::Array}};
    return rules;
}

/// Flattens the trees; it knows the codes that are taken.
class TreeReader
{
public:
    explicit TreeReader(Navigation *navigation)
        : m_navigation(navigation)
    {}

    void topic(const QJsonValue &value, const DocumentPlace &place)
    {
        const QJsonObject topic = checkedObject(value, topicRules(), place);
        const qint64 code = takeCode(topic, place);
        m_topic = Topic();
        appendRow(code, 0, 0, TopicNode, topic.value(QLatin1String("name")).toString(), 0, QString());
        nodes(topic, code, 1, place);
        m_navigation->topics.insert(code, m_topic);
    }

private:
    qint64 takeCode(const QJsonObject &object, const DocumentPlace &place)
    {
        const auto code = static_cast<qint64>(object.value(QLatin1String("code")).toDouble());
        if (code == 0 || m_codes.contains(code))
            place.member(QStringLiteral("code"))
                .fault(
                    QStringLiteral("the code %1 is %2").arg(code).arg(code == 0 ? "not allowed" : "taken"));
        m_codes.insert(code);
        return code;
    }

    void nodes(const QJsonObject &parent, qint64 parentCode, int level, const DocumentPlace &place)
    {
        const QJsonArray array = parent.value(QLatin1String("nodes")).toArray();
        const DocumentPlace at = place.member(QStringLiteral("nodes"));
        if (level > MaxDepth)
            return at.fault(QStringLiteral("nodes more than %1 deep").arg(MaxDepth));
        for (int i = 0; i < array.size(); ++i)
            node(array.at(i), parentCode, level, at.element(i));
    }

    void node(const QJsonValue &value, qint64 parentCode, int level, const DocumentPlace &place)
    {
        const QJsonObject node = checkedObject(value, nodeRules(), place);
        const qint64 code = takeCode(node, place);
        const auto view = static_cast<qint64>(node.value(QLatin1String("view")).toDouble());
        if (view != 0)
            m_navigation->views.insert(view);
        const bool isGroup = node.contains(QLatin1String("nodes"));
        appendRow(code, parentCode, level, isGroup ? GroupNode : LeafNode,
                  node.value(QLatin1String("caption")).toString(), view,
                  node.value(QLatin1String("url")).toString());
        nodes(node, code, level + 1, place);
    }

    void appendRow(qint64 code, qint64 parent, int level, NodeType type, const QString &caption, qint64 view,
                   const QString &url)
    {
        QJsonObject row{{QStringLiteral("NODE_CODE"), code},   {QStringLiteral("P_NODE_CODE"), parent},
                        {QStringLiteral("LEVEL"), level},      {QStringLiteral("NODE_TYP"), type},
                        {QStringLiteral("NODE_CAP"), caption}, {QStringLiteral("OBJ_VW_ID"), view},
                        {QStringLiteral("NODE_URL"), url}};
        TopicRow entry{level, view, type == GroupNode, {}, {}};
        entry.row = QJsonDocument(row).toJson(QJsonDocument::Compact);
        if (entry.isGroup && view != 0) {
            row.insert(QStringLiteral("OBJ_VW_ID"), 0);
            entry.bareRow = QJsonDocument(row).toJson(QJsonDocument::Compact);
        }
        m_topic.append(entry);
    }

    Navigation *m_navigation;
    QSet<qint64> m_codes;
    Topic m_topic;
};

} // namespace

Navigation readNavigation(const QJsonObject &object, const DocumentPlace &place)
{
    static const MemberRules rules{{"topics", MemberType::Array, true}};
    const QJsonArray topics = checkedObject(object, rules, place).value(QLatin1String("topics")).toArray();
    Navigation navigation;
    TreeReader reader(&navigation);
    for (int i = 0; i < topics.size(); ++i)
        reader.topic(topics.at(i), place.member(QStringLiteral("topics")).element(i));
    return navigation;
}

} // namespace service
