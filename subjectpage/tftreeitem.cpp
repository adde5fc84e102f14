#include "tftreeitem.h"

TFTreeItem::TFTreeItem()
{
    setText(QString());
    setData(qint64(0), CodeRole);
    setData(qint64(0), ParentCodeRole);
    setData(qint64(0), NodeTypeRole);
    setData(qint64(0), LevelRole);
    setData(QString(), UrlRole);
}
