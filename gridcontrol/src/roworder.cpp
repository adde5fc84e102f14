#include "roworder.h"

#include <algorithm>

namespace Qtitan {

namespace {
constexpr QChar pathSeparator(0x1f);

// Stable, so that rows keep their order within a key.
void sortByKey(std::vector<int> &rows, const GroupLevel &level)
{
    std::vector<int> next(std::size_t(level.keys.size()) + 1, 0);
    for (int row : rows)
        ++next[std::size_t(level.keyOfRow[std::size_t(row)]) + 1];
    for (std::size_t i = 1; i < next.size(); ++i)
        next[i] += next[i - 1];
    std::vector<int> sorted(rows.size());
    for (int row : rows)
        sorted[std::size_t(next[std::size_t(level.keyOfRow[std::size_t(row)])]++)] = row;
    rows.swap(sorted);
}
} // namespace

void RowOrder::setPlain(int rows)
{
    m_plain = true;
    m_rows = rows;
    m_ordered = {};
    m_lines = {};
    m_lineOfRow = {};
    m_groups = {};
}

void RowOrder::setOrdered(int rows, std::vector<int> ordered, const std::vector<GroupLevel> &levels)
{
    m_plain = false;
    m_rows = rows;
    m_groups.clear();
    for (auto level = levels.rbegin(); level != levels.rend(); ++level)
        sortByKey(ordered, *level);
    m_ordered = std::move(ordered);
    if (!levels.empty())
        makeGroups(0, 0, int(m_ordered.size()), QString(), levels);
    makeLines();
}

void RowOrder::makeGroups(int level, int begin, int end, const QString &path,
                          const std::vector<GroupLevel> &levels)
{
    if (level == int(levels.size()))
        return;
    const GroupLevel &keys = levels[std::size_t(level)];
    const auto keyAt = [&](int place) { return keys.keyOfRow[std::size_t(m_ordered[std::size_t(place)])]; };
    while (begin < end) {
        const int key = keyAt(begin);
        int next = begin;
        while (next < end && keyAt(next) == key)
            ++next;
        const QString ownPath = path + pathSeparator + keys.keys.at(key);
        m_groups.push_back({keys.keys.at(key), ownPath, level, begin, next, isOpen(ownPath)});
        makeGroups(level + 1, begin, next, ownPath, levels);
        begin = next;
    }
}

void RowOrder::makeLines()
{
    m_lineOfRow.assign(std::size_t(m_rows), -1);
    if (m_groups.empty()) {
        m_lines = std::move(m_ordered);
        m_ordered = {};
    } else {
        m_lines.clear();
        for (std::size_t i = 0; i < m_groups.size();) {
            const RowGroup &group = m_groups[i];
            m_lines.push_back(-1 - int(i));
            ++i;
            if (!group.open) {
                while (i < m_groups.size() && m_groups[i].begin < group.end)
                    ++i;
            } else if (i == m_groups.size() || m_groups[i].level <= group.level) {
                m_lines.insert(m_lines.end(), m_ordered.begin() + group.begin, m_ordered.begin() + group.end);
            }
        }
    }
    for (std::size_t line = 0; line < m_lines.size(); ++line)
        if (m_lines[line] >= 0)
            m_lineOfRow[std::size_t(m_lines[line])] = int(line);
}

int RowOrder::rowAt(int line) const
{
    if (line < 0 || line >= lineCount())
        return -1;
    return m_plain ? line : std::max(m_lines[std::size_t(line)], -1);
}

int RowOrder::lineOf(int row) const
{
    if (row < 0 || row >= m_rows)
        return -1;
    return m_plain ? row : m_lineOfRow[std::size_t(row)];
}

const RowGroup *RowOrder::groupAt(int line) const
{
    if (m_groups.empty() || line < 0 || line >= lineCount() || m_lines[std::size_t(line)] >= 0)
        return nullptr;
    return &m_groups[std::size_t(-1 - m_lines[std::size_t(line)])];
}

int RowOrder::lineOfGroup(const QString &path) const
{
    for (std::size_t line = 0; line < m_lines.size(); ++line)
        if (m_lines[line] < 0 && m_groups[std::size_t(-1 - m_lines[line])].path == path)
            return int(line);
    return -1;
}

int RowOrder::groupLineOver(int line) const
{
    if (m_groups.empty())
        return -1;
    const RowGroup *own = groupAt(line);
    for (int above = line - 1; above >= 0; --above) {
        const RowGroup *group = groupAt(above);
        if (group && (!own || group->level < own->level))
            return above;
    }
    return -1;
}

void RowOrder::setOpen(const QString &path, bool open)
{
    if (open == m_openByDefault)
        m_exceptions.remove(path);
    else
        m_exceptions.insert(path);
    for (RowGroup &group : m_groups)
        if (group.path == path)
            group.open = open;
    makeLines();
}

void RowOrder::setAllOpen(bool open)
{
    m_openByDefault = open;
    m_exceptions.clear();
    for (RowGroup &group : m_groups)
        group.open = open;
    if (!m_plain && !m_groups.empty())
        makeLines();
}

void RowOrder::reveal(int row)
{
    if (m_groups.empty() || row < 0 || row >= m_rows || lineOf(row) >= 0)
        return;
    const auto found = std::find(m_ordered.begin(), m_ordered.end(), row);
    if (found == m_ordered.end())
        return;
    const int place = int(found - m_ordered.begin());
    for (const RowGroup &group : m_groups)
        if (group.begin <= place && place < group.end && !group.open)
            setOpen(group.path, true);
}

} // namespace Qtitan
