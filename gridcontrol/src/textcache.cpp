#include "textcache.h"

#include <QPainter>
#include <QtMath>

namespace Qtitan {

namespace {
constexpr int generationSize = 4096;
// No screen shows more of one line; laying out megabytes would stop the program.
constexpr int longestText = 512;
constexpr int longestFigures = 32;
} // namespace

template <typename Key, typename Value>
template <typename Make>
Value TextCache::Generations<Key, Value>::value(const Key &key, Make make)
{
    const auto young = m_young.constFind(key);
    if (young != m_young.constEnd())
        return *young;
    const auto old = m_old.constFind(key);
    const Value found = old != m_old.constEnd() ? *old : make();
    if (m_young.size() >= generationSize) {
        m_old = m_young;
        m_young.clear();
    }
    m_young.insert(key, found);
    return found;
}

TextCache::TextCache(const QFont &font)
    : m_font(font)
    , m_metrics(font)
    , m_height(qCeil(m_metrics.height()))
    , m_figures(font)
{}

std::shared_ptr<TextCache> TextCache::ofFont(const QFont &font)
{
    static QHash<QFont, std::weak_ptr<TextCache>> caches;
    if (std::shared_ptr<TextCache> shared = caches.value(font).lock())
        return shared;
    for (auto cache = caches.begin(); cache != caches.end();)
        cache = cache->expired() ? caches.erase(cache) : std::next(cache);
    const auto made = std::make_shared<TextCache>(font);
    caches.insert(font, made);
    return made;
}

TextCache::Entry TextCache::whole(const QString &text)
{
    const qreal figures = text.size() <= longestFigures ? m_figures.width(text) : -1;
    if (figures >= 0)
        return {QStaticText(), text, qCeil(figures), false};
    return m_whole.value(text, [&] {
        Entry entry;
        entry.text.setTextFormat(Qt::PlainText);
        entry.text.setText(text.size() > longestText ? text.left(longestText) : text);
        entry.text.prepare(QTransform(), m_font);
        entry.width = qCeil(entry.text.size().width());
        return entry;
    });
}

TextCache::Entry TextCache::fitting(const QString &text, int width, const QString &kept)
{
    Entry entry = whole(text);
    if (entry.width <= width)
        return entry;
    const QString shorter = m_elided.value(qMakePair(text, width), [&] {
        const qreal room = width - m_metrics.horizontalAdvance(kept);
        if (kept.isEmpty() || room < 2 * m_metrics.height())
            return m_metrics.elidedText(text.left(longestText), Qt::ElideRight, width);
        return m_metrics.elidedText(text.chopped(kept.size()), Qt::ElideRight, room) + kept;
    });
    entry = whole(shorter);
    entry.elided = true;
    return entry;
}

void TextCache::draw(QPainter &painter, int left, int top, const Entry &entry)
{
    if (entry.figures.isEmpty())
        painter.drawStaticText(left, top, entry.text);
    else
        m_figures.draw(painter, QPointF(left, top), entry.figures);
}

} // namespace Qtitan
