// The data service under load: what it adds to the bare database query, and how it bears many clients.
//
//   service_load --db FILE --views FOLDER [--clients 64] [--seconds 60] [--requests FILE] [-- OPTIONS OF THE
//   SERVICE]
//
// First one client: each recorded request in turn as a bare query (same statement, all values read, in this
// process) and over HTTP. Then all clients at once. Ends with 1 when a request failed or memory grew.

#include "database.h"
#include "load/requestmix.h"
#include "load/servedprocess.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <httplib.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <random>
#include <thread>

#include <ctime>

namespace {

using Clock = std::chrono::steady_clock;
using Load::Request;

const int PageRows = 200;
const double MostAddedMedian = 1; // ms
const double MostAdded99 = 5;
const double MostGrowth = 1.05; // of memory, between the middle and the end of a run

double since(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Milliseconds of processor time that \a clock has counted.
double processorTime(clockid_t clock)
{
    timespec time{};
    ::clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// The value below which \a share of \a values lie.
double percentile(std::vector<double> &values, double share)
{
    if (values.empty())
        return 0;
    const auto place = values.begin() + static_cast<std::ptrdiff_t>(share * double(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

/// Runs the statement and reads all values; gives the rows.
int bareQuery(service::Database &database, const service::BoundSql &sql)
{
    service::Result<service::Cursor> cursor = database.select(sql);
    if (!cursor.ok())
        qFatal("a bare query failed");
    const int columns = cursor.value().columns().size();
    int rows = 0;
    for (; cursor.value().next(); ++rows) {
        for (int i = 0; i < columns; ++i)
            cursor.value().stored(i);
    }
    return rows;
}

bool ask(httplib::Client &client, const Request &request)
{
    const auto reply = client.Post(request.path, request.body, "application/json");
    return reply && reply->status == 200 && !reply->body.empty() && reply->body.back() == '}';
}

std::unique_ptr<httplib::Client> makeClient(int port)
{
    auto client = std::make_unique<httplib::Client>("127.0.0.1", port);
    client->set_keep_alive(true);
    client->set_tcp_nodelay(true);
    client->set_read_timeout(60);
    return client;
}

/// One client, requests with a statement in turns bare and over HTTP; tells what the service adds. The
/// processor time stays true on a machine that has other things to do.
void measureAdded(std::vector<Request> &mix, service::Database &database, const Load::ServedProcess &service,
                  int seconds)
{
    const auto client = makeClient(service.port());
    for (Request &request : mix) {
        request.isFullPage = request.sql && bareQuery(database, *request.sql) == PageRows;
        if (!ask(*client, request))
            qFatal("refused: %s %s", request.path.c_str(), request.body.c_str());
    }
    std::vector<double> bare, served, added;
    double bareProcessor = 0;
    const double servedProcessor = processorTime(service.processorClock());
    const Clock::time_point start = Clock::now();
    while (since(start) < seconds * 1000) {
        for (const Request &request : mix) {
            if (!request.isFullPage)
                continue;
            Clock::time_point begin = Clock::now();
            bareProcessor -= processorTime(CLOCK_THREAD_CPUTIME_ID);
            bareQuery(database, *request.sql);
            bareProcessor += processorTime(CLOCK_THREAD_CPUTIME_ID);
            bare.push_back(since(begin));
            begin = Clock::now();
            ask(*client, request);
            served.push_back(since(begin));
            added.push_back(served.back() - bare.back());
        }
    }
    const auto times = double(std::max<std::size_t>(1, bare.size()));
    const double bareMean = bareProcessor / times;
    const double servedMean = (processorTime(service.processorClock()) - servedProcessor) / times;
    std::printf("one client, pages of %d rows, %zu times\n", PageRows, bare.size());
    const auto line = [](const char *what, std::vector<double> &values, double mean) {
        std::printf("  %-12s median %6.2f ms   99th %6.2f ms   processor %6.2f ms\n", what,
                    percentile(values, 0.5), percentile(values, 0.99), mean);
    };
    line("bare query", bare, bareMean);
    line("service", served, servedMean);
    line("added", added, servedMean - bareMean);
    std::printf("  (goal for what is added: median below %g ms, 99th below %g ms)\n", MostAddedMedian,
                MostAdded99);
}

/// What the clients of a run have seen.
struct Seen
{
    std::vector<double> milliseconds;
    long errors = 0;
};

Seen runClient(const std::vector<Request> &mix, int port, unsigned seed, Clock::time_point end)
{
    const auto client = makeClient(port);
    std::minstd_rand random(seed);
    std::uniform_int_distribution<std::size_t> choose(0, mix.size() - 1);
    Seen seen;
    while (Clock::now() < end) {
        const Clock::time_point begin = Clock::now();
        seen.errors += ask(*client, mix[choose(random)]) ? 0 : 1;
        seen.milliseconds.push_back(since(begin));
    }
    return seen;
}

Seen runClients(const std::vector<Request> &mix, int port, int clients, int seconds)
{
    const Clock::time_point end = Clock::now() + std::chrono::seconds(seconds);
    std::vector<Seen> seen(static_cast<std::size_t>(clients));
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < seen.size(); ++i)
        threads.emplace_back([&, i] { seen[i] = runClient(mix, port, unsigned(i + 1), end); });
    for (std::thread &thread : threads)
        thread.join();
    Seen all;
    for (const Seen &one : seen) {
        all.errors += one.errors;
        all.milliseconds.insert(all.milliseconds.end(), one.milliseconds.begin(), one.milliseconds.end());
    }
    return all;
}

/// The mix as bare queries, as many at once as there are processors; gives them a second.
double bareQueriesPerSecond(const std::vector<Request> &mix, const QString &address, int seconds)
{
    const Clock::time_point end = Clock::now() + std::chrono::seconds(seconds);
    std::atomic<long> count{0};
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
        threads.emplace_back([&] {
            service::Database database(address);
            QString fault;
            if (!database.open(&fault))
                qFatal("%s", qPrintable(fault));
            for (std::size_t place = 0; Clock::now() < end; ++place, ++count) {
                if (const auto &sql = mix[place % mix.size()].sql)
                    bareQuery(database, *sql);
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    return double(count) / seconds;
}

/// Two halves, so that the memory of the middle and of the end can be compared. False for an error or growth.
bool measureLoad(const std::vector<Request> &mix, const Load::ServedProcess &service, const QString &address,
                 int clients, int seconds)
{
    const double before = service.megabytes();
    Seen first = runClients(mix, service.port(), clients, seconds / 2);
    const double middle = service.megabytes();
    Seen second = runClients(mix, service.port(), clients, seconds - seconds / 2);
    const double after = service.megabytes();
    std::vector<double> &all = first.milliseconds;
    all.insert(all.end(), second.milliseconds.begin(), second.milliseconds.end());
    const long errors = first.errors + second.errors;
    std::printf("%d clients, %d s: %zu requests, %.0f/s   median %.2f ms   99th %.2f ms   errors %ld\n",
                clients, seconds, all.size(), double(all.size()) / seconds, percentile(all, 0.5),
                percentile(all, 0.99), errors);
    std::printf("  the same as bare queries, one a processor: %.0f/s\n",
                bareQueriesPerSecond(mix, address, std::min(seconds, 10)));
    std::printf("  memory of the service: %.1f MB before, %.1f MB in the middle, %.1f MB after\n", before,
                middle, after);
    return errors == 0 && after <= middle * MostGrowth;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Measures the data service under load.");
    parser.addHelpOption();
    parser.addOptions({{"db", "Database, as the service takes it.", "database"},
                       {"views", "Folder of the view documents.", "folder"},
                       {"clients", "Clients at once.", "count", "64"},
                       {"seconds", "Time under load.", "seconds", "60"},
                       {"requests", "The recorded requests.", "file", REQUESTS_FILE}});
    parser.addPositionalArgument("options", "Further options of the service, behind --.", "[-- options...]");
    parser.process(application);
    const QString address = parser.value("db");
    const int seconds = std::max(2, parser.value("seconds").toInt());
    service::Database database(address);
    QString fault;
    if (!database.open(&fault))
        qFatal("%s", qPrintable(fault));
    const service::ViewLibrary library(parser.value("views"), database);
    std::vector<Request> mix = Load::readMix(parser.value("requests"), library);
    const Load::ServedProcess service(QStringList{"--db", address, "--views", parser.value("views")} +
                                      parser.positionalArguments());
    measureAdded(mix, database, service, std::min(seconds, 20));
    const bool isGood =
        measureLoad(mix, service, address, std::max(1, parser.value("clients").toInt()), seconds);
    return isGood ? 0 : 1;
}
