#include "tfrowbuilder.h"

#include "expression/expressionparse.h"
#include "mulittable/tfheaderdatastruct.h"
#include "tfdatajsontable.h"

#include <QCborArray>
#include <QCborMap>
#include <QJsonArray>

#include <algorithm>
#include <numeric>

namespace {
const QString SecurityIdField = QStringLiteral("SECU_ID");
constexpr QLatin1String DecimalType("decimal");

TFRowStore::Cell cellOf(const HeaderFieldInfo &info)
{
    TFRowStore::Cell cell;
    cell.fieldName = info.fieldName;
    cell.valueType = info.valueType;
    cell.textAlignment = info.textAlignment;
    cell.url = info.url;
    cell.formatString = info.formatString;
    cell.prevUnitFactor = info.prevUnitFactor;
    cell.showUnitFactor = info.showUnitFactor;
    cell.baseShowUnitFactor = info.showUnitFactor;
    cell.unitCategory = info.unitCategory;
    cell.columnType = info.columnType;
    cell.captionShowType = info.captionShowType;
    return cell;
}

bool isComputed(const HeaderFieldInfo &info)
{
    return !info.unboundExpression.isEmpty() && info.valueType.toLower() == DecimalType;
}

/// A raw row as it came. The map shares the JSON object's data and is cheaper to walk: its keys compare
/// without being made into texts.
struct JsonRow
{
    bool hasKeys(const TFRowBuilder::Keys &keys) const
    {
        if (map.size() != keys.raw.size())
            return false;
        auto key = keys.raw.begin();
        for (auto it = map.begin(); it != map.end(); ++it, ++key) {
            if (it.key() != *key)
                return false;
        }
        return true;
    }
    TFRowBuilder::Keys keys() const
    {
        TFRowBuilder::Keys keys;
        keys.raw = map.keys();
        for (const QCborValue &key : qAsConst(keys.raw))
            keys.names.append(key.toString());
        return keys;
    }
    double number(int index) const { return (map.begin() + index).value().toVariant().toDouble(); }
    template <typename Take> void forEach(Take take) const
    {
        int index = 0;
        for (auto it = map.begin(); it != map.end(); ++it)
            take(index++, it.value().toVariant());
    }

    const QCborMap map;
};

/// A raw row that was set as a map.
struct MapRow
{
    bool hasKeys(const TFRowBuilder::Keys &keys) const { return map.keys() == keys.names; }
    TFRowBuilder::Keys keys() const { return {map.keys(), {}}; }
    double number(int index) const { return std::next(map.begin(), index)->toDouble(); }
    template <typename Take> void forEach(Take take) const
    {
        int index = 0;
        for (const QVariant &value : map)
            take(index++, QVariant(value));
    }

    const QVariantMap &map;
};
} // namespace

TFRowBuilder::TFRowBuilder(const QList<TFTreeStruct *> &leaves, TypeOfField typeOfField, Evaluator evaluator)
    : m_typeOfField(std::move(typeOfField))
    , m_evaluator(std::move(evaluator))
{
    m_leafLayout.securedCells = leaves.size();
    for (int i = 0; i < leaves.size(); ++i) {
        const HeaderFieldInfo &info = leaves.at(i)->info();
        m_leafLayout.cells.append(cellOf(info));
        if (!m_leafOfField.contains(info.fieldName))
            m_leafOfField.insert(info.fieldName, i);
        if (isComputed(info))
            m_computed.push_back({i, TFUnboundExpression(info.unboundExpression)});
    }
}

TFRowStore TFRowBuilder::build(const TFDataJsonTable &table)
{
    m_store.clear();
    m_shapes.clear();
    m_shapeOfKeys.clear();
    m_shape = -1;
    m_store.reserve(table.rowCount());
    const QCborArray elements = QCborArray::fromJsonArray(table.rowArray());
    for (const auto &element : elements)
        append(JsonRow{element.toMap()});
    for (const QVariantMap &map : table.rowMaps())
        append(MapRow{map});
    return m_store;
}

template <typename Row> void TFRowBuilder::append(const Row &row)
{
    const Shape &shape = shapeOf(row);
    const double secuId = shape.secuIdKey < 0 ? 0 : row.number(shape.secuIdKey);
    QVariant *cells = m_store.appendRow(shape.layout, secuId);
    row.forEach([&](int key, QVariant &&value) { cells[shape.cellOfKey.at(key)] = std::move(value); });
    for (const QPair<int, int> &copy : shape.copies)
        cells[copy.second] = cells[copy.first];
    if (!m_computed.empty())
        compute(shape, cells);
}

template <typename Row> const TFRowBuilder::Shape &TFRowBuilder::shapeOf(const Row &row)
{
    if (m_shape >= 0 && row.hasKeys(m_shapes[size_t(m_shape)].keys))
        return m_shapes[size_t(m_shape)];
    const Keys keys = row.keys();
    const auto known = m_shapeOfKeys.constFind(keys.names);
    if (known != m_shapeOfKeys.constEnd()) {
        m_shape = *known;
    } else {
        m_shape = int(m_shapes.size());
        m_shapes.push_back(makeShape(keys));
        m_shapeOfKeys.insert(keys.names, m_shape);
    }
    return m_shapes[size_t(m_shape)];
}

TFRowBuilder::Shape TFRowBuilder::makeShape(const Keys &rowKeys)
{
    Shape shape;
    shape.keys = rowKeys;
    const QStringList &keys = rowKeys.names;
    shape.sorted.resize(keys.size());
    std::iota(shape.sorted.begin(), shape.sorted.end(), 0);
    // JSON sorts by code point, a map by UTF-16 unit.
    std::sort(shape.sorted.begin(), shape.sorted.end(),
              [&keys](int a, int b) { return keys.at(a) < keys.at(b); });
    shape.secuIdKey = keys.indexOf(SecurityIdField);

    TFRowStore::Layout layout = m_leafLayout;
    addFurtherCells(shape, layout);
    shape.layout = m_store.addLayout(layout);
    for (int i = 0; i < m_leafLayout.cells.size(); ++i) {
        const QString &field = m_leafLayout.cells.at(i).fieldName;
        const int first = m_leafOfField.value(field);
        if (first != i && keys.contains(field))
            shape.copies.append({first, i});
    }
    for (const Computed &column : m_computed) {
        QVector<int> counted;
        std::copy_if(shape.sorted.begin(), shape.sorted.end(), std::back_inserter(counted),
                     [&](int key) { return column.expression.counts(keys.at(key)); });
        shape.counted.append(counted);
    }
    return shape;
}

void TFRowBuilder::addFurtherCells(Shape &shape, TFRowStore::Layout &layout)
{
    shape.cellOfKey.resize(shape.keys.names.size());
    for (const int key : qAsConst(shape.sorted)) {
        const QString &name = shape.keys.names.at(key);
        const int leaf = m_leafOfField.value(name, -1);
        shape.cellOfKey[key] = leaf >= 0 ? leaf : layout.cells.size();
        if (leaf >= 0)
            continue;
        TFRowStore::Cell cell;
        cell.fieldName = name;
        cell.valueType = m_typeOfField(name);
        layout.cells.append(cell);
    }
}

void TFRowBuilder::compute(const Shape &shape, QVariant *cells)
{
    // All from the delivered values: a computed cell is no input of another one.
    m_rawValues.resize(shape.keys.names.size());
    for (int key = 0; key < shape.keys.names.size(); ++key)
        m_rawValues[key] = cells[shape.cellOfKey.at(key)];
    for (size_t i = 0; i < m_computed.size(); ++i)
        cells[m_computed[i].cell] = computed(shape, int(i));
}

QVariant TFRowBuilder::computed(const Shape &shape, int column) const
{
    const TFUnboundExpression &expression = m_computed[size_t(column)].expression;
    if (expression.isAggregate()) {
        QVector<double> numbers;
        for (const int key : shape.counted.at(column))
            numbers.append(m_rawValues.at(key).toDouble());
        return expression.aggregate(numbers);
    }
    const QStringList &names = shape.keys.names;
    const auto valueOf = [&](const QString &field) -> const QVariant * {
        const auto key =
            std::lower_bound(shape.sorted.begin(), shape.sorted.end(), field,
                             [&names](int key, const QString &name) { return names.at(key) < name; });
        return key != shape.sorted.end() && names.at(*key) == field ? &m_rawValues.at(*key) : nullptr;
    };
    QVariant result;
    m_evaluator()->parseRow(expression.text(), result, valueOf);
    return result;
}
