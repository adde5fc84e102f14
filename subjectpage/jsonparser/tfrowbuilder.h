#pragma once

#include "records/tfrowstore.h"
#include "tfunboundexpression.h"

#include <QCborValue>
#include <QHash>
#include <QList>
#include <QStringList>
#include <QVector>

#include <functional>
#include <vector>

class ExpressionParse;
class TFDataJsonTable;
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

    /// The keys of a raw row.
    struct Keys
    {
        QStringList names;
        QVector<QCborValue> raw; ///< the same as the row's own values; empty for a row set as a map
    };

    TFRowBuilder(const QList<TFTreeStruct *> &leaves, TypeOfField typeOfField, Evaluator evaluator);

    TFRowStore build(const TFDataJsonTable &table);

private:
    /// A computed column.
    struct Computed
    {
        int cell;
        TFUnboundExpression expression;
    };

    /// Where the values of a raw row with certain keys go.
    struct Shape
    {
        Keys keys;                       ///< as the rows come
        QVector<int> sorted;             ///< indices of the keys in the order of a map
        QVector<int> cellOfKey;          ///< the first cell of that field name
        QVector<QPair<int, int>> copies; ///< from the first cell to further ones of the same field name
        QVector<QVector<int>> counted; ///< for each computed column, the keys of its aggregate, in map order
        int layout = -1;
        int secuIdKey = -1;
    };

    template <typename Row> void append(const Row &row);
    template <typename Row> const Shape &shapeOf(const Row &row);
    Shape makeShape(const Keys &rowKeys);
    void addFurtherCells(Shape &shape, TFRowStore::Layout &layout);
    void compute(const Shape &shape, QVariant *cells);
    QVariant computed(const Shape &shape, int column) const;

    TypeOfField m_typeOfField;
    Evaluator m_evaluator;
    TFRowStore::Layout m_leafLayout;
    QHash<QString, int> m_leafOfField; ///< the first leaf of each field name
    std::vector<Computed> m_computed;
    std::vector<Shape> m_shapes;
    QHash<QStringList, int> m_shapeOfKeys;
    int m_shape = -1;              ///< of the row before
    QVector<QVariant> m_rawValues; ///< of the row at hand, when a column is computed from them
    TFRowStore m_store;
};
