#include "figurefont.h"

#include <QPainter>
#include <QTextLayout>

namespace Qtitan {

void FigureFont::measure()
{
    m_isMeasured = true;
    for (const QChar letter : QStringLiteral("0123456789.,-+%/:()")) {
        QTextLayout layout(QString(letter), m_font);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        const QList<QGlyphRun> runs = layout.glyphRuns();
        // A sign that only a fallback font has is left to the layout.
        if (runs.size() != 1 || runs.first().glyphIndexes().size() != 1 ||
            (m_run.rawFont().isValid() && runs.first().rawFont() != m_run.rawFont()))
            continue;
        m_run.setRawFont(runs.first().rawFont());
        m_run.setFlags(runs.first().flags());
        m_ascent = line.ascent();
        m_glyphs[letter.unicode()] = runs.first().glyphIndexes().first();
        m_advances[letter.unicode()] = line.naturalTextWidth();
    }
}

qreal FigureFont::width(const QString &text)
{
    // Not before it is asked for: grids get their font after they are made.
    if (!m_isMeasured)
        measure();
    qreal width = 0;
    for (const QChar letter : text) {
        if (!holds(letter))
            return -1;
        width += m_advances[letter.unicode()];
    }
    return text.isEmpty() ? -1 : width;
}

void FigureFont::draw(QPainter &painter, const QPointF &place, const QString &text)
{
    m_indexes.resize(text.size());
    m_positions.resize(text.size());
    qreal x = 0;
    for (int i = 0; i < text.size(); ++i) {
        m_indexes[i] = m_glyphs[text.at(i).unicode()];
        m_positions[i] = QPointF(x, 0);
        x += m_advances[text.at(i).unicode()];
    }
    m_run.setRawData(m_indexes.constData(), m_positions.constData(), text.size());
    painter.drawGlyphRun(place + QPointF(0, m_ascent), m_run);
}

} // namespace Qtitan
