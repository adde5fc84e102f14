#pragma once

#include <QString>

/// Settings of one column or band, shared by the configuration tables, the band tree and the model.
///
/// An empty record has 0, false and empty texts throughout.
struct HeaderFieldInfo
{
    int id = 0;                ///< not read from JSON
    QString columnType;        ///< "Band", "BandedGridColumnWithUnit", "MemoExEdit", "HyperLinkEdit", ...
    QString reserved1;         ///< not read from JSON
    QString ownerBand;         ///< fieldName of the parent band; empty or "0" at the top level
    QString fieldName;         ///< key of the field in a data row
    int reserved2 = 0;         ///< not read from JSON
    QString url;               ///< link template
    QString valueType;         ///< "Decimal", "String", "DateTime", ...
    QString unboundExpression; ///< expression that computes a cell
    int unitCategory = 0;      ///< group of interchangeable units, 0 for none
    qint64 prevUnitFactor = 0; ///< factor of the value as delivered
    qint64 showUnitFactor = 0; ///< factor of the value as shown
    QString showUnit;          ///< unit text of the caption
    int captionShowType = 0;   ///< 1 and 3 show the unit in the caption
    QString caption;           ///< may hold an expression in braces
    int reserved3 = 0;         ///< not read from JSON
    int width = 0;             ///< pixels; -9 measures the caption, 0 takes the default
    QString formatString;      ///< number code "n0" to "n20" or a date format
    bool visible = false;
    bool reserved4 = false; ///< not read from JSON
    bool noSort = false;
    QString cellStyleExpression; ///< script that gives a text colour
    int textAlignment = 0;       ///< 0 by type, 1 left, 3 right, else centre
    QString reserved5;           ///< not read from JSON
    int showStatus = 0;
    int sn = 0;
    int level = 0;
    QString statExpression;
    qint64 reserved6 = 0; ///< not read from JSON
};
