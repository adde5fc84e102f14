#pragma once

#include "screenstate.h"

#include <QFrame>

class CellStrip;
class ComponentCatalog;
class ITFMemory;
class ScreenArguments;

/// One cell of a composite screen: a component under its strip, or a placeholder where no plug-in offers the
/// component. The placeholder keeps the state that it was given. Object names: "ScreenCell",
/// "CellPlaceholder".
///
/// The cell is the component's parent and has the screen object in its property "zhpObj" before the component
/// is made.
class ScreenCell : public QFrame
{
    Q_OBJECT

public:
    ScreenCell(const ComponentCatalog *catalog, ScreenArguments *arguments, const ScreenComponent &component,
               QWidget *parent = nullptr);

    /// The component with the state that it was given, or that it had when it last told of new settings. It
    /// is not asked at other times: a page that is still on its way would tell less than it was given.
    ScreenComponent component() const { return m_component; }
    /// The component itself, or null for a placeholder.
    QWidget *widget() const { return m_widget; }
    QString title() const;
    CellStrip &strip() const { return *m_strip; }
    /// Opens the component's own settings: triggers its action with the key Ctrl+P, or the first that it has.
    void openSettings();

    QSize minimumSizeHint() const override;

signals:
    void addRequested(const QByteArray &className, Qt::Orientation orientation);
    void removeRequested();
    /// component() is another one.
    void componentChanged();

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QWidget *makeWidget();
    QWidget *makePlaceholder();
    void takeState();
    void adoptActions();
    QAction *settingsAction() const;
    void retranslate();

    const ComponentCatalog *m_catalog;
    ScreenComponent m_component;
    CellStrip *m_strip;
    QWidget *m_widget;
    ITFMemory *m_memory = nullptr;
};
