// From the bytes of a reply to the store of rows that a model takes, against parsing the same bytes as JSON
// and nothing else.

#include "comparison.h"
#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfheaderdatastruct.h"
#include "net/tfjsp.h"
#include "replies.h"

#include <QGuiApplication>
#include <QJsonDocument>

#include <functional>
#include <malloc.h>

namespace {
/// A parser that has read a configuration, with the header it fills.
struct Page
{
    explicit Page(const QString &unbound = QString())
        : header(QString())
    {
        parser.parseConfig(Bench::configuration(unbound), &header);
    }

    void read(const QByteArray &bytes)
    {
        NtResponse response;
        if (!TFJSP::parseResponse(bytes, response) || !parser.parseData(response.data))
            qFatal("the reply was refused");
    }

    TFTreeStruct header;
    TFSubject::TFJsonParser parser;
};

void measureMemory(int rows)
{
    Page page;
    const QByteArray bytes = Bench::reply(rows);
    const size_t before = Bench::allocatedBytes();
    page.read(bytes);
    const TFRowStore store = page.parser.rowStore();
    const size_t withRawRows = Bench::allocatedBytes() - before;
    page.parser.clearData();
    malloc_trim(0);
    const size_t rowsAlone = Bench::allocatedBytes() - before;
    const double replySize = double(bytes.size());
    const auto report = [&](const char *work, size_t held) {
        Bench::report({QString::fromLatin1(work).arg(rows), QStringLiteral("bytes of the reply"), 0},
                      {held / 1e6, replySize / 1e6, held / replySize, "MB"});
    };
    report("memory of %1 rows with the raw rows", withRawRows);
    report("memory of %1 rows", rowsAlone);
}

void compareToParser(const char *work, int rows, int rounds,
                     const std::function<void(const QByteArray &)> &road)
{
    const QByteArray bytes = Bench::reply(rows);
    Bench::compare(
        {QStringLiteral("%1, %2 rows").arg(QLatin1String(work)).arg(rows),
         QStringLiteral("QJsonDocument::fromJson"), 0},
        rounds, [&bytes] { QJsonDocument::fromJson(bytes); }, [&] { road(bytes); });
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    Page page;
    Page computed(QStringLiteral("[FIELD_NAME_11]/[FIELD_NAME_12]*100"));
    Page aggregate(QStringLiteral("SUM([FIELD_NAME_11])"));
    const auto envelope = [](const QByteArray &bytes) {
        NtResponse response;
        TFJSP::parseResponse(bytes, response);
    };
    const auto asLists = [&page](const QByteArray &bytes) {
        page.read(bytes);
        page.parser.rows();
    };
    compareToParser("envelope", 100000, 7, envelope);
    compareToParser("rows ready for a model", 200, 200,
                    [&page](const QByteArray &bytes) { page.read(bytes); });
    compareToParser("rows ready for a model", 100000, 7,
                    [&page](const QByteArray &bytes) { page.read(bytes); });
    compareToParser("the same with an aggregate column", 100000, 5,
                    [&aggregate](const QByteArray &bytes) { aggregate.read(bytes); });
    compareToParser("rows as lists of cells", 100000, 5, asLists);
    compareToParser("rows with a formula column", 200, 50,
                    [&computed](const QByteArray &bytes) { computed.read(bytes); });
    measureMemory(100000);
    return 0;
}
