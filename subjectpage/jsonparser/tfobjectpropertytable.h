#pragma once

#include "tfbasejsontable.h"

#include <QList>
#include <QString>

/// A list of object properties.
class TFObjectPropertyTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    struct Property
    {
        double objId = 0;
        QString refRela;
        QString propSour;
        QString propTyp;
        QString propName;
        QString propCap;
    };

    using TFBaseJsonTable::TFBaseJsonTable;

    /// Reads the array under "DATA" of an object.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    QList<Property> properties() const { return m_properties; }

private:
    QList<Property> m_properties;
};
