#pragma once

#include "tfvaluelist.h"

#include <QStringList>
#include <QVariantMap>
#include <QVector>

#include <memory>
#include <vector>

class QJsonArray;

/// The rows of one reply as the service delivered them: maps from field name to value, in compact form.
///
/// Rows with the same keys share a shape. Filled once and then handed around as a TFRawRowsPtr.
class TFRawRows
{
public:
    /// What rows with the same keys have in common.
    struct Shape
    {
        QStringList keys;    ///< sorted as a map sorts them, each once
        QVector<int> places; ///< for each key, where its value stands among those of the row
    };

    static std::shared_ptr<const TFRawRows> fromJson(const QJsonArray &rows);
    static std::shared_ptr<const TFRawRows> fromMaps(const QList<QVariantMap> &rows);

    int rowCount() const { return int(m_rows.size()); }
    const std::vector<Shape> &shapes() const { return m_shapes; }

    // The indices of what follows must be valid.

    int shapeOf(int row) const { return m_rows[size_t(row)].shape; }
    QVariant value(int row, int place) const
    {
        return m_values.at(m_rows[size_t(row)].first + size_t(place));
    }
    double number(int row, int place) const
    {
        return m_values.number(m_rows[size_t(row)].first + size_t(place));
    }
    QVariantMap map(int row) const;

    // Filling.

    /// Index of a new shape. \a keys are those of a row as they stand; of equal ones the last counts.
    int addShape(const QStringList &keys);
    /// Takes the values of the row at hand, before endRow().
    TFValueList &values() { return m_values; }
    /// Ends a row of that shape: all values since the row before belong to it.
    void endRow(int shape);

private:
    struct Row
    {
        size_t first;
        int shape;
    };

    std::vector<Shape> m_shapes;
    std::vector<Row> m_rows;
    TFValueList m_values;
    size_t m_end = 0; ///< of the values of the last row
};

using TFRawRowsPtr = std::shared_ptr<const TFRawRows>;
