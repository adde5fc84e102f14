#include "picture.h"

#include <QColor>
#include <QVector>

namespace {
// A run of one colour that no stroke of a letter is as long as.
constexpr int leastRun = 14;

struct Tolerance
{
    const char *what;
    int channel;  ///< most that one channel of a pixel may be off
    double share; ///< share of the pixels that may be off by more
};
constexpr Tolerance ofSurfaces{"lines and surfaces", 2, 0.00005};
constexpr Tolerance ofTexts{"texts", 56, 0.04};

bool isInRun(const QImage &picture, int x, int y, int dx, int dy)
{
    int length = 1;
    for (int sign : {-1, 1})
        for (int i = 1; i < leastRun && length < leastRun; ++i, ++length) {
            const QPoint other(x + sign * i * dx, y + sign * i * dy);
            if (!picture.valid(other) || picture.pixel(other) != picture.pixel(x, y))
                break;
        }
    return length >= leastRun;
}

bool isText(const QImage &picture, int x, int y)
{
    return !isInRun(picture, x, y, 1, 0) && !isInRun(picture, x, y, 0, 1);
}

/// Pixels of texts, with the ones around them.
QVector<bool> textPixels(const QImage &picture)
{
    QVector<bool> texts(picture.width() * picture.height(), false);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            if (!isText(picture, x, y))
                continue;
            for (int i = qMax(0, y - 1); i <= qMin(picture.height() - 1, y + 1); ++i)
                for (int j = qMax(0, x - 1); j <= qMin(picture.width() - 1, x + 1); ++j)
                    texts[i * picture.width() + j] = true;
        }
    return texts;
}

bool isOff(QRgb a, QRgb b, int most)
{
    return qAbs(qRed(a) - qRed(b)) > most || qAbs(qGreen(a) - qGreen(b)) > most ||
           qAbs(qBlue(a) - qBlue(b)) > most;
}

QString differenceOf(const QImage &wanted, const QImage &found, const QVector<bool> &texts, bool ofText,
                     const Tolerance &tolerance)
{
    int off = 0;
    QPoint first;
    for (int y = 0; y < wanted.height(); ++y)
        for (int x = 0; x < wanted.width(); ++x)
            if (texts.at(y * wanted.width() + x) == ofText &&
                isOff(wanted.pixel(x, y), found.pixel(x, y), tolerance.channel) && off++ == 0)
                first = QPoint(x, y);
    const int all = texts.count(ofText);
    if (off <= all * tolerance.share)
        return QString();
    return QStringLiteral("%1: %2 of %3 pixels differ, the first at %4,%5: %6 instead of %7;")
        .arg(tolerance.what)
        .arg(off)
        .arg(all)
        .arg(first.x())
        .arg(first.y())
        .arg(QColor(found.pixel(first)).name(), QColor(wanted.pixel(first)).name());
}
} // namespace

QString difference(const QImage &wanted, const QImage &found)
{
    if (wanted.size() != found.size())
        return QStringLiteral("%1x%2 pixels instead of %3x%4")
            .arg(found.width())
            .arg(found.height())
            .arg(wanted.width())
            .arg(wanted.height());
    const QVector<bool> texts = textPixels(wanted);
    return differenceOf(wanted, found, texts, false, ofSurfaces) +
           differenceOf(wanted, found, texts, true, ofTexts);
}

QImage coarse(QImage picture)
{
    const QImage fine = picture;
    const auto step = [](int channel) { return qMin(255, (channel + 16) / 32 * 32); };
    for (int y = 0; y < fine.height(); ++y)
        for (int x = 0; x < fine.width(); ++x)
            if (isText(fine, x, y)) {
                const QRgb color = fine.pixel(x, y);
                picture.setPixel(x, y, qRgb(step(qRed(color)), step(qGreen(color)), step(qBlue(color))));
            }
    return picture.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
}
