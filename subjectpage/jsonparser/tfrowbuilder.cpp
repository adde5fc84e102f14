#include "tfrowbuilder.h"

#include "expression/expressionparse.h"
#include "mulittable/tfheaderdatastruct.h"

#include <algorithm>

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

TFRowStore TFRowBuilder::build(const TFRawRowsPtr &rows) const
{
    std::vector<Layout> layouts;
    for (const Shape &shape : rows->shapes())
        layouts.push_back(layoutOf(shape));
    return TFRowStore(rows, std::move(layouts), compute(*rows), int(m_computed.size()));
}

TFRowStore::Layout TFRowBuilder::layoutOf(const Shape &shape) const
{
    Layout layout = m_leafLayout;
    layout.places.fill(Layout::NoPlace, layout.cells.size());
    addFurtherCells(shape, layout);
    for (int i = 0; i < m_leafLayout.cells.size(); ++i) {
        const int first = m_leafOfField.value(m_leafLayout.cells.at(i).fieldName);
        layout.places[i] = layout.places.at(first);
    }
    for (size_t i = 0; i < m_computed.size(); ++i)
        layout.places[m_computed[i].cell] = TFRowStore::computedPlace(int(i));
    const int secuId = shape.keys.indexOf(SecurityIdField);
    if (secuId >= 0)
        layout.secuIdPlace = shape.places.at(secuId);
    return layout;
}

void TFRowBuilder::addFurtherCells(const Shape &shape, Layout &layout) const
{
    for (int i = 0; i < shape.keys.size(); ++i) {
        const QString &name = shape.keys.at(i);
        const int leaf = m_leafOfField.value(name, -1);
        if (leaf >= 0) {
            layout.places[leaf] = shape.places.at(i);
            continue;
        }
        TFRowStore::Cell cell;
        cell.fieldName = name;
        cell.valueType = m_typeOfField(name);
        layout.cells.append(cell);
        layout.places.append(shape.places.at(i));
    }
}

TFValueList TFRowBuilder::compute(const TFRawRows &rows) const
{
    TFValueList values;
    if (m_computed.empty())
        return values;
    std::vector<QVector<QVector<int>>> counted;
    for (const Shape &shape : rows.shapes())
        counted.push_back(countedPlaces(shape));
    for (int row = 0; row < rows.rowCount(); ++row)
        computeRow(rows, row, counted[size_t(rows.shapeOf(row))], values);
    return values;
}

QVector<QVector<int>> TFRowBuilder::countedPlaces(const Shape &shape) const
{
    QVector<QVector<int>> places;
    for (const Computed &column : m_computed) {
        places.append(QVector<int>());
        for (int i = 0; i < shape.keys.size(); ++i) {
            if (column.expression.counts(shape.keys.at(i)))
                places.last().append(shape.places.at(i));
        }
    }
    return places;
}

void TFRowBuilder::computeRow(const TFRawRows &rows, int row, const QVector<QVector<int>> &counted,
                              TFValueList &out) const
{
    // From the delivered values: a computed cell is no input of another one.
    const Shape &shape = rows.shapes()[size_t(rows.shapeOf(row))];
    QVariant value;
    const auto valueOf = [&](const QString &field) -> const QVariant * {
        const auto key = std::lower_bound(shape.keys.begin(), shape.keys.end(), field);
        if (key == shape.keys.end() || *key != field)
            return nullptr;
        value = rows.value(row, shape.places.at(int(key - shape.keys.begin())));
        return &value;
    };
    for (size_t i = 0; i < m_computed.size(); ++i) {
        const TFUnboundExpression &expression = m_computed[i].expression;
        QVariant result;
        if (expression.isAggregate()) {
            QVector<double> numbers;
            for (const int place : counted.at(int(i)))
                numbers.append(rows.number(row, place));
            result = expression.aggregate(numbers);
        } else {
            m_evaluator()->parseRow(expression.text(), result, valueOf);
        }
        out.append(result);
    }
}
