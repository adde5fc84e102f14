#include "textcache.h"

#include <QtMath>

namespace Qtitan {

namespace {
constexpr int generationSize = 4096;
// No screen shows more of one line; laying out megabytes would stop the program.
constexpr int longestText = 512;
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

template <typename Key, typename Value> void TextCache::Generations<Key, Value>::clear()
{
    m_young.clear();
    m_old.clear();
}

TextCache::TextCache(const QFont &font)
    : m_font(font)
    , m_metrics(font)
    , m_height(qCeil(m_metrics.height()))
{}

void TextCache::setFont(const QFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    m_metrics = QFontMetricsF(font);
    m_height = qCeil(m_metrics.height());
    m_whole.clear();
    m_elided.clear();
}

TextCache::Entry TextCache::whole(const QString &text)
{
    return m_whole.value(text, [&] {
        Entry entry;
        entry.text.setTextFormat(Qt::PlainText);
        entry.text.setText(text.size() > longestText ? text.left(longestText) : text);
        entry.text.prepare(QTransform(), m_font);
        entry.width = qCeil(entry.text.size().width());
        return entry;
    });
}

TextCache::Entry TextCache::fitting(const QString &text, int width)
{
    Entry entry = whole(text);
    if (entry.width <= width)
        return entry;
    const QString shorter = m_elided.value(qMakePair(text, width), [&] {
        return m_metrics.elidedText(text.left(longestText), Qt::ElideRight, width);
    });
    entry = whole(shorter);
    entry.elided = true;
    return entry;
}

} // namespace Qtitan
