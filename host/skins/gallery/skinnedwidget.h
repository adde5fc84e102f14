#pragma once

#include "tfcore/itfskin.h"

#include <QWidget>

/// A widget that takes one style sheet file of the skin, as pages and bars of the plug-in do.
class SkinnedWidget : public QWidget, public ITFSkin
{
    Q_OBJECT
    Q_INTERFACES(ITFSkin)

public:
    explicit SkinnedWidget(QWidget *parent = nullptr);

    QWidget *object() override { return this; }
    void applySkinStyle(const QVariant &style) override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// Stand-ins under the class names that the sheets address.
class TFSubjectPage : public SkinnedWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor headerBorderColor MEMBER m_headerBorderColor)
    Q_PROPERTY(QColor headerSplitColor MEMBER m_headerSplitColor)
    Q_PROPERTY(QColor highlightColor MEMBER m_highlightColor)

public:
    using SkinnedWidget::SkinnedWidget;

private:
    QColor m_headerBorderColor;
    QColor m_headerSplitColor;
    QColor m_highlightColor;
};

class TFPaginationBar : public SkinnedWidget
{
    Q_OBJECT
public:
    using SkinnedWidget::SkinnedWidget;
};

class TFFilterWidget : public SkinnedWidget
{
    Q_OBJECT
public:
    using SkinnedWidget::SkinnedWidget;
};
