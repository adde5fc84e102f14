#include "connection.h"

#include "postgresconnection.h"
#include "sqliteconnection.h"

namespace service {

RowStream::~RowStream() = default;

Connection::~Connection() = default;

std::unique_ptr<Connection> makeConnection(const QString &address)
{
    if (address.startsWith(QLatin1String("postgresql://")) ||
        address.startsWith(QLatin1String("postgres://")))
        return std::make_unique<PostgresConnection>(address);
    return std::make_unique<SqliteConnection>(address);
}

} // namespace service
