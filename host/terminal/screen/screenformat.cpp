#include "screenformat.h"

#include "variantjson.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <numeric>

namespace {
const char FormatKey[] = "format";
const char FormatName[] = "composite-screen";
const char VersionKey[] = "version";
constexpr int Version = 1;
const char NameKey[] = "name";
const char ArgsKey[] = "args";
const char LayoutKey[] = "layout";
const char ClassKey[] = "class";
const char StateKey[] = "state";
const char SharesKey[] = "shares";
const char RowKey[] = "row";
const char ColumnKey[] = "column";
/// Deeper than anyone can see; a file that nests further is damaged.
constexpr int MaxDepth = 64;
constexpr double ShareDigits = 1e4;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScreenFormat)
};

QJsonObject writeNode(const ScreenNode &node, const QString &path, QStringList *problems)
{
    if (node.kind == ScreenNode::Cell) {
        QJsonObject object{{ClassKey, QString::fromUtf8(node.component.className)}};
        if (!node.component.state.isEmpty()) {
            QJsonObject state;
            for (auto it = node.component.state.begin(); it != node.component.state.end(); ++it)
                state.insert(it.key(), VariantJson::write(it.value(), path + "/state/" + it.key(), problems));
            object.insert(StateKey, state);
        }
        return object;
    }
    const QString key = node.kind == ScreenNode::Row ? RowKey : ColumnKey;
    QJsonArray children;
    for (const ScreenNode &child : node.children)
        children.append(writeNode(child, QString("%1/%2[%3]").arg(path, key).arg(children.size()), problems));
    QJsonArray shares;
    for (double share : node.shares)
        shares.append(std::round(share * ShareDigits) / ShareDigits);
    return {{key, children}, {SharesKey, shares}};
}

/// Reads a document and takes down what is wrong with it.
class Reader
{
public:
    ScreenFormat::Reading read(const QByteArray &text);

private:
    void readHead(const QJsonObject &object);
    std::optional<ScreenNode> readNode(const QJsonValue &value, const QString &path, int depth);
    std::optional<ScreenNode> readCell(const QJsonObject &object, const QString &path);
    std::optional<ScreenNode> readSplit(const QJsonObject &object, const QString &path, int depth);
    QVector<double> readShares(const QJsonValue &value, const QVector<int> &kept, int count,
                               const QString &path);
    QVariantMap readMap(const QJsonValue &value, const QString &path);
    void tell(const QString &path, const QString &what)
    {
        m_problems.append(QString("%1: %2").arg(path, what));
    }

    QStringList m_problems;
    ScreenState m_state;
};

ScreenFormat::Reading Reader::read(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        const QByteArray before = text.left(error.offset);
        tell(Texts::tr("line %1").arg(before.count('\n') + 1), error.errorString());
    } else if (document.object().value(FormatKey).toString() != FormatName) {
        tell(FormatKey, Texts::tr("this is no composite screen"));
    } else {
        readHead(document.object());
        const QJsonValue layout = document.object().value(LayoutKey);
        if (!layout.isUndefined() && !layout.isNull())
            m_state.layout = readNode(layout, LayoutKey, 0);
    }
    return {m_state, m_problems};
}

void Reader::readHead(const QJsonObject &object)
{
    const QJsonValue version = object.value(VersionKey);
    if (!version.isDouble())
        tell(VersionKey, Texts::tr("a number is expected"));
    else if (version.toDouble() > Version)
        tell(VersionKey, Texts::tr("written by a newer terminal"));
    const QJsonValue name = object.value(NameKey);
    if (!name.isString())
        tell(NameKey, Texts::tr("a text is expected"));
    m_state.name = name.toString();
    m_state.args = readMap(object.value(ArgsKey), ArgsKey);
    if (m_state.args.remove(QString()) > 0)
        tell(ArgsKey, Texts::tr("an argument has no name"));
}

QVariantMap Reader::readMap(const QJsonValue &value, const QString &path)
{
    QVariantMap map;
    if (!value.isObject() && !value.isUndefined())
        tell(path, Texts::tr("a map is expected"));
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it)
        map.insert(it.key(), VariantJson::read(it.value(), path + '/' + it.key(), &m_problems));
    return map;
}

std::optional<ScreenNode> Reader::readNode(const QJsonValue &value, const QString &path, int depth)
{
    const QJsonObject object = value.toObject();
    if (object.contains(ClassKey))
        return readCell(object, path);
    if (depth == MaxDepth)
        tell(path, Texts::tr("nested too deeply"));
    else if (object.contains(RowKey) || object.contains(ColumnKey))
        return readSplit(object, path, depth);
    else
        tell(path, Texts::tr("one of \"class\", \"row\" and \"column\" is expected"));
    return {};
}

std::optional<ScreenNode> Reader::readCell(const QJsonObject &object, const QString &path)
{
    ScreenNode node;
    node.component.className = object.value(ClassKey).toString().toUtf8();
    if (node.component.className.isEmpty()) {
        tell(path + '/' + ClassKey, Texts::tr("the name of a component is expected"));
        return {};
    }
    node.component.state = readMap(object.value(StateKey), path + '/' + StateKey);
    return node;
}

/// A child that cannot be read leaves its room to the others; a split with one child is that child.
std::optional<ScreenNode> Reader::readSplit(const QJsonObject &object, const QString &path, int depth)
{
    ScreenNode node;
    node.kind = object.contains(RowKey) ? ScreenNode::Row : ScreenNode::Column;
    const QString key = node.kind == ScreenNode::Row ? RowKey : ColumnKey;
    const QJsonArray children = object.value(key).toArray();
    if (children.isEmpty())
        tell(path + '/' + key, Texts::tr("a list of cells is expected"));
    QVector<int> kept;
    for (int i = 0; i < children.size(); ++i) {
        auto child = readNode(children.at(i), QString("%1/%2[%3]").arg(path, key).arg(i), depth + 1);
        if (!child)
            continue;
        node.children.push_back(std::move(*child));
        kept.append(i);
    }
    if (node.children.empty())
        return {};
    if (node.children.size() == 1)
        return ScreenNode(node.children.front());
    node.shares = readShares(object.value(SharesKey), kept, children.size(), path + '/' + SharesKey);
    return node;
}

QVector<double> Reader::readShares(const QJsonValue &value, const QVector<int> &kept, int count,
                                   const QString &path)
{
    const QJsonArray array = value.toArray();
    QVector<double> shares;
    bool good = array.size() == count;
    for (int i : kept) {
        const double share = array.at(i).toDouble();
        good = good && share > 0;
        shares.append(share);
    }
    if (!good) {
        tell(path, Texts::tr("a positive number is expected for each cell"));
        shares.fill(1);
    }
    const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
    for (double &share : shares)
        share /= sum;
    return shares;
}
} // namespace

QByteArray ScreenFormat::write(const ScreenState &state, QStringList *problems)
{
    QJsonObject args;
    for (auto it = state.args.begin(); it != state.args.end(); ++it)
        args.insert(it.key(),
                    VariantJson::write(it.value(), QString("%1/%2").arg(ArgsKey, it.key()), problems));
    QJsonObject object{
        {FormatKey, FormatName}, {VersionKey, Version}, {NameKey, state.name}, {ArgsKey, args}};
    if (state.layout)
        object.insert(LayoutKey, writeNode(*state.layout, LayoutKey, problems));
    return QJsonDocument(object).toJson();
}

ScreenFormat::Reading ScreenFormat::read(const QByteArray &text)
{
    return Reader().read(text);
}
