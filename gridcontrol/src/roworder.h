#pragma once

#include <QSet>
#include <QString>
#include <QVector>

#include <vector>

namespace Qtitan {

/// One group of rows.
struct RowGroup
{
    QString key;
    QString path; ///< keys from the first level down to this group; names the group when the rows change
    int level = 0;
    int begin = 0; ///< range in the order of the rows
    int end = 0;
    bool open = false;

    int count() const { return end - begin; }
};

/// The key of each row at one level of grouping.
struct GroupLevel
{
    QVector<QString> keys; ///< in the order in which the groups stand
    std::vector<int> keyOfRow;
};

/// Which line of the screen shows which row of the model: the rows as sorted, group rows in between, the rows
/// of closed groups left out. Without sort, filter and groups it holds nothing per row.
class RowOrder
{
public:
    /// All of \a rows as delivered.
    void setPlain(int rows);

    /// The given rows in the given order, of a model of \a rows, grouped by \a levels, the outermost first.
    void setOrdered(int rows, std::vector<int> ordered, const std::vector<GroupLevel> &levels);

    bool isPlain() const { return m_plain; }
    int lineCount() const { return m_plain ? m_rows : int(m_lines.size()); }
    /// Rows of the model, shown or not.
    int rowCount() const { return m_rows; }
    int groupCount() const { return int(m_groups.size()); }

    /// Row of the model on a line; -1 for a group row.
    int rowAt(int line) const;
    /// Line of a row; -1 if it is in a closed group, or filtered away.
    int lineOf(int row) const;
    /// Group of a group row; null on other lines.
    const RowGroup *groupAt(int line) const;
    /// Line of the group of that path; -1 if it is below a closed one, or gone.
    int lineOfGroup(const QString &path) const;
    /// Line of the innermost group row over \a line; -1 for none.
    int groupLineOver(int line) const;

    void setOpen(const QString &path, bool open);
    void setAllOpen(bool open);
    /// Opens every group that holds \a row.
    void reveal(int row);

private:
    void makeGroups(int level, int begin, int end, const QString &path,
                    const std::vector<GroupLevel> &levels);
    void makeLines();
    bool isOpen(const QString &path) const { return m_openByDefault != m_exceptions.contains(path); }

    std::vector<int> m_ordered; // rows of the model; empty without groups, then the lines hold them
    std::vector<int> m_lines;   // row of the model, or -1 - group
    std::vector<int> m_lineOfRow;
    std::vector<RowGroup> m_groups;
    QSet<QString> m_exceptions;
    int m_rows = 0;
    bool m_plain = true;
    bool m_openByDefault = false;
};

} // namespace Qtitan
