#include "serviceoptions.h"

#include <QCommandLineParser>

namespace service {

namespace {

/// An option that takes a whole number.
struct NumberOption
{
    const char *name;
    const char *placeholder;
    const char *description;
    qint64 least;
    qint64 most;
    qint64 standard;
    void (*store)(ServerSettings &, qint64);
};

const NumberOption *numberOptions(int *count)
{
    static const ServerSettings standard;
    static const Limits limits;
    static const NumberOption options[] = {
        {"port", "port", "Port; 0 takes any that is free.", 0, 65535, 8080,
         [](ServerSettings &s, qint64 n) { s.port = int(n); }},
        {"threads", "count", "Queries that run at once, each on a database connection of its own.", 1, 256,
         standard.threads, [](ServerSettings &s, qint64 n) { s.threads = int(n); }},
        {"connections", "count", "Clients that are connected at once; further ones wait.", 1, 4096,
         standard.connections, [](ServerSettings &s, qint64 n) { s.connections = int(n); }},
        {"keep-alive", "seconds", "Time that a connection is kept for a further request.", 1, 3600,
         standard.keepAliveSeconds, [](ServerSettings &s, qint64 n) { s.keepAliveSeconds = int(n); }},
        {"gzip-from", "bytes",
         "Size from which on a reply is compressed for a client that asks for it; 0: never.", 0, INT_MAX,
         standard.gzipFrom, [](ServerSettings &s, qint64 n) { s.gzipFrom = int(n); }},
        {"max-body", "bytes", "Largest body of a request.", 1024, 1 << 30, limits.bodyBytes,
         [](ServerSettings &s, qint64 n) { s.limits.bodyBytes = n; }},
        {"max-rows", "count", "Most rows of a reply.", 1, 10000000, limits.rows,
         [](ServerSettings &s, qint64 n) { s.limits.rows = int(n); }},
        {"max-seconds", "seconds", "Longest time of a query; then it is stopped.", 1, 3600, limits.seconds,
         [](ServerSettings &s, qint64 n) { s.limits.seconds = int(n); }},
        {"max-filter-depth", "count", "Deepest nesting of a filter's parentheses.", 1, 256,
         limits.filterDepth, [](ServerSettings &s, qint64 n) { s.limits.filterDepth = int(n); }},
    };
    *count = int(std::size(options));
    return options;
}

template <typename Visitor> void forEachNumber(Visitor visit)
{
    int count = 0;
    const NumberOption *options = numberOptions(&count);
    for (int i = 0; i < count; ++i)
        visit(options[i]);
}

QString readNumbers(const QCommandLineParser &parser, ServerSettings *settings)
{
    QString fault;
    forEachNumber([&](const NumberOption &option) {
        bool isNumber = false;
        const qint64 number = parser.value(QLatin1String(option.name)).toLongLong(&isNumber);
        if (!isNumber || number < option.least || number > option.most)
            fault = QStringLiteral("option --%1 takes a number from %2 to %3")
                        .arg(QLatin1String(option.name))
                        .arg(option.least)
                        .arg(option.most);
        else
            option.store(*settings, number);
    });
    return fault;
}

} // namespace

void addServiceOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral("Serves views over a database to the subject pages."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {QStringLiteral("db"), QStringLiteral("SQLite file to read, or postgresql://user@host:port/name."),
         QStringLiteral("database")},
        {QStringLiteral("views"), QStringLiteral("Folder of the view documents, read again at SIGHUP."),
         QStringLiteral("folder")},
        {QStringLiteral("host"), QStringLiteral("Address to listen on."), QStringLiteral("address"),
         QStringLiteral("127.0.0.1")},
        {QStringLiteral("token-file"),
         QStringLiteral(
             "Serve only clients with one of these tokens; a line holds TOKEN [USER [PRODUCT,...]]. "
             "Read again when it changes."),
         QStringLiteral("file")},
        {QStringLiteral("access-log"),
         QStringLiteral(
             "Write a line of JSON for each request to the end of this file, opened anew at SIGHUP; "
             "- is standard error."),
         QStringLiteral("file")},
        {QStringLiteral("log"),
         QStringLiteral("quiet: warnings only; access: --access-log - as well; debug: all."),
         QStringLiteral("level"), QStringLiteral("quiet")},
        {QStringLiteral("check"), QStringLiteral("Check the view documents and end.")},
        {QStringLiteral("exit-with-parent"),
         QStringLiteral("End when the process ends that started this one.")},
    });
    forEachNumber([&parser](const NumberOption &option) {
        parser.addOption({QLatin1String(option.name), QLatin1String(option.description),
                          QLatin1String(option.placeholder), QString::number(option.standard)});
    });
}

QString readServiceOptions(const QCommandLineParser &parser, ServiceOptions *options)
{
    for (const char *name : {"db", "views"}) {
        if (!parser.isSet(QLatin1String(name)))
            return QStringLiteral("option --%1 is required").arg(QLatin1String(name));
    }
    options->log = parser.value(QStringLiteral("log"));
    if (!QStringList{QStringLiteral("quiet"), QStringLiteral("access"), QStringLiteral("debug")}.contains(
            options->log))
        return QStringLiteral("option --log takes quiet, access or debug");
    options->accessLog = parser.value(QStringLiteral("access-log"));
    if (options->accessLog.isEmpty() && options->log != QLatin1String("quiet"))
        options->accessLog = QStringLiteral("-");
    options->tokenFile = parser.value(QStringLiteral("token-file"));
    options->server.host = parser.value(QStringLiteral("host"));
    options->server.databaseAddress = parser.value(QStringLiteral("db"));
    options->views = parser.value(QStringLiteral("views"));
    options->checkOnly = parser.isSet(QStringLiteral("check"));
    options->exitWithParent = parser.isSet(QStringLiteral("exit-with-parent"));
    return readNumbers(parser, &options->server);
}

} // namespace service
