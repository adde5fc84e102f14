#pragma once

#include "tfbasefilterwidget.h"

#include <QList>
#include <QMap>

class TFMenuButton;

/// Years to choose from: one, or many with ticks.
class TFMultiYear : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    enum class Choice { Single, Many };

    TFMultiYear(const TFTableModelData::FilterData &row, Choice choice, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

public slots:
    void slotActionCheckStatusChanged(bool checked);
    void slotActionClickStatusChanged(bool checked);

private:
    void fill();
    bool fillFromNameValues();
    void addYear(int index, const QString &text);
    void selectDefault();
    void rebuildText();
    QStringList chosenTexts() const;

    TFMenuButton *m_button;
    bool m_many;
    QList<int> m_chosen;
    QMap<int, QString> m_texts;
};
