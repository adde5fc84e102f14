#pragma once

#include <QDockWidget>

struct LogMessage;
class MessageModel;
class PluginManager;
class QAbstractItemModel;
class QPlainTextEdit;
class QTabWidget;
class QTableView;
class QTreeWidget;
class RequestModel;
struct TFRequestRecord;

/// "What happened": the requests to the data service, the warnings of the program, the plug-ins and their
/// states. The object name is "ActivityPanel", those of its parts "ActivityTabs", "RequestTable",
/// "RequestBody", "MessageTable" and "PluginTable".
class ActivityPanel : public QDockWidget
{
    Q_OBJECT

public:
    explicit ActivityPanel(QWidget *parent = nullptr);

    void addRequest(const TFRequestRecord &record);
    void addMessage(const LogMessage &message);
    void showPlugins(const PluginManager &plugins);
    const RequestModel &requests() const { return *m_requests; }

protected:
    void changeEvent(QEvent *event) override;

private:
    QTableView *makeTable(QAbstractItemModel *model, const QString &name);
    QWidget *makeRequestPage();
    void showBody(int row);
    void clear();
    void retranslate();

    RequestModel *m_requests;
    MessageModel *m_messages;
    QTabWidget *m_tabs;
    QTableView *m_requestTable;
    QTableView *m_messageTable;
    QPlainTextEdit *m_body;
    QTreeWidget *m_plugins;
};
