#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QMap>
#include <QString>

/// One row of the sort dialog.
struct TFSortRecord
{
    QString key;     ///< running number as text
    int checked = 0; ///< not read by the dialog
    QString field;   ///< caption of the field to sort by
    QString order;   ///< word for the direction, as the catalogue gives it
};

/// Rows under keys, with a tick each. The field and the direction are edited in place.
class TFSecurityTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { FieldColumn, OrderColumn, ColumnCount };

    explicit TFSecurityTableModel(QObject *parent = nullptr);
    ~TFSecurityTableModel() override;

    /// Appends \a record; false, with nothing done, for a key that is there already.
    bool insertRecord(const TFSortRecord &record);
    /// False, with nothing done, for a row that is not there.
    bool removeRecord(int row);
    /// The records in the order of their keys, which are texts: "10" stands before "2".
    QList<TFSortRecord> recordsByKey() const { return m_records.values(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    /// The state that the rows share now: partial where they differ.
    void signalCheckStateChanged(Qt::CheckState state);
    /// One row was ticked or unticked.
    void signalChecked();

public slots:
    /// Sets the tick of every row.
    void slotCheckStateChanged(Qt::CheckState state);

private:
    bool setText(const QModelIndex &index, const QString &text);
    Qt::CheckState sharedState() const;

    QList<QString> m_keys; ///< in the order of the rows
    QMap<QString, Qt::CheckState> m_states;
    QMap<QString, TFSortRecord> m_records;
};
