#pragma once

#include <QFrame>
#include <QList>

class QLabel;
class QSplitter;
class QVBoxLayout;

/// A title line over a vertical splitter; base of both sides of the page.
class TFVerticalContainer : public QFrame
{
    Q_OBJECT

public:
    explicit TFVerticalContainer(QWidget *parent = nullptr);
    ~TFVerticalContainer() override;

    /// Appends \a widget to the splitter, which then owns it. Null is ignored.
    void addWidget(QWidget *widget);
    /// Heights of the splitter's widgets, from the top; scaled to the height that there is.
    void setSizes(const QList<int> &sizes);
    /// Sets the text of the title line and the window title.
    void setTitle(const QString &title);
    QString title() const;
    /// The title line is hidden at first.
    void setTitleVisible(bool visible);
    bool isTitleVisible() const;

private:
    QSplitter *m_splitter;
    QVBoxLayout *m_layout;
    QLabel *m_title;
};
