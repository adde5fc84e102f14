#include "rowsort.h"

#include "celltext.h"

#include <QCollator>
#include <QDateTime>
#include <QHash>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Qtitan {

namespace {
enum Kind : char { Number, Text, Missing };

struct Key
{
    double value = 0; // of a text first its number among the distinct texts, then its rank
    int row = 0;
    Kind kind = Missing;
};

class Keys
{
public:
    void add(int row, const QVariant &value);
    void rankTexts(const SortOrder &order);
    std::vector<Key> &all() { return m_keys; }

private:
    std::vector<Key> m_keys;
    QHash<QString, int> m_numberOfText;
};

bool readNumber(const QVariant &value, double &number)
{
    switch (value.userType()) {
    case QMetaType::QDate:
        number = double(value.toDate().toJulianDay());
        return value.toDate().isValid();
    case QMetaType::QDateTime:
        number = double(value.toDateTime().toMSecsSinceEpoch());
        return value.toDateTime().isValid();
    case QMetaType::QTime:
        number = value.toTime().msecsSinceStartOfDay();
        return value.toTime().isValid();
    case QMetaType::Bool:
        number = value.toBool();
        return true;
    default:
        number = value.toDouble();
        return isNumber(value) && !std::isnan(number);
    }
}

void Keys::add(int row, const QVariant &value)
{
    Key key;
    key.row = row;
    if (readNumber(value, key.value)) {
        key.kind = Number;
    } else if (!isNumber(value)) {
        const QString text = value.toString();
        if (!text.isEmpty()) {
            key.kind = Text;
            key.value = *m_numberOfText.insert(text, m_numberOfText.value(text, m_numberOfText.size()));
        }
    }
    m_keys.push_back(key);
}

template <typename SortKey, typename Less>
std::vector<double> ranks(const std::vector<SortKey> &keys, Less less)
{
    std::vector<int> sorted(keys.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    std::sort(sorted.begin(), sorted.end(), [&](int a, int b) { return less(keys[a], keys[b]); });
    std::vector<double> rank(keys.size());
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        const bool tie = i > 0 && !less(keys[sorted[i - 1]], keys[sorted[i]]);
        rank[sorted[i]] = tie ? rank[sorted[i - 1]] : double(i);
    }
    return rank;
}

void Keys::rankTexts(const SortOrder &order)
{
    std::vector<QString> texts(std::size_t(m_numberOfText.size()));
    for (auto text = m_numberOfText.constBegin(); text != m_numberOfText.constEnd(); ++text)
        texts[std::size_t(*text)] = text.key();

    std::vector<double> rank;
    if (order.localeAware) {
        QCollator collator(order.locale);
        collator.setNumericMode(true);
        std::vector<QCollatorSortKey> keys;
        keys.reserve(texts.size());
        for (const QString &text : texts)
            keys.push_back(collator.sortKey(text));
        rank = ranks(keys,
                     [](const QCollatorSortKey &a, const QCollatorSortKey &b) { return a.compare(b) < 0; });
    } else {
        rank = ranks(texts, std::less<QString>());
    }
    for (Key &key : m_keys)
        if (key.kind == Text)
            key.value = rank[std::size_t(key.value)];
}
} // namespace

void sortRows(std::vector<int> &rows, const QAbstractItemModel &model, const QModelIndex &root,
              const SortOrder &order)
{
    if (!order.isActive())
        return;
    Keys keys;
    keys.all().reserve(rows.size());
    for (int row : rows)
        keys.add(row, model.index(row, order.column, root).data(order.role));
    keys.rankTexts(order);

    const auto less = [down = order.descending](const Key &a, const Key &b) {
        if (a.kind == Missing || b.kind == Missing)
            return a.kind != Missing && b.kind == Missing;
        if (a.kind != b.kind)
            return down ? a.kind > b.kind : a.kind < b.kind;
        return down ? a.value > b.value : a.value < b.value;
    };
    std::stable_sort(keys.all().begin(), keys.all().end(), less);
    std::transform(keys.all().begin(), keys.all().end(), rows.begin(),
                   [](const Key &key) { return key.row; });
}

} // namespace Qtitan
