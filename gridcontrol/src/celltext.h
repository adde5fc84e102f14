#pragma once

#include <QLocale>
#include <QModelIndex>
#include <QString>
#include <QVariant>

namespace Qtitan {

class GridColumn;

/// What a cell shows of a value of the display role, in one line.
QString displayText(const QVariant &value, const QLocale &locale);

/// Unit in brackets at the end of a caption, with the space before it; empty without one.
QString unitOf(const QString &caption);

/// Whether the type of \a value is one of the numbers.
bool isNumber(const QVariant &value);

/// Alignment of a cell: its own role, else the column's, else by \a value.
Qt::Alignment alignmentOfCell(const QModelIndex &index, const GridColumn &column, const QVariant &value);

/// Caption and target of a text that may hold an <a href="..."> mark-up.
struct LinkText
{
    QString caption;
    QString anchor;
};
LinkText linkText(const QString &text);

} // namespace Qtitan
