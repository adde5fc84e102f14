#pragma once

#include "records/headerfieldinfo.h"
#include "records/tfrowstore.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QHash>
#include <QStringList>

#include <memory>

class TFCellStyle;
class TFTreeStruct;

/// The rows of one page under the columns of a band tree: what each cell shows, how it sorts and where it
/// links.
///
/// Cell i of a row belongs to leaf i of the tree. The tree is the caller's and outlives its use here; the
/// model keeps copies of the leaves' settings, so that it can be painted while the tree is being rebuilt.
class TFSubjectTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Roles beside those of the toolkit that data() answers: display, tool tip, alignment, text colour.
    enum Role {
        FieldNameRole = Qt::UserRole + 10,
        RowDataRole,    ///< the whole RowData of the row
        LinkRole,       ///< template of the link behind the cell
        RawValueRole,   ///< the value as delivered
        SecuIdRole,     ///< security of the row, a double
        HoverColorRole, ///< of the skin; answered for any index
        SortValueRole = Qt::UserRole + 18
    };

    explicit TFSubjectTableModel(QObject *parent = nullptr);
    ~TFSubjectTableModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Takes captions and settings of the columns from \a tree; null leaves none. To be called again after a
    /// change of the captions.
    void setHeader(TFTreeStruct *tree);
    TFTreeStruct *header() const { return m_header; }

    /// Replaces the rows without a reset: all cells are reported as changed. The chosen unit stays.
    void setRows(const TFRowStore &rows);
    void setRows(const QList<RowData> &rows);
    void rows(QList<RowData> &out) const;
    const TFRowStore &rowStore() const { return m_rows; }
    void clear();

    /// Kept for the view; the toolkit's default.
    QFont font() const { return m_font; }

    /// Shows the unit columns of \a unitCategory divided by 10 to the \a exponent.
    void setUnit(int exponent, int unitCategory);

    /// What cells sort by: a number for figures and dates, the first ten characters for texts.
    static QVariant sortValue(const TFTableModelData::tagCellValue &cell);

public slots:
    /// Appends the display values of all rows, whatever is selected, one list a row.
    void getAllSelectedData(QList<QList<QVariant>> *const list);

private:
    const HeaderFieldInfo &leafRecord(int column) const;
    QVariant displayValue(int row, int column) const;
    QVariant decimalText(const QVariant &value, const HeaderFieldInfo &info) const;
    double scaled(double number, const HeaderFieldInfo &info) const;
    QVariant textColour(int row, int column) const;
    void makeStyles(const QVector<QString> &fieldNames);
    void reportAllChanged(const QVector<int> &roles);

    TFTreeStruct *m_header = nullptr;
    QStringList m_captions;
    TFRowStore m_rows;
    QFont m_font;
    QHash<int, HeaderFieldInfo> m_leafRecords;
    int m_unitFactor = 0;
    int m_unitCategory = 0;
    QHash<int, std::shared_ptr<TFCellStyle>> m_styles; ///< of the columns that have one
};
