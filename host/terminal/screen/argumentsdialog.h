#pragma once

#include <QDialog>
#include <QVariantMap>

class ArgumentsModel;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTableView;
class QToolButton;

/// Edits the global arguments of a screen, and lets one be chosen. Object names: "ArgumentsDialog",
/// "ArgumentTable", "ArgumentHint", "AddArgument", "RemoveArgument", "ProposeValue", "ArgumentFault".
class ArgumentsDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a proposals are values that a menu offers for the current argument.
    ArgumentsDialog(const QVariantMap &args, const QStringList &proposals, QWidget *parent = nullptr);

    /// Has the user choose one argument, at first \a currentKey.
    void letChoose(const QString &currentKey);

    QVariantMap args() const;
    /// Name of the current argument, or an empty text where there is none.
    QString chosenKey() const;

private:
    void layOut();
    void connectParts();
    void fillProposals(const QStringList &proposals);
    void add();
    void removeCurrent();
    void setCurrentValue(const QString &value);
    void check();

    ArgumentsModel *m_model;
    QLabel *m_task;
    QTableView *m_table;
    QLabel *m_hint;
    QPushButton *m_add;
    QPushButton *m_remove;
    QToolButton *m_propose;
    QLabel *m_fault;
    QDialogButtonBox *m_buttons;
    bool m_isChoice = false;
};
