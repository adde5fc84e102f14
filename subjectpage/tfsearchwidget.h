#pragma once

#include <QWidget>

class QAction;
class QHBoxLayout;
class QLineEdit;

/// A search line with a clear button and an action that searches.
class TFSearchWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TFSearchWidget(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);

signals:
    /// The end of editing, the action or the clear button asks for a search of \a text. Leaving the line by
    /// the keyboard or the mouse with the text of the last search is not an edit and asks for nothing.
    void signalSearch(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void search();
    void finishEditing();
    void loadIcon();

    QHBoxLayout *m_layout;
    QLineEdit *m_line;
    QAction *m_action;
    QString m_searched;
    bool m_isLeaving = false;
};
