#pragma once

#include <QLayout>
#include <QList>
#include <QRect>
#include <QStyle>

/// Places its items left to right and wraps them to lines. Owns the items.
///
/// A negative spacing asks the style of the parent, then the item itself.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    FlowLayout(int margin, int hSpacing, int vSpacing, QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect &rect) override;
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;

private:
    enum class Pass { Measure, Place };
    int layOut(const QRect &rect, Pass pass) const;
    int spacing(int wanted, QStyle::PixelMetric metric, const QLayoutItem *item, Qt::Orientation way) const;

    QList<QLayoutItem *> m_items;
    int m_hSpacing;
    int m_vSpacing;
};
