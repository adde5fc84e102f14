#include "tfchartprint.h"

#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>

void TFChartPrint::paint(QPagedPaintDevice &device, const QImage &image)
{
    QPainter painter(&device);
    const QRect viewport = painter.viewport();
    const QSize size = image.size().scaled(viewport.size(), Qt::KeepAspectRatio);
    painter.setViewport(viewport.x(), viewport.y(), size.width(), size.height());
    painter.setWindow(image.rect());
    painter.drawImage(0, 0, image);
}
