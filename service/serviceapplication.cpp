#include "serviceapplication.h"

#include "categories.h"
#include "database.h"
#include "httpserver.h"
#include "viewlibrary.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <csignal>
#include <cstdio>
#include <thread>

#include <sys/prctl.h>
#include <unistd.h>

namespace service {

namespace {

enum ExitStatus { Served = 0, Failed = 1, WrongUsage = 2 };

void say(FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(line));
    std::fflush(stream);
}

struct Options
{
    ServerSettings server;
    QString views;
    QString log;
    bool checkOnly = false;
    bool exitWithParent = false;
};

/// Reads the command line into \a options; a text that is not empty tells what is wrong with it.
QString readOptions(const QCommandLineParser &parser, Options *options)
{
    for (const char *name : {"db", "views"}) {
        if (!parser.isSet(QLatin1String(name)))
            return QStringLiteral("option --%1 is required").arg(QLatin1String(name));
    }
    bool portIsGood = false;
    bool threadsAreGood = false;
    options->server.port = parser.value(QStringLiteral("port")).toUShort(&portIsGood);
    options->server.threads = parser.value(QStringLiteral("threads")).toInt(&threadsAreGood);
    if (!portIsGood)
        return QStringLiteral("option --port takes a number from 0 to 65535");
    if (!threadsAreGood || options->server.threads < 1 || options->server.threads > 256)
        return QStringLiteral("option --threads takes a number from 1 to 256");
    options->log = parser.value(QStringLiteral("log"));
    if (!QStringList{QStringLiteral("quiet"), QStringLiteral("access"), QStringLiteral("debug")}.contains(
            options->log))
        return QStringLiteral("option --log takes quiet, access or debug");
    options->server.host = parser.value(QStringLiteral("host"));
    options->server.databaseFile = parser.value(QStringLiteral("db"));
    options->views = parser.value(QStringLiteral("views"));
    options->checkOnly = parser.isSet(QStringLiteral("check"));
    options->exitWithParent = parser.isSet(QStringLiteral("exit-with-parent"));
    QString fault;
    if (parser.isSet(QStringLiteral("token-file")))
        options->server.tokens.load(parser.value(QStringLiteral("token-file")), &fault);
    return fault;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral("Serves views over a database to the subject pages."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {QStringLiteral("db"), QStringLiteral("SQLite file to read, or postgresql://user@host:port/name."),
         QStringLiteral("database")},
        {QStringLiteral("views"), QStringLiteral("Folder of the view documents."), QStringLiteral("folder")},
        {QStringLiteral("port"), QStringLiteral("Port; 0 takes any that is free."), QStringLiteral("port"),
         QStringLiteral("8080")},
        {QStringLiteral("host"), QStringLiteral("Address to listen on."), QStringLiteral("address"),
         QStringLiteral("127.0.0.1")},
        {QStringLiteral("token-file"),
         QStringLiteral("Serve only clients with one of these tokens, one a line."), QStringLiteral("file")},
        {QStringLiteral("threads"), QStringLiteral("Requests that are served at once."),
         QStringLiteral("count"), QStringLiteral("32")},
        {QStringLiteral("log"), QStringLiteral("quiet: warnings only; access: a line a request; debug."),
         QStringLiteral("level"), QStringLiteral("quiet")},
        {QStringLiteral("check"), QStringLiteral("Check the view documents and end.")},
        {QStringLiteral("exit-with-parent"),
         QStringLiteral("End when the process ends that started this one.")},
    });
}

void setLogLevel(const QString &level)
{
    const QString info = level == QLatin1String("quiet") ? QStringLiteral("false") : QStringLiteral("true");
    const QString debug = level == QLatin1String("debug") ? QStringLiteral("true") : QStringLiteral("false");
    QLoggingCategory::setFilterRules(
        QStringLiteral("subject.service.access.info=%1\nsubject.service.*.debug=%2").arg(info, debug));
}

/// Signals that end the service, blocked in all threads so that one waits for them.
sigset_t blockEndSignals()
{
    sigset_t signalSet;
    sigemptyset(&signalSet);
    sigaddset(&signalSet, SIGTERM);
    sigaddset(&signalSet, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signalSet, nullptr);
    return signalSet;
}

int serveUntilSignal(const Options &options, const ViewLibrary &library, const sigset_t &endSignals)
{
    HttpServer server(options.server, library);
    const int port = server.bind();
    if (port == 0) {
        say(stderr,
            QStringLiteral("cannot listen on %1, port %2").arg(options.server.host).arg(options.server.port));
        return Failed;
    }
    std::thread serving([&server] { server.serve(); });
    say(stdout, QStringLiteral("listening on http://%1:%2").arg(options.server.host).arg(port));
    int signal = 0;
    sigwait(&endSignals, &signal);
    server.stop();
    serving.join();
    return Served;
}

int run(const Options &options, const sigset_t &endSignals)
{
    Database database(options.server.databaseFile);
    QString fault;
    if (!database.open(&fault)) {
        say(stderr, fault);
        return Failed;
    }
    const ViewLibrary library(options.views, database);
    for (const QString &text : library.faults())
        say(stderr, text);
    if (options.checkOnly) {
        say(stdout,
            QStringLiteral("%1 views, %2 faults").arg(library.viewCount()).arg(library.faults().size()));
        return library.faults().isEmpty() ? Served : Failed;
    }
    return serveUntilSignal(options, library, endSignals);
}

} // namespace

int runService(const QStringList &arguments)
{
    const pid_t parent = getppid();
    const sigset_t endSignals = blockEndSignals();
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments)) {
        say(stderr, parser.errorText());
        return WrongUsage;
    }
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    Options options;
    const QString fault = readOptions(parser, &options);
    if (!fault.isEmpty()) {
        say(stderr, fault);
        return WrongUsage;
    }
    if (options.exitWithParent) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        // The parent may have ended before that took effect.
        if (getppid() != parent)
            return Served;
    }
    setLogLevel(options.log);
    // Without a zone in the environment the C library looks at the zone's file again for every date it
    // converts.
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
    return run(options, endSignals);
}

} // namespace service
