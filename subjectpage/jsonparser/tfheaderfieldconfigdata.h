#pragma once

#include "records/headerfieldinfo.h"
#include "tfbasejsontable.h"

#include <QHash>
#include <QList>

class QJsonObject;
class TFObjectViewConfigTable;

/// The column list of a view: "Bands" of the configuration (keys begin in upper case), or "GridColumns" of a
/// cross table's summary (lower case).
class TFHeaderFieldConfigData : public TFBaseJsonTable
{
    Q_OBJECT

public:
    TFHeaderFieldConfigData(QObject *parent, bool upperCaseKeys);

    /// Takes a JSON text that holds an array. In lower-case form a column is visible exactly when its
    /// "showStatus" is 1 or 6.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    /// Takes the display settings of each field from \a table; a field that it lacks stays as it is and gives
    /// a warning. Caption, band, level and sequence number are kept.
    void mergeWith(const TFObjectViewConfigTable *table);

    /// A copy, in document order.
    QList<HeaderFieldInfo> fields() const { return m_fields; }
    /// The first record of that field name, or an empty record.
    HeaderFieldInfo headerFieldInfo(const QString &fieldName) const;

private:
    HeaderFieldInfo readField(const QJsonObject &element) const;

    QList<HeaderFieldInfo> m_fields;
    QHash<QString, int> m_indexOfName; ///< of the first field of each name
    bool m_upperCaseKeys;
};
