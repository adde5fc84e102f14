#pragma once

#include <QTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

namespace Qtitan {

class GridArea;

/// A line under the table that finds a text in the shown columns and rows, closed groups left out.
///
/// A long search runs in slices, so that the program answers meanwhile; another key stroke or Escape ends it.
class GridFindBar : public QWidget
{
    Q_OBJECT

public:
    GridFindBar(GridArea *area, QWidget *parent);

    /// Shows the bar and takes the keyboard.
    void start();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void textChanged();
    void find(int step, bool fromHere);
    void searchSlice();
    bool lineMatches(int line, int fromSlot, int toSlot);
    void found(int line, int slot);
    void applyFilter();
    void close();

    GridArea *m_area;
    QLineEdit *m_edit;
    QLabel *m_state;
    QCheckBox *m_filter;
    QTimer m_slice;
    int m_step = 1;
    int m_line = 0;
    int m_slot = 0;
    qint64 m_left = 0;
};

} // namespace Qtitan
