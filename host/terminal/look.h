#pragma once

#include <QIcon>
#include <QObject>

class QApplication;

/// Style, font, palette and style sheet of the application after the current skin.
///
/// The palette comes from "palette" and "disabledPalette" of the skin's file skin.json, which map names of
/// colour roles to colours; the sheet from the skin's file terminal.css.
class Look : public QObject
{
    Q_OBJECT

public:
    explicit Look(QObject *parent = nullptr);

    /// Sets what no skin changes: base style and font. Before the first window.
    void prepare(QApplication *application);
    /// Changes to \a skin, or to the first skin that there is if \a skin is unknown. Returns false if there
    /// is none at all.
    bool setSkin(const QString &skin);

    /// The terminal's own line icon \a name in the text colour of the palette, sharp at any scale.
    static QIcon icon(const QString &name);

private:
    void apply();
};
