#pragma once

#include "connection.h"

#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

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

    struct StatementEnd
    {
        void operator()(sqlite3_stmt *statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, StatementEnd>;

    /// Takes a statement back that has served.
    void giveBack(const QString &text, Statement statement);

    /// The fault that the last step ended with; \a code is what it returned.
    DatabaseFault faultOf(int code) const;

private:
    bool execute(const char *sql) const;
    Statement prepared(const QString &text, DatabaseFault *fault);
    bool isReplaced() const;

    struct DatabaseEnd
    {
        void operator()(sqlite3 *database) const;
    };

    QString m_file;
    quint64 m_inode = 0;
    std::unique_ptr<sqlite3, DatabaseEnd> m_database;
    std::vector<std::pair<QString, Statement>> m_statements; ///< oldest first
};

} // namespace service
