#pragma once

#include "net/tfdm.h"
#include "tfbasefilterwidget.h"

#include <QList>
#include <QMap>

class QListWidget;
class QListWidgetItem;
class TFMenuButton;

/// Several choices out of a list that drops down, with an "All" entry on top.
///
/// Its object name is "CustomCheckCombobox", whatever the configuration calls it.
class TFCheckCombox : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFCheckCombox(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

signals:
    void signalItemCheckStatusChanged(QListWidgetItem *checkStausChangedItem, bool status);
    void signalItemDataUpdate(QMap<QString, QString> data);

public slots:
    void slotItemPressed(QListWidgetItem *item);
    void slotItemClicked(QListWidgetItem *item);
    void slotCheckStatusChanged(QListWidgetItem *item, bool checked);
    void slotOnItemDataUpdate(QMap<QString, QString> data);

private:
    void buildWidgets();
    void fill();
    void selectDefault();
    void checkDefaultValue(const QString &value);
    void checkAll(bool checked);
    void rebuildText();
    QString valueOf(const QString &text) const;
    QStringList checkedTexts() const;

    TFMenuButton *m_button;
    QListWidget *m_list = nullptr;
    QList<int> m_checked;
    QMap<int, QString> m_texts;
    QMap<QString, QString> m_values;
    QListWidgetItem *m_allItem = nullptr;
    TFDm m_dm;
};
