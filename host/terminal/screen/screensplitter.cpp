#include "screensplitter.h"

#include <numeric>

namespace {
constexpr int HandleWidth = 6;
}

ScreenSplitter::ScreenSplitter(Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
{
    setObjectName("ScreenSplitter");
    setChildrenCollapsible(false);
    setHandleWidth(HandleWidth);
    connect(this, &QSplitter::splitterMoved, this, &ScreenSplitter::readSizes);
}

void ScreenSplitter::setShares(const QVector<double> &shares)
{
    m_shares = shares;
    apply();
}

void ScreenSplitter::insertAfter(QWidget *present, QWidget *added)
{
    const int index = indexOf(present);
    insertWidget(index + 1, added);
    m_shares[index] /= 2;
    m_shares.insert(index + 1, m_shares.at(index));
    apply();
}

void ScreenSplitter::take(QWidget *child)
{
    const int index = indexOf(child);
    if (index < 0)
        return;
    m_shares.remove(index);
    child->hide();
    child->setParent(nullptr);
    const double sum = std::accumulate(m_shares.begin(), m_shares.end(), 0.0);
    for (double &share : m_shares)
        share /= sum;
    apply();
}

void ScreenSplitter::resizeEvent(QResizeEvent *event)
{
    QSplitter::resizeEvent(event);
    apply();
}

void ScreenSplitter::apply()
{
    if (m_shares.size() != count())
        return;
    const int room = (orientation() == Qt::Horizontal ? width() : height()) - handleWidth() * (count() - 1);
    QList<int> sizes;
    double edge = 0;
    int taken = 0;
    for (double share : qAsConst(m_shares)) {
        edge += share * room;
        sizes.append(qMax(1, qRound(edge) - taken));
        taken = qRound(edge);
    }
    setSizes(sizes);
}

void ScreenSplitter::readSizes()
{
    const QList<int> pixels = sizes();
    const double sum = std::accumulate(pixels.begin(), pixels.end(), 0);
    if (sum <= 0)
        return;
    for (int i = 0; i < m_shares.size(); ++i)
        m_shares[i] = pixels.at(i) / sum;
    emit sharesMoved();
}
