#include "quotemodel.h"

#include <QColor>
#include <QLocale>

namespace {
const char *const boards[] = {"上海主板", "深圳主板", "创业板", "科创板"};
const char *const words[] = {"平安", "长江", "华夏", "东方", "中原", "北辰", "南山", "光明", "兴业", "海通"};
const char *const trades[] = {"银行", "科技", "医药", "能源", "证券", "电子", "食品", "建材"};

template <std::size_t N> QString pick(const char *const (&list)[N], int number)
{
    return QString::fromUtf8(list[static_cast<std::size_t>(number) % N]);
}
} // namespace

QuoteModel::QuoteModel(int rows, int columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_rows(rows)
    , m_columns(columns)
{}

int QuoteModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int QuoteModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

void QuoteModel::setDark(bool dark)
{
    m_dark = dark;
    if (m_rows > 0)
        emit dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1), {Qt::ForegroundRole});
}

double QuoteModel::figure(int row, int column) const
{
    // A scrambled counter: the same cell always has the same figure.
    quint32 seed = static_cast<quint32>(row) * 2654435761U + static_cast<quint32>(column) * 40503U;
    seed ^= seed >> 15;
    seed *= 2246822519U;
    seed ^= seed >> 13;
    const double share = seed / 4294967296.0;
    return column % 3 == 0 ? (share - 0.5) * 20 : share * 250000;
}

QString QuoteModel::text(int row, int column) const
{
    switch (column) {
    case Code:
        return QStringLiteral("%1").arg(row % 999999 + 1, 6, 10, QLatin1Char('0'));
    case Name:
        return pick(words, row * 7 + row / 10) + pick(trades, row * 3 + row / 8);
    case Board:
        return pick(boards, row / 3 + row % 2);
    case Note:
        return QStringLiteral("%1主营业务稳定, 现金流充裕").arg(pick(trades, row));
    default:
        return QLocale(QLocale::English).toString(figure(row, column), 'f', 2);
    }
}

QVariant QuoteModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const bool isFigure = index.column() >= FirstFigure;
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return int((isFigure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (isFigure && index.column() % 3 == 0)
            return figure(index.row(), index.column()) < 0 ? QColor(m_dark ? 0x2FC27E : 0x0B8A4B)
                                                           : QColor(m_dark ? 0xFF5A6B : 0xD6293E);
        return QVariant();
    case valueRole:
        return isFigure ? QVariant(figure(index.row(), index.column())) : text(index.row(), index.column());
    default:
        return QVariant();
    }
}

QVariant QuoteModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return QVariant();
    static const QStringList first{QStringLiteral("代码"), QStringLiteral("名称"), QStringLiteral("板块"),
                                   QStringLiteral("简介")};
    static const QStringList figures{QStringLiteral("营业收入(万元)"), QStringLiteral("净利润(万元)"),
                                     QStringLiteral("同比(%)")};
    return section < FirstFigure ? first.value(section) : figures.at((section + 2) % 3);
}
