#pragma once

#include <QAbstractTableModel>
#include <QStringList>

/// Invented quotes that are computed on demand, so that any number of rows costs nothing.
class QuoteModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Role of the value behind a text.
    static constexpr int valueRole = Qt::UserRole + 1;

    enum Column { Code, Name, Board, Note, FirstFigure };

    QuoteModel(int rows, int columns, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Colours of rise and fall for a dark ground.
    void setDark(bool dark);

private:
    double figure(int row, int column) const;
    QString text(int row, int column) const;

    int m_rows;
    int m_columns;
    bool m_dark = false;
};
