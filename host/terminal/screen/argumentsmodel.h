#pragma once

#include <QAbstractTableModel>
#include <QVariantMap>
#include <QVector>

/// Global arguments as a table to edit. What the user types stands even if it is wrong; fault() tells.
///
/// A value is a text. A list, as a file may hold it, is shown and edited as JSON; it becomes a text when what
/// is typed is no list any more.
class ArgumentsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Value, ColumnCount };

    explicit ArgumentsModel(const QVariantMap &args, QObject *parent = nullptr);

    /// The arguments; to be asked for only while there is no fault.
    QVariantMap args() const;
    /// What is wrong with the first faulty row, or an empty text. Names are unique and not empty.
    QString fault() const;
    QString nameAt(int row) const;
    int rowOf(const QString &name) const;
    /// Appends an argument with a name of its own and returns its row.
    int add();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

private:
    struct Row
    {
        QString name;
        QVariant value;
    };

    QVector<Row> m_rows;
};
