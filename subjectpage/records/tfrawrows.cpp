#include "tfrawrows.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <numeric>

namespace {
/// Fills rows from maps of either kind.
class MapReader
{
public:
    template <typename Map, typename ToVariant> void append(const Map &map, ToVariant toVariant)
    {
        for (auto it = map.begin(); it != map.end(); ++it)
            m_rows->values().append(toVariant(it.value()));
        const QStringList keys = map.keys();
        if (m_shape < 0 || keys != m_keys) {
            const auto known = m_shapes.constFind(keys);
            m_shape = known != m_shapes.constEnd() ? *known : m_rows->addShape(keys);
            m_shapes.insert(keys, m_shape);
            m_keys = keys;
        }
        m_rows->endRow(m_shape);
    }
    TFRawRowsPtr take() const { return m_rows; }

private:
    std::shared_ptr<TFRawRows> m_rows = std::make_shared<TFRawRows>();
    QHash<QStringList, int> m_shapes;
    QStringList m_keys; ///< of the row before
    int m_shape = -1;
};
} // namespace

TFRawRowsPtr TFRawRows::fromJson(const QJsonArray &rows)
{
    MapReader reader;
    for (const QJsonValue &row : rows)
        reader.append(row.toObject(), [](const QJsonValue &value) { return value.toVariant(); });
    return reader.take();
}

TFRawRowsPtr TFRawRows::fromMaps(const QList<QVariantMap> &rows)
{
    MapReader reader;
    for (const QVariantMap &row : rows)
        reader.append(row, [](const QVariant &value) { return value; });
    return reader.take();
}

QVariantMap TFRawRows::map(int row) const
{
    QVariantMap map;
    const Shape &shape = m_shapes[size_t(shapeOf(row))];
    for (int i = 0; i < shape.keys.size(); ++i)
        map.insert(map.cend(), shape.keys.at(i), value(row, shape.places.at(i)));
    return map;
}

int TFRawRows::addShape(const QStringList &keys)
{
    QVector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&keys](int a, int b) { return keys.at(a) < keys.at(b); });
    Shape shape;
    for (const int place : qAsConst(order)) {
        if (shape.keys.isEmpty() || shape.keys.last() != keys.at(place)) {
            shape.keys.append(keys.at(place));
            shape.places.append(place);
        } else {
            shape.places.last() = place;
        }
    }
    m_shapes.push_back(shape);
    return int(m_shapes.size()) - 1;
}

void TFRawRows::endRow(int shape)
{
    m_rows.push_back({m_end, shape});
    m_end = m_values.size();
}
