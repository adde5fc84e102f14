#pragma once

class QImage;
class QPagedPaintDevice;

namespace TFChartPrint {

/// Paints \a image on the page of \a device, from the top left corner on and as large as the page allows in
/// the image's own proportions.
void paint(QPagedPaintDevice &device, const QImage &image);

} // namespace TFChartPrint
