#include "tftabledescription.h"

#include "mulittable/tfheaderdatastruct.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "pagination/tfpaginationbar.h"
#include "tfgridaccess.h"
#include "tfsubjecttablewidget.h"

#include <gridcontrol/gridview.h>

#include <QBrush>
#include <QJsonArray>
#include <QJsonObject>

namespace {
QJsonArray bandsBelow(const TFTreeStruct &node)
{
    QJsonArray bands;
    for (const TFTreeStruct *child : node.children())
        bands.append(QJsonObject{{"caption", child->displayCaption()},
                                 {"field", child->info().fieldName},
                                 {"children", bandsBelow(*child)}});
    return bands;
}

QString alignmentWord(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignRight)
        return QStringLiteral("right");
    return alignment & Qt::AlignHCenter ? QStringLiteral("center") : QStringLiteral("left");
}

QString kindOf(const TFGridAccess::Column &column)
{
    if (column.isLink)
        return QStringLiteral("link");
    return column.hasButton ? QStringLiteral("button") : QStringLiteral("text");
}

QJsonArray columnsOf(const TFGridAccess &grid, TFTreeStruct &header)
{
    const QList<TFTreeStruct *> leaves = header.leaves();
    QJsonArray columns;
    for (const TFGridAccess::Column &column : grid.columns()) {
        const TFTreeStruct *leaf = leaves.value(columns.size());
        columns.append(QJsonObject{{"field", leaf ? leaf->info().fieldName : QString()},
                                   {"caption", column.caption},
                                   {"width", column.width},
                                   {"alignment", alignmentWord(column.alignment)},
                                   {"visible", column.isVisible},
                                   {"frozen", column.isFrozen},
                                   {"kind", kindOf(column)}});
    }
    return columns;
}

QJsonValue colourOf(const QVariant &foreground)
{
    const QColor colour = foreground.userType() == QMetaType::QBrush ? foreground.value<QBrush>().color()
                                                                     : foreground.value<QColor>();
    return colour.isValid() ? QJsonValue(colour.name()) : QJsonValue();
}

QJsonObject rowOf(const TFSubjectTableModel &model, int row)
{
    QJsonArray texts;
    QJsonArray colours;
    for (int column = 0; column < model.columnCount(); ++column) {
        const QModelIndex index = model.index(row, column);
        const QVariant text = index.data();
        texts.append(text.isValid() ? QJsonValue(text.toString()) : QJsonValue());
        colours.append(colourOf(index.data(Qt::ForegroundRole)));
    }
    return {{"texts", texts}, {"colors", colours}};
}

QJsonArray rowsOf(const TFGridAccess &grid)
{
    QJsonArray rows;
    for (int row : grid.rows())
        rows.append(rowOf(*grid.model(), row));
    return rows;
}

QJsonArray groupsOf(const TFGridAccess &grid)
{
    QJsonArray groups;
    for (const Qtitan::GridGroup &group : grid.groups())
        groups.append(QJsonObject{{"key", group.key}, {"count", group.count}});
    return groups;
}

QJsonObject pagingOf(const TFSubjectTableWidget &table)
{
    const TFPaginationBar *bar = table.paginationBar();
    QJsonArray sizes;
    for (const QString &size : bar->pageSizes())
        sizes.append(size.toInt());
    return {{"rows", table.total()},
            {"page", bar->currentPage()},
            {"pages", bar->pageCount()},
            {"size", bar->perCnt()},
            {"sizes", sizes}};
}
} // namespace

namespace TFTableDescription {

QJsonObject describe(const TFSubjectTableWidget &table)
{
    const TFGridAccess grid(table.grid());
    return {{"status", table.status()},
            {"loading", table.isLoading()},
            {"bands", bandsBelow(*table.header())},
            {"columns", columnsOf(grid, *table.header())},
            {"rows", rowsOf(grid)},
            {"groups", groupsOf(grid)},
            {"paging", pagingOf(table)},
            {"chart", QJsonValue()}};
}

QString state(const TFSubjectTableWidget &table)
{
    if (table.isLoading())
        return table.isRequested() ? QStringLiteral("loading") : QStringLiteral("waiting");
    const TFSubjectTableModel *model = table.model();
    return model && model->rowCount() > 0 ? QStringLiteral("shown") : QStringLiteral("noData");
}

} // namespace TFTableDescription
