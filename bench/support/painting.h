#pragma once

class QWidget;

namespace Bench {

/// Lets the event loop run until \a widget, or one inside it, has been painted.
void waitForPaint(QWidget *widget);

} // namespace Bench
