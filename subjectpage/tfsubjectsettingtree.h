#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>

#include <memory>
#include <vector>

class QTreeWidget;

/// One row of a navigation or block reply as a node of a tree.
struct TFJsonObjNode
{
    bool isRoot = false;
    QString code;
    QString parentCode;
    QJsonObject object;              ///< the row
    TFJsonObjNode *parent = nullptr; ///< null for roots
    QList<TFJsonObjNode *> children;
};

using TFJsonObjNodePtr = TFJsonObjNode *;
Q_DECLARE_METATYPE(TFJsonObjNodePtr)

/// The tree of the settings dialog.
namespace TFSettingTree {

enum Type { BlockRows = 1, NavigationRows = 2 };

/// Role of column 0 of an item that holds its node, a TFJsonObjNodePtr.
constexpr int NodeRole = Qt::UserRole + 1;

/// Makes nodes of \a rows and appends those without a parent to \a roots; the nodes live as long as what is
/// returned. Siblings stand in the text order of their codes ("10" before "9"). Of two rows with one code the
/// later counts; a row whose parent is missing is in no tree. The types 0 and 5 are no trees: they give a
/// message box and nothing else.
std::vector<std::unique_ptr<TFJsonObjNode>> make(const QJsonArray &rows, QList<TFJsonObjNode *> &roots,
                                                 int type);

/// Fills \a view, after clearing it, with an item a node: caption (the row's \a captionKey), code, parent's
/// code. Block items, with the key "SECT_NAME", get a box to tick.
void fill(QTreeWidget *view, const QList<TFJsonObjNode *> &roots, const QString &captionKey);

} // namespace TFSettingTree
