#pragma once

#include "screenstate.h"

#include <QStringList>

/// The text of a screen's file: JSON with the keys "format" ("composite-screen"), "version" (1), "name",
/// "args" (a map) and "layout".
///
/// A node of the layout is {"class": text, "state": map} for a cell, or {"row": [nodes], "shares": [numbers]}
/// and likewise "column". "docs/composite-screens.md" describes it for users.
namespace ScreenFormat {

/// What could be made of a text.
struct Reading
{
    ScreenState state;    ///< all that is usable
    QStringList problems; ///< "layout/row[1]/class: what is wrong", one a line; empty for a sound text
};

QByteArray write(const ScreenState &state, QStringList *problems);
/// Never fails: a text that is no screen at all gives an empty screen and the reason.
Reading read(const QByteArray &text);

} // namespace ScreenFormat
