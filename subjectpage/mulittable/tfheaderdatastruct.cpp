#include "tfheaderdatastruct.h"

#include "records/tfcategories.h"

#include <algorithm>

namespace {
constexpr QLatin1String UnitColumn("BandedGridColumnWithUnit");
constexpr QLatin1String Band("Band");

bool followsUnit(const HeaderFieldInfo &info)
{
    return info.columnType.compare(UnitColumn, Qt::CaseInsensitive) == 0 ||
           info.columnType.compare(Band, Qt::CaseInsensitive) == 0;
}

bool showsUnit(const HeaderFieldInfo &info)
{
    return !info.showUnit.isEmpty() && (info.captionShowType == 1 || info.captionShowType == 3);
}
} // namespace

TFTreeStruct::TFTreeStruct(const QString &caption)
    : m_displayCaption(caption)
{}

TFTreeStruct::TFTreeStruct(const HeaderFieldInfo &info)
    : m_info(info)
    , m_currentUnit(info.showUnit)
    , m_displayCaption(info.caption)
{
    updateUnit(info.showUnit, info.unitCategory);
}

TFTreeStruct::~TFTreeStruct()
{
    qDeleteAll(m_children);
}

std::unique_ptr<TFTreeStruct> TFTreeStruct::clone() const
{
    auto copy = std::make_unique<TFTreeStruct>(m_displayCaption);
    copy->m_info = m_info;
    copy->m_currentUnit = m_currentUnit;
    for (const TFTreeStruct *child : m_children)
        copy->addChild(child->clone().release());
    return copy;
}

void TFTreeStruct::addChild(TFTreeStruct *child)
{
    child->m_parent = this;
    m_children.append(child);
    m_leafCache.clear();
}

void TFTreeStruct::clearChildren()
{
    m_leafCache.clear();
    qDeleteAll(m_children);
    m_children.clear();
}

bool TFTreeStruct::hasChildren(const TFTreeStruct *node) const
{
    return !(node ? node : this)->m_children.isEmpty();
}

int TFTreeStruct::depth() const
{
    int deepest = 0;
    for (const TFTreeStruct *child : m_children)
        deepest = std::max(deepest, child->depth());
    return 1 + deepest;
}

QList<TFTreeStruct *> TFTreeStruct::leaves()
{
    if (m_leafCache.isEmpty()) {
        for (TFTreeStruct *child : qAsConst(m_children)) {
            if (child->hasChildren())
                m_leafCache.append(child->leaves());
            else
                m_leafCache.append(child);
        }
    }
    return m_leafCache;
}

QList<HeaderFieldInfo *> TFTreeStruct::leafRecords()
{
    QList<HeaderFieldInfo *> records;
    const QList<TFTreeStruct *> all = leaves();
    for (const TFTreeStruct *leaf : all)
        records.append(new HeaderFieldInfo(leaf->m_info));
    return records;
}

QStringList TFTreeStruct::leafCaptions()
{
    QStringList captions;
    const QList<TFTreeStruct *> all = leaves();
    for (const TFTreeStruct *leaf : all)
        captions.append(leaf->m_displayCaption);
    return captions;
}

QList<int> TFTreeStruct::hiddenLeafIndexes()
{
    QList<int> indexes;
    const QList<TFTreeStruct *> all = leaves();
    for (int i = 0; i < all.size(); ++i) {
        if (!all.at(i)->m_info.visible)
            indexes.append(i);
    }
    return indexes;
}

QList<TFTreeStruct *> TFTreeStruct::nodesAtLevel(int level, int current) const
{
    if (current == level)
        return m_children;
    QList<TFTreeStruct *> nodes;
    for (const TFTreeStruct *child : m_children)
        nodes.append(child->nodesAtLevel(level, current + 1));
    return nodes;
}

TFTreeStruct *TFTreeStruct::findField(const QString &fieldName)
{
    if (m_info.fieldName == fieldName)
        return this;
    for (TFTreeStruct *child : qAsConst(m_children)) {
        if (TFTreeStruct *found = child->findField(fieldName))
            return found;
    }
    return nullptr;
}

QString TFTreeStruct::firstUnit() const
{
    if (!m_currentUnit.isEmpty())
        return m_currentUnit;
    for (const TFTreeStruct *child : m_children) {
        const QString unit = child->firstUnit();
        if (!unit.isEmpty())
            return unit;
    }
    return QString();
}

void TFTreeStruct::updateUnit(const QString &unit, int unitCategory)
{
    for (TFTreeStruct *child : qAsConst(m_children))
        child->updateUnit(unit, unitCategory);
    if (!followsUnit(m_info) || m_info.unitCategory != unitCategory || !showsUnit(m_info))
        return;
    m_currentUnit = unit;
    m_displayCaption = m_info.caption + QLatin1Char('(') + unit + QLatin1Char(')');
}

void TFTreeStruct::updateChildUnit()
{
    if (m_children.isEmpty() || m_info.showUnitFactor == 0 || m_info.unitCategory == 0)
        return;
    qCDebug(lcTable) << "unit test:" << m_info.showUnitFactor << m_info.prevUnitFactor << m_info.unitCategory
                     << m_displayCaption << true << m_info.fieldName << m_info.showUnit;
    setUnitFactors(m_info.showUnitFactor, m_info.prevUnitFactor, m_info.unitCategory);
}

void TFTreeStruct::setUnitFactors(qint64 showUnitFactor, qint64 prevUnitFactor, int unitCategory)
{
    m_info.showUnitFactor = showUnitFactor;
    m_info.prevUnitFactor = prevUnitFactor;
    m_info.unitCategory = unitCategory;
    for (TFTreeStruct *child : qAsConst(m_children))
        child->setUnitFactors(showUnitFactor, prevUnitFactor, unitCategory);
}

void TFTreeStruct::showBands()
{
    for (TFTreeStruct *child : qAsConst(m_children)) {
        if (child->hasChildren())
            child->m_info.visible = true;
    }
}
