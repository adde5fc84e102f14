#pragma once

#include <QSize>
#include <QString>

/// A display for programs on machines that have none: an X server without a screen.
///
/// The server ends with this object, and also when the program dies without a word: the kernel ends it with
/// its parent. Linux only; to be used before the application object is made, and to outlive it.
class VirtualDisplay
{
public:
    VirtualDisplay() = default;
    ~VirtualDisplay();
    Q_DISABLE_COPY(VirtualDisplay)

    /// Whether the environment names a display that is there.
    static bool isDisplayThere();
    /// Whether the environment asks for a platform without a display. Tables can be drawn there; the web
    /// engine and so charts can't.
    static bool isPlatformWithoutDisplay();

    /// Starts a server whose screen holds a window of \a size, and points the environment to it. Returns why
    /// that did not work, or an empty text.
    QString start(const QSize &size);

private:
    QString readNumber(int pipe);

    int m_process = 0;
};
