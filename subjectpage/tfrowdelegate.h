#pragma once

#include <QColor>
#include <QIcon>
#include <QStyledItemDelegate>

class QStandardItem;

/// Paints the rows of a navigation tree: besides what the base class does, the marker of a leaf, to the left
/// of its text, and the mark of the open page.
class TFRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// \a isBlock is true for the block tree, which has no leaf markers.
    explicit TFRowDelegate(bool isBlock, QObject *parent = nullptr);

    /// The item whose page is open, or null. It is compared and never followed.
    void setOpenItem(const QStandardItem *item) { m_openItem = item; }
    void setAccentColor(const QColor &color) { m_accentColor = color; }
    /// Reads the leaf markers anew from the current skin.
    void loadMarkers();

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Shows the whole caption as tool tip where the row is too narrow for it.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    struct Marker
    {
        QIcon icon;
        QSize size;
    };

    bool isOpen(const QModelIndex &index) const;
    void paintMarker(QPainter *painter, const QStyleOptionViewItem &option) const;
    void paintAccentBar(QPainter *painter, const QStyleOptionViewItem &option) const;

    bool m_isBlock;
    const QStandardItem *m_openItem = nullptr;
    QColor m_accentColor;
    Marker m_marker;
    Marker m_activeMarker;
};
