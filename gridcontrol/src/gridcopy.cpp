#include "gridcopy.h"

#include "celltext.h"
#include "gridarea.h"

#include <gridcontrol/gridview.h>

#include <QMimeData>

#include <algorithm>

namespace Qtitan {

namespace {
class Copier
{
public:
    Copier(const GridArea &area, bool withHeader);
    bool isEmpty() const { return m_lines.isEmpty() || m_slots.isEmpty(); }
    void run();

    QString text;
    QString html;

private:
    void collect();
    void writeHeader();
    void writeHeaderLevel(int level);
    void writeLine(int line);
    QString cellText(const QModelIndex &index, const GridColumn &column, bool &number) const;

    const GridArea &m_area;
    bool m_withHeader;
    QVector<QPair<int, int>> m_lines; // ranges
    QVector<int> m_slots;
};

QString plain(QString cell)
{
    return cell.replace(QLatin1Char('\t'), QLatin1Char(' '));
}

Copier::Copier(const GridArea &area, bool withHeader)
    : m_area(area)
    , m_withHeader(withHeader)
{
    collect();
}

void Copier::collect()
{
    const QItemSelection selection = m_area.selectionModel()->selection();
    QVector<bool> wanted(m_area.columns().count(), false);
    for (const QItemSelectionRange &range : selection) {
        m_lines.append({range.top(), range.bottom()});
        for (int slot = 0; slot < wanted.size(); ++slot) {
            const int column = m_area.columns().at(slot).column->index();
            wanted[slot] = wanted.at(slot) || (range.left() <= column && column <= range.right());
        }
    }
    for (int slot = 0; slot < wanted.size(); ++slot)
        if (wanted.at(slot))
            m_slots.append(slot);
    std::sort(m_lines.begin(), m_lines.end());
}

void Copier::run()
{
    html = QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>\n");
    if (m_withHeader)
        writeHeader();
    int next = 0;
    for (const QPair<int, int> &range : qAsConst(m_lines)) {
        for (int line = qMax(next, range.first); line <= range.second; ++line)
            if (!m_area.isGroupLine(line))
                writeLine(line);
        next = qMax(next, range.second + 1);
    }
    html += QStringLiteral("</table></body></html>\n");
}

void Copier::writeHeader()
{
    for (int level = 0; level < m_area.captions().depth(); ++level)
        writeHeaderLevel(level);
}

// A band stands once, over its first copied column; a column's caption on its own topmost level.
void Copier::writeHeaderLevel(int level)
{
    QStringList texts;
    html += QStringLiteral("<tr>");
    const HeaderCell *previous = nullptr;
    for (int slot : qAsConst(m_slots)) {
        const auto &cells = m_area.captions().cells();
        const auto cell = std::find_if(cells.begin(), cells.end(), [&](const HeaderCell &candidate) {
            return candidate.firstSlot <= slot && slot <= candidate.lastSlot && candidate.level <= level &&
                   level < candidate.level + candidate.levels;
        });
        const bool starts = &*cell != previous && cell->level == level;
        previous = &*cell;
        texts.append(starts ? plain(cell->item->caption()) : QString());
        if (!starts)
            continue;
        const int span = int(std::count_if(m_slots.begin(), m_slots.end(), [&](int other) {
            return cell->firstSlot <= other && other <= cell->lastSlot;
        }));
        html += QStringLiteral("<th colspan=\"%1\" rowspan=\"%2\">%3</th>")
                    .arg(QString::number(span), QString::number(cell->levels),
                         cell->item->caption().toHtmlEscaped());
    }
    html += QStringLiteral("</tr>\n");
    text += texts.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

// What the spreadsheet is to take as a number loses the group separators of the screen.
QString Copier::cellText(const QModelIndex &index, const GridColumn &column, bool &number) const
{
    const QVariant value = index.data();
    QString shown = displayText(value, m_area.locale());
    if (column.isLink())
        shown = linkText(shown).caption;
    number = isNumber(value) || isNumber(index.data(column.dataBinding()->sortRole()));
    if (!number)
        return shown;
    const QLocale locale = m_area.locale();
    bool ok = false;
    locale.toDouble(shown, &ok);
    number = ok;
    if (ok)
        shown.remove(locale.groupSeparator());
    return shown;
}

void Copier::writeLine(int line)
{
    QStringList texts;
    html += QStringLiteral("<tr>");
    for (int slot : qAsConst(m_slots)) {
        const GridColumn &column = *m_area.columns().at(slot).column;
        const QModelIndex index = m_area.rows().index(line, column.index());
        const bool whole = m_area.selectsRows() || m_area.selectionModel()->isSelected(index);
        bool number = false;
        const QString cell =
            whole ? cellText(m_area.rows().sourceIndex(line, column.index()), column, number) : QString();
        texts.append(plain(cell));
        // Codes such as 000001 stay texts.
        html += number ? QStringLiteral("<td align=\"right\">")
                       : QStringLiteral("<td style=\"mso-number-format:'\\@'\">");
        html += cell.toHtmlEscaped() + QStringLiteral("</td>");
    }
    html += QStringLiteral("</tr>\n");
    text += texts.join(QLatin1Char('\t')) + QLatin1Char('\n');
}
} // namespace

QMimeData *copiedSelection(const GridArea &area, bool withHeader)
{
    Copier copier(area, withHeader);
    if (copier.isEmpty())
        return nullptr;
    copier.run();
    auto *data = new QMimeData;
    data->setText(copier.text);
    data->setHtml(copier.html);
    return data;
}

} // namespace Qtitan
