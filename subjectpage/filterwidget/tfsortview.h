#pragma once

#include <QDialog>
#include <QList>
#include <QPair>
#include <QStringList>

class QHBoxLayout;
class QTableView;
class TFCustomSortFilterProxyModel;
class TFSecurityTableModel;

/// The dialog in which the user lists the columns to sort by, each with a direction.
class TFSortView : public QDialog
{
    Q_OBJECT

public:
    /// A column, by its position in the list of captions, and whether it sorts downwards.
    using Order = QList<QPair<int, bool>>;

    explicit TFSortView(const QStringList &fields, QWidget *parent = nullptr);
    ~TFSortView() override;

    /// What the rows say, in the order of their keys; -1 for a caption that is none of the fields. Empty when
    /// a column comes twice.
    Order order() const;

public slots:
    void on_pushButton_2_clicked(); ///< add a row
    void on_pushButton_3_clicked(); ///< remove the selected row
    void on_pushButton_6_clicked(); ///< confirm
    void on_pushButton_7_clicked(); ///< close, as the cross does
    void on_moveUp_clicked();
    void on_moveDown_clicked();
    /// Moves the selection by one row; the ends are joined.
    void updateCurSeleted(bool up);
    /// Selects the last row.
    void updateCurSeleted();
    /// Opens the lists of all cells.
    void updateEditorStatus();
    void on_closeBtn_clicked();

private:
    void buildForm();
    void buildTable();
    void addButton(QHBoxLayout *line, const QString &name, const QString &text, void (TFSortView::*slot)());
    int selectedRow() const;
    void warnOfRepetition();

    QStringList m_fields;
    QStringList m_orders; ///< the word for upwards first
    int m_nextKey = 0;    ///< never used again after a removal
    TFSecurityTableModel *m_model;
    TFCustomSortFilterProxyModel *m_proxy;
    QTableView *m_table;
};
