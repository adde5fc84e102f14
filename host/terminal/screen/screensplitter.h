#pragma once

#include <QSplitter>
#include <QVector>

/// A splitter that knows its children's sizes as shares of the room, so that they stand the same in any size
/// of window and before it has been shown. Object name "ScreenSplitter".
class ScreenSplitter : public QSplitter
{
    Q_OBJECT

public:
    explicit ScreenSplitter(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// One a child; the sum is 1.
    QVector<double> shares() const { return m_shares; }
    void setShares(const QVector<double> &shares);
    /// Puts \a added after \a present, which gives it half of its room.
    void insertAfter(QWidget *present, QWidget *added);
    /// Takes \a child out; the others grow alike. The child has no parent then.
    void take(QWidget *child);

signals:
    /// The user has moved a handle.
    void sharesMoved();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void apply();
    void readSizes();

    QVector<double> m_shares;
};
