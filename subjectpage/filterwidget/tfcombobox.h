#pragma once

#include "net/tfdm.h"
#include "tfbasefilterwidget.h"

#include <QMap>
#include <QVariant>

class QComboBox;

/// One choice out of a list: fixed pairs, units of a category, cached codes, or names from the data service.
///
/// A remote list shows names alone; it filters only under the field "PROVINCE".
class TFComboBox : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFComboBox(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;
    void setCurrentText(const QString &text);

signals:
    /// A unit was chosen; -1 for a text that is no unit.
    void signalCurrentIndexChanged(int unitCode, int unitCategory);
    void signalItemDataUpdate(QMap<QString, QString> data);

public slots:
    void slotOnItemDataUpdate(QMap<QString, QString> data);

private:
    void createConnects();
    void requestList();
    void fill();
    void fillUnits();
    bool fillCachedCodes();
    void selectDefault();
    bool usesCachedCodes() const;
    QVariant chosenValue() const;

    QComboBox *m_box;
    QMap<QString, QVariant> m_literals;
    bool m_isUnitList = false;
    int m_unitCategory = -1;
    TFDm m_dm;
};
