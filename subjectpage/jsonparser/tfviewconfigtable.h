#pragma once

#include "tfbasejsontable.h"

#include <QPair>
#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

class QJsonArray;
class QJsonObject;
class TFChartViewJsonTable;
class TFChildViewJsonTable;
class TFFilterJsonTable;
class TFHeaderFieldConfigData;

/// The properties of a view, and through its EXTEND entries the tables of bands, filters, child views and
/// chart.
class TFViewConfigTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    explicit TFViewConfigTable(QObject *parent = nullptr);
    ~TFViewConfigTable() override;

    /// Announces child views through sigJsonData() while it reads. The flags and numbers of an earlier fill
    /// stay where the new part does not name them.
    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    int viewId() const { return m_viewId; }
    bool isCross() const { return m_cross; }
    bool isTurnOver() const { return m_turnOver; }
    bool isGroup() const { return m_group; }
    bool isOrder() const { return m_order; }
    bool isGetChartData() const { return m_getChartData; }
    bool isShowChild() const { return m_showChild; }
    /// True only for a JSON boolean; a text gives false.
    bool isShowFilter() const { return m_showFilter; }
    int frozenCount() const { return m_frozenCount; }
    int bandsLevel() const { return m_bandsLevel; }
    QString groupFields() const { return m_groupFields; }
    QString groupFormat() const { return m_groupFormat; }
    QString vGridColHeaderField() const { return m_vGridColHeaderField; }
    bool hasVGridColHeaderField() const { return !m_vGridColHeaderField.isEmpty(); }

    // The first entry's table of that kind, or null. Owned by this table, gone at the next initWith().
    TFHeaderFieldConfigData *headerTable() const;
    TFChartViewJsonTable *chartTable() const;
    TFChildViewJsonTable *childTable() const;
    TFFilterJsonTable *filterTable() const;

    QString sectorNum() const;
    QString rootSectorNum() const;
    /// The pair "order" and a JSON object of field name to 1 or -1; an empty name and a null variant without
    /// an order.
    QPair<QString, QVariant> orderProperty() const;
    /// Parameters of a child view, or an empty text.
    QString childViewParams(qint64 objVwId) const;

private:
    struct Entry;

    void readProperty(const QJsonObject &element);
    void readEntry(const QJsonObject &element);
    std::unique_ptr<TFBaseJsonTable> readExtension(const QString &name, const QJsonObject &element);
    QString firstValue(bool (*matches)(const QString &name)) const;
    template <typename Table> Table *firstTable(int tableId) const;

    std::vector<std::unique_ptr<Entry>> m_entries;
    int m_viewId = -1;
    bool m_showChild = false;
    bool m_cross = false;
    bool m_turnOver = false;
    bool m_order = false;
    bool m_getChartData = false;
    bool m_group = false;
    bool m_showFilter = false;
    int m_frozenCount = 0;
    int m_bandsLevel = 1;
    QString m_groupFields;
    QString m_groupFormat;
    QString m_vGridColHeaderField;
};
