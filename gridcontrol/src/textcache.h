#pragma once

#include "figurefont.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QStaticText>

#include <memory>

namespace Qtitan {

/// Texts laid out once for one font; figures are not laid out at all. Grids of one font share them.
///
/// Holds a bounded number of texts: when the newer half is full, what was not drawn since the last time falls
/// out.
class TextCache
{
public:
    struct Entry
    {
        QStaticText text;
        QString figures; ///< the text where it is made of figures alone
        int width = 0;
        bool elided = false;
    };

    explicit TextCache(const QFont &font);

    /// The cache of \a font; it goes with the last who holds it.
    static std::shared_ptr<TextCache> ofFont(const QFont &font);

    const QFont &font() const { return m_font; }
    int textHeight() const { return m_height; }

    /// \a text at its natural width.
    Entry whole(const QString &text);

    /// \a text, elided where it is wider than \a width pixels: at its end, or before \a kept, with which it
    /// ends, as long as that leaves room for more than the ellipsis.
    Entry fitting(const QString &text, int width, const QString &kept = QString());

    /// Draws \a entry in the pen of \a painter, which has the font of this cache.
    void draw(QPainter &painter, int left, int top, const Entry &entry);

private:
    template <typename Key, typename Value> class Generations
    {
    public:
        template <typename Make> Value value(const Key &key, Make make);

    private:
        QHash<Key, Value> m_young;
        QHash<Key, Value> m_old;
    };

    QFont m_font;
    QFontMetricsF m_metrics;
    int m_height;
    FigureFont m_figures;
    Generations<QString, Entry> m_whole;
    Generations<QPair<QString, int>, QString> m_elided;
};

} // namespace Qtitan
