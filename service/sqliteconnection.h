#pragma once

#include "connection.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <utility>
#include <vector>

namespace service {

/// A read-only connection to an SQLite file. Keeps prepared statements for the next time.
class SqliteConnection : public Connection
{
public:
    explicit SqliteConnection(const QString &file);
    ~SqliteConnection() override;

    bool open(QString *fault) override;
    std::unique_ptr<RowStream> run(const BoundSql &sql, DatabaseFault *fault) override;
    const SqlDialect &dialect() const override;

    /// Takes a statement back that has served.
    void giveBack(const QString &text, std::unique_ptr<QSqlQuery> query);

    /// The fault that \a query ended with.
    DatabaseFault faultOf(const QSqlQuery &query) const;

private:
    std::unique_ptr<QSqlQuery> prepared(const QString &text, DatabaseFault *fault);
    void watchLimit();
    bool isReplaced() const;

    QString m_file;
    QString m_name;
    QSqlDatabase m_database;
    quint64 m_inode = 0;
    std::vector<std::pair<QString, std::unique_ptr<QSqlQuery>>> m_statements; ///< oldest first
};

} // namespace service
