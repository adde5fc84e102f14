#pragma once

#include "screenstate.h"

#include <QWidget>

class ComponentCatalog;
class EmptyScreen;
class ScreenArguments;
class ScreenCell;
class ScreenSplitter;

/// The cells of a composite screen in rows and columns, or what to do with an empty one. Object name
/// "ScreenView".
class ScreenView : public QWidget
{
    Q_OBJECT

public:
    /// \a catalog and \a arguments must outlive the view's cells.
    ScreenView(const ComponentCatalog *catalog, ScreenArguments *arguments, QWidget *parent = nullptr);

    std::optional<ScreenNode> layoutState() const;
    /// Takes all cells away and makes those of \a layout.
    void restoreLayout(const std::optional<ScreenNode> &layout);

    /// In reading order.
    QList<ScreenCell *> cells() const;
    /// The cell that had the keyboard last, the first one at first; null on an empty screen.
    ScreenCell *currentCell() const;
    /// "title|identifier" of the views that the components show, for arguments that lead others.
    QStringList shownViews() const;

    /// Adds a component on the right of or below \a beside, or of the current cell without one. Returns its
    /// cell.
    ScreenCell *add(const QByteArray &className, Qt::Orientation orientation = Qt::Horizontal,
                    ScreenCell *beside = nullptr);
    void remove(ScreenCell *cell);
    /// Gives the current cell the keyboard.
    void focusCurrent();

signals:
    /// Cells came, went or were resized.
    void layoutChanged();
    /// A component has new settings.
    void componentChanged();

private:
    QWidget *build(const ScreenNode &node);
    ScreenCell *makeCell(const ScreenComponent &component);
    ScreenNode nodeOf(const QWidget *widget) const;
    void place(ScreenCell *cell, ScreenCell *beside, Qt::Orientation orientation);
    void setRoot(QWidget *root);
    void replace(QWidget *present, QWidget *other);
    void follow(QWidget *focused);
    void removeIfWanted(ScreenCell *cell);
    void setCurrent(ScreenCell *cell);
    void redraw();

    const ComponentCatalog *m_catalog;
    ScreenArguments *m_arguments;
    EmptyScreen *m_empty;
    QWidget *m_root = nullptr;
    ScreenCell *m_current = nullptr;
};
