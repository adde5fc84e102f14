#pragma once

#include "messagecollector.h"
#include "tfcore/tfrequestlog.h"

#include <QAbstractTableModel>

#include <deque>

/// Requests to the data service, the newest last. Keeps the last thousand.
class RequestModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, PathColumn, SubjectColumn, StatusColumn, BytesColumn, MsColumn, ColumnCount };

    explicit RequestModel(QObject *parent = nullptr);

    void add(const TFRequestRecord &record);
    void clear();
    const TFRequestRecord &record(int row) const { return m_records[size_t(row)]; }
    int failures() const { return m_failures; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant text(const TFRequestRecord &record, int column) const;

    std::deque<TFRequestRecord> m_records;
    int m_failures = 0;
};

/// Warnings of the program, the newest last. Keeps the last thousand.
class MessageModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, CategoryColumn, TextColumn, PlaceColumn, ColumnCount };

    explicit MessageModel(QObject *parent = nullptr);

    void add(const LogMessage &message);
    void clear();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::deque<LogMessage> m_messages;
};
