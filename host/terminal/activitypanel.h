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
/// states. Its parts are made when it is first shown. The object name is "ActivityPanel", those of its parts
/// "ActivityTabs", "RequestTable", "RequestBody", "MessageTable" and "PluginTable".
class ActivityPanel : public QDockWidget
{
    Q_OBJECT

public:
    explicit ActivityPanel(QWidget *parent = nullptr);

    void addRequest(const TFRequestRecord &record);
    void addMessage(const LogMessage &message);
    /// \a plugins has to outlive the panel.
    void showPlugins(const PluginManager &plugins);
    const RequestModel &requests() const { return *m_requests; }

    void setVisible(bool visible) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeParts();
    void fillPlugins();
    QTableView *makeTable(QAbstractItemModel *model, const QString &name);
    QWidget *makeRequestPage();
    void showBody(int row);
    void clear();
    void retranslate();

    RequestModel *m_requests;
    MessageModel *m_messages;
    const PluginManager *m_manager = nullptr;
    // Null until the panel is shown.
    QTabWidget *m_tabs = nullptr;
    QTableView *m_requestTable = nullptr;
    QTableView *m_messageTable = nullptr;
    QPlainTextEdit *m_body = nullptr;
    QTreeWidget *m_plugins = nullptr;
};
