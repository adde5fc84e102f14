#include "tfsubjecttablemodel.h"

#include "records/tfcategories.h"
#include "records/tfdecimalformat.h"
#include "tfcellstyle.h"
#include "tfcore/tfcore.h"
#include "tfheaderdatastruct.h"
#include "tfqsscommon.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>
#include <limits>

using Cell = TFTableModelData::tagCellValue;

namespace {
constexpr int kLeft = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int kRight = Qt::AlignRight | Qt::AlignVCenter;
constexpr int kCentre = Qt::AlignHCenter | Qt::AlignVCenter;
constexpr int kSortedCharacters = 10;

bool isSame(const QString &text, const char *word)
{
    return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

bool isMissing(const QVariant &value)
{
    return !value.isValid() || value.userType() == QMetaType::Nullptr;
}

int alignmentOfType(const QString &valueType)
{
    static const QSet<QString> numbers = {QStringLiteral("Decimal"), QStringLiteral("Double"),
                                          QStringLiteral("Int16"),   QStringLiteral("Int32"),
                                          QStringLiteral("Int64"),   QStringLiteral("UInt16"),
                                          QStringLiteral("UInt32"),  QStringLiteral("UInt64")};
    if (numbers.contains(valueType))
        return kRight;
    return valueType == QLatin1String("String") ? kLeft : kCentre;
}

int alignmentOf(const Cell &cell)
{
    switch (cell.textAlignment) {
    case 0:
        return alignmentOfType(cell.valueType);
    case 1:
        return kLeft;
    case 3:
        return kRight;
    default:
        return kCentre;
    }
}

QString dateText(const QVariant &value, const QString &configured)
{
    const QString format = configured.isEmpty() ? QStringLiteral("yyyy-MM-dd") : configured;
    return QDateTime::fromMSecsSinceEpoch(value.toLongLong()).toString(format);
}

QVariant sortValueOf(const Cell &cell, const QVariant &value)
{
    if (isSame(cell.valueType, "decimal") || isSame(cell.valueType, "datetime")) {
        if (cell.fieldName == QLatin1String("BVPS"))
            qCDebug(lcTable) << "11===>cellVal:" << value;
        return value.toDouble();
    }
    if (cell.valueType.contains(QLatin1String("string"), Qt::CaseInsensitive))
        return value.toString().left(kSortedCharacters);
    return value;
}

QVariant toolTip(const QString &text)
{
    return text.isEmpty() ? QVariant() : QStringLiteral("<p style='color:#0060E3'>%1</p>").arg(text);
}
} // namespace

TFSubjectTableModel::TFSubjectTableModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    TFStyleEngine::publishSkin(TFCore::instance()->getCurrentSkinId());
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &TFStyleEngine::publishSkin);
}

TFSubjectTableModel::~TFSubjectTableModel() = default;

int TFSubjectTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.rowCount();
}

int TFSubjectTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_header ? 0 : m_captions.size();
}

QVariant TFSubjectTableModel::data(const QModelIndex &index, int role) const
{
    if (role == HoverColorRole)
        return TFQssCommon::instance()->highlightColor();
    const int row = index.row();
    const int column = index.column();
    if (!index.isValid() || row >= m_rows.rowCount() || column >= m_rows.cellCount(row))
        return {};

    switch (role) {
    case Qt::DisplayRole:
        return displayValue(row, column);
    case Qt::ToolTipRole:
        return toolTip(displayValue(row, column).toString());
    case Qt::TextAlignmentRole:
        return alignmentOf(m_rows.prototype(row, column));
    case Qt::ForegroundRole:
        return textColour(row, column);
    case FieldNameRole:
        return m_rows.prototype(row, column).fieldName;
    case RowDataRole:
        return QVariant::fromValue(m_rows.row(row));
    case LinkRole:
        return m_rows.prototype(row, column).url;
    case RawValueRole:
        return m_rows.value(row, column);
    case SecuIdRole:
        return m_rows.secuId(row, column);
    case SortValueRole:
        return sortValueOf(m_rows.prototype(row, column), m_rows.value(row, column));
    default:
        return {};
    }
}

const HeaderFieldInfo &TFSubjectTableModel::leafRecord(int column) const
{
    static const HeaderFieldInfo none;
    const auto record = m_leafRecords.constFind(column);
    return record == m_leafRecords.constEnd() ? none : *record;
}

QVariant TFSubjectTableModel::displayValue(int row, int column) const
{
    const QVariant &value = m_rows.value(row, column);
    if (isMissing(value))
        return {};
    const HeaderFieldInfo &info = leafRecord(column);
    const QString &valueType = m_rows.prototype(row, column).valueType;
    if (isSame(valueType, "decimal"))
        return decimalText(value, info);
    if (valueType.contains(QLatin1String("string"), Qt::CaseInsensitive))
        return value.toString().trimmed();
    if (isSame(valueType, "datetime"))
        return dateText(value, info.formatString);
    return value;
}

QVariant TFSubjectTableModel::decimalText(const QVariant &value, const HeaderFieldInfo &info) const
{
    bool isNumber = false;
    double number = value.toDouble(&isNumber);
    if (!isNumber)
        return value;
    if (isSame(info.columnType, "BandedGridColumnWithUnit"))
        number = scaled(number, info);
    return QLocale().toString(number, 'f', TFDecimalFormat::precision(info.formatString));
}

double TFSubjectTableModel::scaled(double number, const HeaderFieldInfo &info) const
{
    if (m_unitFactor == 0 && m_unitCategory == 0 && info.showUnitFactor != 0)
        return number * info.prevUnitFactor / info.showUnitFactor;
    if (info.unitCategory == m_unitCategory && m_unitFactor != 0)
        return number * info.prevUnitFactor / m_unitFactor;
    return number;
}

QVariant TFSubjectTableModel::textColour(int row, int column) const
{
    const auto style = m_styles.constFind(column);
    return style == m_styles.constEnd() ? QVariant() : (*style)->colour(m_rows, row);
}

QVariant TFSubjectTableModel::sortValue(const Cell &cell)
{
    return sortValueOf(cell, cell.value);
}

QVariant TFSubjectTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return kCentre;
    if (!m_header)
        return 0;
    if (section < 0 || section >= m_captions.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_captions.at(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags TFSubjectTableModel::flags(const QModelIndex &) const
{
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

void TFSubjectTableModel::setHeader(TFTreeStruct *tree)
{
    // Told for the captions that go and again for those that come. Views read the columns when they are told, so
    // they must not see the state in between.
    const int columnsBefore = m_captions.size();
    m_header = tree;
    m_captions = tree ? tree->leafCaptions() : QStringList();
    m_leafRecords.clear();
    QVector<QString> fieldNames;
    if (tree) {
        const QList<TFTreeStruct *> leaves = tree->leaves();
        for (const TFTreeStruct *leaf : leaves) {
            m_leafRecords.insert(fieldNames.size(), leaf->info());
            fieldNames.append(leaf->info().fieldName);
        }
    }
    makeStyles(fieldNames);
    const int columns = m_captions.isEmpty() ? columnsBefore : m_captions.size();
    for (int i = 0; columns > 0 && i < (tree ? 2 : 1); ++i)
        emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
}

void TFSubjectTableModel::makeStyles(const QVector<QString> &fieldNames)
{
    m_styles.clear();
    for (auto record = m_leafRecords.constBegin(); record != m_leafRecords.constEnd(); ++record) {
        if (!record->cellStyleExpression.isEmpty())
            m_styles.insert(record.key(),
                            std::make_shared<TFCellStyle>(record->cellStyleExpression, fieldNames));
    }
}

void TFSubjectTableModel::setRows(const TFRowStore &rows)
{
    m_rows = rows;
    reportAllChanged({});
}

void TFSubjectTableModel::setRows(const QList<RowData> &rows)
{
    setRows(TFRowStore::fromRows(rows));
}

void TFSubjectTableModel::rows(QList<RowData> &out) const
{
    out = m_rows.rows();
}

void TFSubjectTableModel::clear()
{
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

void TFSubjectTableModel::setUnit(int exponent, int unitCategory)
{
    m_unitFactor = int(qMin(std::pow(10.0, exponent), double(std::numeric_limits<int>::max())));
    m_unitCategory = unitCategory;
    reportAllChanged({Qt::DisplayRole});
}

void TFSubjectTableModel::reportAllChanged(const QVector<int> &roles)
{
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), roles);
}

void TFSubjectTableModel::getAllSelectedData(QList<QList<QVariant>> *const list)
{
    for (int row = 0; row < rowCount(); ++row) {
        const int cells = qMin(columnCount(), m_rows.cellCount(row));
        QList<QVariant> values;
        for (int column = 0; column < cells; ++column)
            values.append(displayValue(row, column));
        list->append(values);
    }
}
