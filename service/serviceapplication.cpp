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

const char StayInForce[] = "(the documents that were read before stay in force)";

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

/// Reads the documents again. One fault, and those that were read before stay in force, all of them: they
/// name each other.
void readDocumentsAgain(const ServiceOptions &options, HttpServer *server)
{
    Database database(options.server.databaseAddress);
    QString fault;
    if (!database.open(&fault)) {
        qCWarning(lcDocuments).noquote() << fault << StayInForce;
        return;
    }
    const auto library = std::make_shared<const ViewLibrary>(options.views, database);
    for (const QString &text : library->faults())
        qCWarning(lcDocuments).noquote() << text << StayInForce;
    if (!library->faults().isEmpty())
        return;
    server->setLibrary(library);
    qCInfo(lcDocuments).noquote() << "read" << library->viewCount() << "views of" << options.views << "again";
}

/// At SIGHUP opens the log anew, which may have been moved away, and reads the documents again; the others
/// end the service.
void waitForEnd(const ServiceOptions &options, const sigset_t &signalSet, HttpServer *server)
{
    int signal = 0;
    while (sigwait(&signalSet, &signal) == 0 && signal == SIGHUP) {
        if (options.server.accessLog)
            options.server.accessLog->reopen();
        readDocumentsAgain(options, server);
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

std::shared_ptr<const ViewLibrary> readDocuments(const ServiceOptions &options, Database &database)
{
    auto library = std::make_shared<const ViewLibrary>(options.views, database);
    for (const QString &text : library->faults())
        say(stderr, text);
    return library;
}

int check(const ServiceOptions &options, Database &database)
{
    const auto library = readDocuments(options, database);
    const auto faults = library->faults().size();
    say(stdout, QStringLiteral("%1 views, %2 faults").arg(library->viewCount()).arg(faults));
    return faults == 0 ? Served : Failed;
}

/// Tells its address before it reads the documents: who connects meanwhile waits for their end, and has the
/// time to get ready himself.
int serveUntilSignal(const ServiceOptions &options, Database &database, const sigset_t &signalSet)
{
    HttpServer server(options.server);
    const int port = server.bind();
    if (port == 0) {
        say(stderr,
            QStringLiteral("cannot listen on %1, port %2").arg(options.server.host).arg(options.server.port));
        return Failed;
    }
    say(stdout, QStringLiteral("listening on http://%1:%2").arg(options.server.host).arg(port));
    server.setLibrary(readDocuments(options, database));
    std::thread serving([&server] { server.serve(); });
    waitForEnd(options, signalSet, &server);
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
    return options.checkOnly ? check(options, database) : serveUntilSignal(options, database, signalSet);
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
