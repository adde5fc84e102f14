#pragma once

#include "records/tfrowstore.h"
#include "tfunboundexpression.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QVector>

#include <functional>
#include <vector>

class ExpressionParse;
class TFTreeStruct;

/// Makes rows of cells from raw rows: a cell for each leaf of the header, then one for each further key of
/// the raw row, sorted by key.
class TFRowBuilder
{
public:
    /// Value type of a field that has no column.
    using TypeOfField = std::function<QString(const QString &fieldName)>;
    /// The evaluator of formulas; asked for once a formula cell.
    using Evaluator = std::function<ExpressionParse *()>;

    TFRowBuilder(const QList<TFTreeStruct *> &leaves, TypeOfField typeOfField, Evaluator evaluator);

    TFRowStore build(const TFRawRowsPtr &rows) const;

private:
    using Layout = TFRowStore::Layout;
    using Shape = TFRawRows::Shape;

    /// A computed column.
    struct Computed
    {
        int cell;
        TFUnboundExpression expression;
    };

    Layout layoutOf(const Shape &shape) const;
    void addFurtherCells(const Shape &shape, Layout &layout) const;
    TFValueList compute(const TFRawRows &rows) const;
    void computeRow(const TFRawRows &rows, int row, const QVector<QVector<int>> &counted,
                    TFValueList &out) const;
    QVector<QVector<int>> countedPlaces(const Shape &shape) const;

    TypeOfField m_typeOfField;
    Evaluator m_evaluator;
    Layout m_leafLayout;
    QHash<QString, int> m_leafOfField; ///< the first leaf of each field name
    std::vector<Computed> m_computed;
};
