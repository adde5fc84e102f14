#pragma once

#include "records/tftablemodeldata.h"
#include "tfbasejsontable.h"

#include <QList>

/// The filter controls of a view.
class TFFilterJsonTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    using TFBaseJsonTable::TFBaseJsonTable;

    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    /// A copy, in document order.
    QList<TFTableModelData::FilterData> filters() const { return m_filters; }

private:
    QList<TFTableModelData::FilterData> m_filters;
};
