// Requests of any bytes: each gets a whole envelope, and none is the service's fault.
//
// Built with the option SUBJECTPAGE_FUZZ by clang, this is a libFuzzer target: fuzz_requests CORPUS-FOLDER.
// Else it mutates its own seeds for some seconds: fuzz_requests [SECONDS [SEED]].

#include "requesthandler.h"
#include "servicefixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <cstdio>
#include <random>

using namespace service;

namespace {

/// A database and views to ask, made at the first request.
struct Target
{
    Target()
        : database(fixture.openDatabase())
    {
        QLoggingCategory::setFilterRules("subject.service.*=false");
        library = std::make_unique<ViewLibrary>(fixture.viewFolder(), *database);
    }

    ServiceFixture fixture;
    std::unique_ptr<Database> database;
    std::unique_ptr<ViewLibrary> library;
};

/// Asks both endpoints and gives how many served it; aborts with the request when an answer is not as it has
/// to be.
int ask(const QByteArray &body)
{
    int served = 0;
    static Target target;
    const RequestHandler handler(*target.library, Limits());
    for (const Reply &reply : {handler.subjectData(body, Identity(), *target.database),
                               handler.namedData(body, Identity(), *target.database)}) {
        const QJsonObject envelope = QJsonDocument::fromJson(reply.body).object();
        const int state = envelope.value("state").toInt();
        const bool isGood = reply.status == 200 ? state == 1 : reply.status == 400 && state == -400;
        if (!isGood || envelope.size() != 4)
            qFatal("status %d, %s\nfor %s", reply.status, reply.body.left(300).constData(), body.constData());
        served += reply.status == 200 ? 1 : 0;
    }
    return served;
}

} // namespace

#ifdef SUBJECTPAGE_LIBFUZZER

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    ask(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}

#else

namespace {

const QList<QByteArray> &seeds()
{
    static const QList<QByteArray> texts{
        R"j({"obj_vw_id":10,"flag":1,"page":1,"size":2,"order":{"PRICE":-1},"filterBlock":[1,"2"]})j",
        R"j({"obj_vw_id":10,"flag":1,"filter":"(PRICE >= :P) && ((DAY <= [2020-01]) && (NAME like 'x%'))","filterParams":{"P":"1.5"}})j",
        R"j({"obj_vw_id":10,"flag":1,"filter":"SECTOR in :L && SYMBOL nin :M","filterParams":{"L":[1,"2"],"M":[]}})j",
        R"j({"obj_vw_id":10,"flag":2,"EXCHANGE":"A","TOP":"3","filter":"DAY == :D","filterParams":{"D":"/Date(1596124800000+0800)/"}})j",
        R"j({"obj_vw_id":12,"flag":2,"filter":"D > 1577808000000"})j",
        R"j({"objId":43,"filter":"(SECU_TYP_CODE == :T)","filterParams":{"T":10}})j",
        R"j({"objId":38,"P_NODE_CODE":2,"objName":"NAMES"})j"};
    return texts;
}

/// Changes a request a little: words and bytes put in, taken out, doubled, or exchanged for those of another
/// one.
class Mutator
{
public:
    explicit Mutator(unsigned seed)
        : m_random(seed)
    {}

    QByteArray next()
    {
        static const QList<QByteArray> words{"null", "[]",      "{}",    "1e999", "-0", "\\u0000",
                                             "\"",   "''",      "[2020", "]",     "(",  ")",
                                             "&&",   "\\ud800", "%",     "\\\\",  ":P", "0x"};
        QByteArray text = seeds().at(below(seeds().size()));
        for (int changes = 1 + below(4); changes > 0; --changes) {
            const int at = below(text.size() + 1);
            const int length = below(12);
            switch (below(5)) {
            case 0:
                text.insert(at, words.at(below(words.size())));
                break;
            case 1:
                text.remove(at, length);
                break;
            case 2:
                text.insert(at, text.mid(below(text.size() + 1), length));
                break;
            case 3:
                text.replace(at, length, seeds().at(below(seeds().size())).mid(at, length));
                break;
            default:
                text.insert(at, static_cast<char>(below(256)));
            }
        }
        return text;
    }

private:
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

    std::mt19937 m_random;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int seconds = std::max(1, arguments.value(1).toInt());
    const unsigned seed = std::max(1u, arguments.value(2).toUInt());
    Mutator mutator(seed);
    for (const QByteArray &text : seeds())
        ask(text);
    QElapsedTimer timer;
    timer.start();
    int count = 0;
    int served = 0;
    for (; timer.elapsed() < seconds * 1000; ++count)
        served += ask(mutator.next());
    std::printf("seed %u: %d requests answered, %d served\n", seed, count, served);
    return served > 0 ? 0 : 1;
}

#endif
