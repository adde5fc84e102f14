#pragma once

#include "records/headerfieldinfo.h"
#include "tfbasejsontable.h"

#include <QHash>
#include <QList>
#include <QVariantMap>

/// The fields of the object behind the view, each with its display settings.
class TFObjectViewConfigTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    /// One field.
    struct Field
    {
        QString propTyp;
        QString objVwId; ///< "-1" where the document names no view
        QString objPropName; ///< the key of all look-ups
        QString objPropCap;
        QString vwSts; ///< "1" and "6" mean visible
        QString vwFmt;
        QString dftVal;
        HeaderFieldInfo info; ///< from the JSON text "ots_cfg"; all defaults when that is not valid
        QString propSn;
        QString cnvCfg;
    };

    using TFBaseJsonTable::TFBaseJsonTable;

    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    /// Settings of the first field of that name, or an empty record.
    HeaderFieldInfo headerFieldInfo(const QString &fieldName) const;
    /// False only for a field that is there and whose status is neither "1" nor "6".
    bool isFieldVisible(const QString &fieldName) const;

    QList<Field> fields() const { return m_fields; }

private:
    const Field *find(const QString &fieldName) const;

    QList<Field> m_fields;
    QHash<QString, int> m_indexOfName; ///< of the first field of each name
};
