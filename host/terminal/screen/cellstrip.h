#pragma once

#include <QFrame>

class ComponentCatalog;
class QLabel;
class QMenu;
class QToolButton;

/// The slim strip over a component: its title and what can be done with its cell. Object names: "CellStrip",
/// "CellTitle", "CellSettings", "CellAddRight", "CellAddBelow", "CellRemove".
class CellStrip : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(bool current READ isCurrent)

public:
    /// \a catalog must outlive the strip.
    explicit CellStrip(const ComponentCatalog *catalog, QWidget *parent = nullptr);

    void setTitle(const QString &title);
    void setSettingsEnabled(bool enabled);
    /// The cell that has the keyboard is drawn so.
    void setCurrent(bool current);
    bool isCurrent() const { return m_isCurrent; }
    /// Draws the icons anew in the colours of the palette.
    void redraw();

signals:
    void settingsRequested();
    void addRequested(const QByteArray &className, Qt::Orientation orientation);
    void removeRequested();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QToolButton *makeButton(const char *name);
    void giveMenu(QToolButton *button, Qt::Orientation orientation);
    void elideTitle();
    void retranslate();

    const ComponentCatalog *m_catalog;
    QLabel *m_title;
    QToolButton *m_settings;
    QToolButton *m_addRight;
    QToolButton *m_addBelow;
    QToolButton *m_remove;
    QString m_text;
    bool m_isCurrent = false;
};
