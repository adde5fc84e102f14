#pragma once

#include <gridcontrol/gridargs.h>
#include <gridcontrol/gridband.h>
#include <gridcontrol/gridbandedview.h>
#include <gridcontrol/gridcolumn.h>
#include <gridcontrol/griddatabinding.h>
#include <gridcontrol/grideditor.h>
#include <gridcontrol/gridglobal.h>
#include <gridcontrol/gridoptions.h>
#include <gridcontrol/gridrow.h>
#include <gridcontrol/gridtheme.h>
#include <gridcontrol/gridview.h>

#include <QColor>
#include <QFrame>

namespace Qtitan {

struct GridColors;

/// Holder of a root view, its theme and its texts.
class GridBase : public QFrame
{
    Q_OBJECT

public:
    explicit GridBase(QWidget *parent = nullptr);
    ~GridBase() override;

    /// The view; never null. Another call of setViewType() replaces it.
    GridViewBase *rootView() const { return m_view; }

    /// Texts of menus, find bar and states: "en" for English, "zh" or an empty name for the built-in Chinese
    /// ones. False, and the texts stand, for a language that is not there.
    static bool loadTranslation(const QString &language);

    GridThemeManager *themeManager() const { return m_theme; }

    /// Colours as they are drawn: properties first, then palettes.
    virtual GridColors colors() const = 0;

protected:
    void setRootView(GridViewBase *view);
    void changeEvent(QEvent *event) override;

private:
    GridViewBase *m_view = nullptr;
    GridThemeManager *m_theme;
};

/// The grid control.
///
/// Text and background of the rows are the palette's Text and Base. All other colours are properties, for
/// style sheets too:
///
///     Qtitan--Grid { color: #D7DEE8; background: #0E131B; qproperty-headerBackground: #131A24; }
///
/// | property | what it colours |
/// |---|---|
/// | headerBackground, headerText | header band and its captions |
/// | lineColor | lines between cells |
/// | strongLineColor | the frozen edge and edges of top-level bands |
/// | alternateColor | every other row |
/// | hoverColor | row under the pointer |
/// | selectionColor, selectionText | selected rows |
/// | linkColor | link cells |
/// | mutedColor | empty table, cell buttons |
/// | accentColor | sort arrow, matches of the find bar |
/// | focusColor | frame of the focused cell |
/// | panelColor, textColor | rows and their text, where the palette is not to decide |
///
/// A property that is not set, or set to an invalid colour, falls to the theme's shade palette, whose start
/// is a light scheme. Every change repaints at once.
class Grid : public GridBase
{
    Q_OBJECT
    Q_PROPERTY(QColor headerBackground MEMBER m_headerBackground NOTIFY colorsChanged)
    Q_PROPERTY(QColor headerText MEMBER m_headerText NOTIFY colorsChanged)
    Q_PROPERTY(QColor lineColor MEMBER m_line NOTIFY colorsChanged)
    Q_PROPERTY(QColor strongLineColor MEMBER m_strongLine NOTIFY colorsChanged)
    Q_PROPERTY(QColor alternateColor MEMBER m_alternate NOTIFY colorsChanged)
    Q_PROPERTY(QColor hoverColor MEMBER m_hover NOTIFY colorsChanged)
    Q_PROPERTY(QColor selectionColor MEMBER m_selection NOTIFY colorsChanged)
    Q_PROPERTY(QColor selectionText MEMBER m_selectionText NOTIFY colorsChanged)
    Q_PROPERTY(QColor linkColor MEMBER m_link NOTIFY colorsChanged)
    Q_PROPERTY(QColor mutedColor MEMBER m_muted NOTIFY colorsChanged)
    Q_PROPERTY(QColor accentColor MEMBER m_accent NOTIFY colorsChanged)
    Q_PROPERTY(QColor focusColor MEMBER m_focus NOTIFY colorsChanged)
    Q_PROPERTY(QColor panelColor MEMBER m_panel NOTIFY colorsChanged)
    Q_PROPERTY(QColor textColor MEMBER m_text NOTIFY colorsChanged)

public:
    /// Starts with an empty plain view.
    explicit Grid(QWidget *parent = nullptr);
    ~Grid() override;

    /// Makes a new root view, of ViewType, and deletes the one before with its columns and bands; also when
    /// the type stands. An unknown type makes a plain one.
    void setViewType(int type);
    int viewType() const { return m_viewType; }

    GridColors colors() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

signals:
    void colorsChanged();

private:
    QColor m_headerBackground;
    QColor m_headerText;
    QColor m_line;
    QColor m_strongLine;
    QColor m_alternate;
    QColor m_hover;
    QColor m_selection;
    QColor m_selectionText;
    QColor m_link;
    QColor m_muted;
    QColor m_accent;
    QColor m_focus;
    QColor m_panel;
    QColor m_text;
    int m_viewType = PlainTableView;
};

} // namespace Qtitan
