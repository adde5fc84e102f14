#pragma once

class QString;

/// The borderless message box.
class TFMessageBox
{
public:
    /// Shows \a text under \a title at the mouse cursor and returns when the user has closed the box. A box
    /// that cannot be built is not shown; only the log tells. User-interface thread only.
    static void showMsg(const QString &title, const QString &text);
};
