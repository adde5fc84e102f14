#pragma once

#include "tfbasejsontable.h"

#include <QString>

/// The name of the view.
class TFObjectViewJsonTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    using TFBaseJsonTable::TFBaseJsonTable;

    /// Reads "obj_vw_name" of the first element; an empty array leaves the name as it was.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    QString name() const { return m_name; }

private:
    QString m_name;
};
