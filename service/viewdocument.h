#pragma once

#include "sqltemplate.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVector>

namespace service {

/// One node of the columns' tree: a band with children, or a column.
struct BandNode
{
    QString fieldName;    ///< given by the service for a band without one
    QJsonObject settings; ///< keys of the wire form, complete but for OwnerBand, SN and Level
    QVector<BandNode> children;

    bool isBand() const { return !children.isEmpty(); }
};

/// A view that follows the selected row.
struct ChildView
{
    qint64 view = 0;
    QString caption;
    QVector<QPair<QString, QString>> link; ///< the child's field or parameter, and this view's field
};

/// One term of an order.
struct OrderTerm
{
    QString field;
    bool descending = false;
};

/// How the rows of a cross view become columns.
struct CrossTable
{
    QStringList rows;
    QString column;
    QStringList values;
    QString caption;
    QString columnOrder;

    bool isSet() const { return !column.isEmpty(); }
};

/// A view as its author wrote it, checked in itself; what needs the database is checked by the library.
struct ViewDocument
{
    qint64 id = 0;
    QString name;
    QString source;
    QStringList products; ///< that may see it; empty for all
    SqlTemplate sql;
    QHash<QString, QVariant> params; ///< defaults by name
    QStringList key;
    QVector<OrderTerm> order;
    QString orderText;
    QJsonObject properties; ///< natural JSON values
    QVector<BandNode> bands;
    QVector<BandNode> fields; ///< columns that no band shows
    QJsonArray filters;
    QVector<ChildView> childViews;
    QJsonObject chart;
    CrossTable cross;
    QString blockField;
    SqlTemplate blockCondition; ///< a SELECT in form: "SELECT <condition>", empty without one
};

/// The columns of \a bands without the bands around them, left to right.
QVector<BandNode> leavesOf(const QVector<BandNode> &bands);

/// Levels of \a bands: 1 for plain columns, 0 for none.
int depthOf(const QVector<BandNode> &bands);

} // namespace service
