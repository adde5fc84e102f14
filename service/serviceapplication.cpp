#include "serviceapplication.h"

#include "accesslog.h"
#include "categories.h"
#include "database.h"
#include "serviceoptions.h"
#include "tokenstore.h"
#include "viewlibrary.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <csignal>
#include <cstdio>
#include <thread>

#include <malloc.h>
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

/// Replies of some hundred KB come and go all the time. Giving their memory back to the system each time
/// costs more than writing them; few arenas keep what stays small.
void keepFreedMemory()
{
    mallopt(M_ARENA_MAX, 4);
    mallopt(M_MMAP_THRESHOLD, 8 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 16 * 1024 * 1024);
}

void setLogLevel(const QString &level)
{
    const QString info = level == QLatin1String("quiet") ? QStringLiteral("false") : QStringLiteral("true");
    const QString debug = level == QLatin1String("debug") ? QStringLiteral("true") : QStringLiteral("false");
    QLoggingCategory::setFilterRules(
        QStringLiteral("subject.service.*.info=%1\nsubject.service.*.debug=%2").arg(info, debug));
}

/// Signals that steer the service, blocked in all threads so that one waits for them.
sigset_t blockSignals()
{
    sigset_t signalSet;
    sigemptyset(&signalSet);
    sigaddset(&signalSet, SIGTERM);
    sigaddset(&signalSet, SIGINT);
    sigaddset(&signalSet, SIGHUP);
    pthread_sigmask(SIG_BLOCK, &signalSet, nullptr);
    return signalSet;
}

/// SIGHUP is told to programs whose log was moved away; the others end the service.
void waitForEnd(const ServiceOptions &options, const sigset_t &signalSet)
{
    int signal = 0;
    while (sigwait(&signalSet, &signal) == 0 && signal == SIGHUP) {
        if (options.server.accessLog)
            options.server.accessLog->reopen();
    }
}

/// Opens the files that the options name; a text that is not empty tells why that fails.
QString openFiles(ServiceOptions *options)
{
    QString fault;
    if (!options->tokenFile.isEmpty()) {
        options->server.tokens = std::make_shared<TokenStore>();
        if (!options->server.tokens->open(options->tokenFile, &fault))
            return fault;
    }
    if (!options->accessLog.isEmpty()) {
        options->server.accessLog = std::make_shared<AccessLog>();
        options->server.accessLog->open(options->accessLog, &fault);
    }
    return fault;
}

int serveUntilSignal(const ServiceOptions &options, const ViewLibrary &library, const sigset_t &signalSet)
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
    waitForEnd(options, signalSet);
    server.stop();
    serving.join();
    return Served;
}

int run(const ServiceOptions &options, const sigset_t &signalSet)
{
    Database database(options.server.databaseAddress);
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
    return serveUntilSignal(options, library, signalSet);
}

} // namespace

int runService(const QStringList &arguments)
{
    const pid_t parent = getppid();
    const sigset_t signalSet = blockSignals();
    QCommandLineParser parser;
    addServiceOptions(parser);
    if (!parser.parse(arguments)) {
        say(stderr, parser.errorText());
        return WrongUsage;
    }
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    ServiceOptions options;
    QString fault = readServiceOptions(parser, &options);
    if (fault.isEmpty() && !options.checkOnly)
        fault = openFiles(&options);
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
    keepFreedMemory();
    // Without a zone in the environment the C library looks at the zone's file again for every date it
    // converts.
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
    return run(options, signalSet);
}

} // namespace service
