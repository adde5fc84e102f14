#pragma once

#include <QWidget>

class TFSubjectTableModel;
class TFSujectTableView;
class TFTreeStruct;

namespace TFSubject {
class TFJsonParser;
}

/// Holds the grid of a table widget; each reply brings a new grid, with a model of its own that goes with it.
class TFTableGridHolder : public QWidget
{
    Q_OBJECT

public:
    explicit TFTableGridHolder(QWidget *parent = nullptr);
    ~TFTableGridHolder() override;

    /// Puts an empty grid, whose model shows the columns of \a header, in the place of the one before, which
    /// is deleted later. The keyboard stays with the grid if it was there.
    TFSujectTableView *makeGrid(TFTreeStruct *header);
    /// Shows the parser's rows in the grid of the last makeGrid(): columns, frozen columns, groups.
    void showRows(const TFSubject::TFJsonParser &parser);
    /// Shows the captions and figures of unit \a unitCode of \a unitCategory.
    void setUnit(TFTreeStruct *header, int unitCode, int unitCategory);

    TFSubjectTableModel *model() const { return m_model; }

    /// Text in the middle of the table while it has no rows; an empty one leaves a grid its own.
    void setMessage(const QString &message);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void replaceWidget();
    void freezeColumns(int count);

    TFSujectTableView *m_grid = nullptr;
    TFSubjectTableModel *m_model = nullptr;
    QString m_message;
    bool m_hadFocus = false; ///< the keyboard was in the grid that the present one replaced
};
