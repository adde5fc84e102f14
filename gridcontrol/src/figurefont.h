#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QPointF>
#include <QString>
#include <QVector>

#include <array>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Qtitan {

/// Measures and draws figures of one font without laying them out.
///
/// Digits and the signs among them stand side by side by their own widths, so a table of numbers that never
/// repeat costs no shaping. Anything else is for QStaticText.
class FigureFont
{
public:
    explicit FigureFont(const QFont &font)
        : m_font(font)
    {}

    /// Width in pixels of \a text; -1 for one with other characters, or without any.
    qreal width(const QString &text);

    /// Draws a text that has a width() with its top left corner at \a place, in the painter's pen.
    void draw(QPainter &painter, const QPointF &place, const QString &text);

private:
    static constexpr int characters = 128;

    bool holds(QChar letter) const
    {
        return letter.unicode() < characters && m_advances[letter.unicode()] > 0;
    }

    void measure();

    QFont m_font;
    bool m_isMeasured = false;
    QGlyphRun m_run;
    std::array<quint32, characters> m_glyphs{};
    std::array<qreal, characters> m_advances{};
    QVector<quint32> m_indexes;
    QVector<QPointF> m_positions;
    qreal m_ascent = 0;
};

} // namespace Qtitan
