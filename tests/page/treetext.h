#pragma once

#include <QAbstractItemModel>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

/// Trees as text, so that a test compares a whole tree at once.
namespace TreeText {

/// One line a node, indented by its level: "caption", and "[x] " before a checked one.
inline QStringList lines(const QAbstractItemModel &model, const QModelIndex &parent = {},
                         const QString &indent = {})
{
    QStringList result;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        result << indent + (isChecked ? "[x] " : "") + index.data().toString();
        result << lines(model, index, indent + "  ");
    }
    return result;
}

/// A row of the navigation: \a viewId and \a url tell what the node opens.
inline QJsonObject node(int code, int parent, const QString &caption, int level = 1, int viewId = 0,
                        const QString &url = {})
{
    return {{"NODE_CODE", code},   {"P_NODE_CODE", parent}, {"NODE_CAP", caption}, {"LEVEL", level},
            {"OBJ_VW_ID", viewId}, {"NODE_URL", url},       {"NODE_TYP", 1}};
}

/// A row of the blocks.
inline QJsonObject block(int code, int parent, const QString &name)
{
    return {{"SECT_ID", code}, {"P_SECT_ID", parent}, {"SECT_NAME", name}};
}

/// Two groups with leaves, a folder in between and a node that opens a web page.
inline QJsonArray navigation()
{
    return {node(10, 2, "行情", 1),        node(11, 10, "日线", 2, 260),
            node(12, 10, "指数", 2),       node(13, 12, "Absolute", 3, 261),
            node(14, 12, "abbey", 3, 262), node(20, 2, "公司", 1),
            node(21, 20, "资料", 2, 263),  node(22, 20, "网站", 2, 264, "http://127.0.0.1:1/x")};
}

inline QJsonArray blocks()
{
    return {block(1, 0, "沪深"), block(2, 1, "上海"), block(3, 1, "深圳"), block(4, 3, "GEM"),
            block(5, 0, "其他")};
}

} // namespace TreeText
