#pragma once

class QSize;
class QWidget;

namespace Bench {

/// What comes before the application object where there are pages: the toolkit set up as the terminal has it,
/// and no display wanted unless the environment names a platform.
void prepareToolkit();

/// Lets the event loop run until \a widget, or one inside it, has been painted.
void waitForPaint(QWidget *widget);

/// Milliseconds that an empty QTableView with that many columns takes from its making to its first picture.
double emptyTableTime(const QSize &size, int columns);

} // namespace Bench
