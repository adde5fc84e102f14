#include "tfunits.h"

#include <QObject>

#include <algorithm>

namespace {
struct UnitRow
{
    int unitCode;
    int exponent;
    const char *unitName;
    int unitCategory;
};

// The rows of 7002 to 7005 and 3001 follow no rule; they stand as the service knows them.
constexpr UnitRow UnitRows[] = {
    {1000, 0, QT_TRANSLATE_NOOP("QObject", "元"), 1},
    {1002, 2, QT_TRANSLATE_NOOP("QObject", "百元"), 1},
    {1003, 3, QT_TRANSLATE_NOOP("QObject", "千元"), 1},
    {1004, 4, QT_TRANSLATE_NOOP("QObject", "万元"), 1},
    {1006, 6, QT_TRANSLATE_NOOP("QObject", "百万元"), 1},
    {1008, 8, QT_TRANSLATE_NOOP("QObject", "亿元"), 1},
    {1009, 9, QT_TRANSLATE_NOOP("QObject", "十亿元"), 1},
    {2000, 0, QT_TRANSLATE_NOOP("QObject", "股"), 2},
    {2002, 2, QT_TRANSLATE_NOOP("QObject", "百股"), 2},
    {2003, 3, QT_TRANSLATE_NOOP("QObject", "千股"), 2},
    {2004, 4, QT_TRANSLATE_NOOP("QObject", "万股"), 2},
    {2006, 6, QT_TRANSLATE_NOOP("QObject", "百万股"), 2},
    {2008, 8, QT_TRANSLATE_NOOP("QObject", "亿股"), 2},
    {2009, 9, QT_TRANSLATE_NOOP("QObject", "十亿股"), 2},
    {3000, 0, QT_TRANSLATE_NOOP("QObject", "张"), 3},
    {3001, 1, QT_TRANSLATE_NOOP("QObject", "手（十张）"), 3},
    {3002, 2, QT_TRANSLATE_NOOP("QObject", "百张"), 3},
    {3004, 4, QT_TRANSLATE_NOOP("QObject", "万张"), 3},
    {3008, 8, QT_TRANSLATE_NOOP("QObject", "亿张"), 3},
    {6000, 0, QT_TRANSLATE_NOOP("QObject", "份"), 6},
    {6002, 2, QT_TRANSLATE_NOOP("QObject", "百份"), 6},
    {6003, 3, QT_TRANSLATE_NOOP("QObject", "千份"), 6},
    {6004, 4, QT_TRANSLATE_NOOP("QObject", "万份"), 6},
    {6008, 8, QT_TRANSLATE_NOOP("QObject", "亿份"), 6},
    {6009, 9, QT_TRANSLATE_NOOP("QObject", "十亿份"), 6},
    {7002, 2, QT_TRANSLATE_NOOP("QObject", "原始值"), 7},
    {7003, 1, QT_TRANSLATE_NOOP("QObject", "%"), 7},
    {7004, -1, QT_TRANSLATE_NOOP("QObject", "‰"), 7},
    {7005, -2, QT_TRANSLATE_NOOP("QObject", "BP"), 7},
    {8000, 0, QT_TRANSLATE_NOOP("QObject", "户"), 8},
    {8002, 2, QT_TRANSLATE_NOOP("QObject", "百户"), 8},
    {8004, 4, QT_TRANSLATE_NOOP("QObject", "万户"), 8},
    {8008, 8, QT_TRANSLATE_NOOP("QObject", "亿户"), 8},
    {10000, 0, QT_TRANSLATE_NOOP("QObject", "次"), 10},
    {13000, 0, QT_TRANSLATE_NOOP("QObject", "倍"), 13},
    {14000, 0, QT_TRANSLATE_NOOP("QObject", "年"), 14},
    {15000, 0, QT_TRANSLATE_NOOP("QObject", "家"), 15},
    {16000, 0, QT_TRANSLATE_NOOP("QObject", "个"), 16},
    {18000, 0, QT_TRANSLATE_NOOP("QObject", "元"), 18},
    {19000, 0, QT_TRANSLATE_NOOP("QObject", "天"), 19},
    {20000, 0, QT_TRANSLATE_NOOP("QObject", "值"), 20},
    {21000, 0, QT_TRANSLATE_NOOP("QObject", "笔"), 21},
    {22000, 0, QT_TRANSLATE_NOOP("QObject", "元/%"), 22},
};

QList<TFUnits::Unit> translated()
{
    QList<TFUnits::Unit> units;
    for (const UnitRow &row : UnitRows)
        units.append({row.unitCode, row.exponent, QObject::tr(row.unitName), row.unitCategory});
    return units;
}

const TFUnits::Unit *unitOfCode(int code)
{
    const QList<TFUnits::Unit> &units = TFUnits::all();
    const auto it = std::find_if(units.begin(), units.end(),
                                 [code](const TFUnits::Unit &unit) { return unit.unitCode == code; });
    return it == units.end() ? nullptr : &*it;
}
} // namespace

const QList<TFUnits::Unit> &TFUnits::all()
{
    static const QList<Unit> units = translated();
    return units;
}

QList<TFUnits::Unit> TFUnits::unitsOfCategory(int category)
{
    QList<Unit> units;
    for (const Unit &unit : all()) {
        if (unit.unitCategory == category)
            units.append(unit);
    }
    return units;
}

int TFUnits::unitCodeOfName(const QString &name)
{
    const auto it =
        std::find_if(all().begin(), all().end(), [&name](const Unit &unit) { return unit.unitName == name; });
    return it == all().end() ? -1 : it->unitCode;
}

QString TFUnits::unitNameOfCode(int code)
{
    const Unit *unit = unitOfCode(code);
    return unit ? unit->unitName : QString();
}

int TFUnits::unitExponentOfCode(int code)
{
    const Unit *unit = unitOfCode(code);
    return unit ? unit->exponent : UnknownExponent;
}
