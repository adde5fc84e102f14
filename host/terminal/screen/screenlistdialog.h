#pragma once

#include "screenstore.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The saved screens: open, rename, delete. What is chosen is told by signals; the list is asked for again
/// after each. Object names: "ScreenListDialog", "ScreenList", "OpenScreen", "RenameScreen", "DeleteScreen".
class ScreenListDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ScreenListDialog(QWidget *parent = nullptr);

    void setEntries(const QList<ScreenStore::Entry> &entries);

signals:
    void openRequested(const QString &path);
    void renameRequested(const QString &path, const QString &name);
    void deleteRequested(const QString &path);

private:
    QPushButton *makeButton(const char *name, const QString &text);
    void layOut();
    QString currentPath() const;
    void openCurrent();
    void deleteCurrent();
    void takeName(QTreeWidgetItem *item);
    void check();

    QTreeWidget *m_list;
    QPushButton *m_open;
    QPushButton *m_rename;
    QPushButton *m_delete;
};
