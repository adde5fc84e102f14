// From the bytes of a reply to the store of rows that a model takes, against parsing the same bytes as JSON
// and nothing else; and what a store costs by itself.

#include "comparison.h"
#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfheaderdatastruct.h"
#include "net/tfrowsreply.h"
#include "records/tfvaluelist.h"
#include "replies.h"

#include <QGuiApplication>
#include <functional>
#include <string>
#include <vector>

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
        TFRowsReply reply;
        if (!TFRowsReply::read(bytes, reply) || !parser.parseData(reply.envelope.data, reply.rows))
            qFatal("the reply was refused");
    }

    TFTreeStruct header;
    TFSubject::TFJsonParser parser;
};

constexpr char kText[] = "text 123456";
constexpr int kTextLength = int(sizeof kText) - 1;

/// A cell as small as can be, the texts in one string.
struct PlainCell
{
    double number;
    int length;
    int type;
};

void fillPlain(int rows)
{
    std::vector<PlainCell> cells;
    std::string texts;
    for (int i = 0; i < rows * Bench::Columns; ++i) {
        if (i % 3 != 0) {
            cells.push_back({double(i), 0, 1});
        } else {
            cells.push_back({double(texts.size()), kTextLength, 2});
            texts.append(kText, kTextLength);
        }
    }
    if (cells.empty() || texts.empty())
        qFatal("nothing was stored");
}

void fill(TFValueList &list, int rows)
{
    for (int i = 0; i < rows * Bench::Columns; ++i) {
        if (i % 3 != 0)
            list.appendNumber(i);
        else
            list.appendText(kText, kTextLength);
    }
}

void measureCells(int rows)
{
    const QString base = QStringLiteral("16-byte cells in one vector");
    Bench::compare(
        {QStringLiteral("cells of %1 rows stored").arg(rows), base, 1.5}, 11, [rows] { fillPlain(rows); },
        [rows] {
            TFValueList list;
            fill(list, rows);
        });
    const size_t before = Bench::allocatedBytes();
    TFValueList numbers;
    for (int i = 0; i < rows * Bench::Columns; ++i)
        numbers.appendNumber(i);
    const double bytes = double(Bench::allocatedBytes() - before) / double(numbers.size());
    Bench::report({QStringLiteral("memory of a cell without its text"), base, 1.5},
                  {bytes, 16, bytes / 16, "bytes"});
}

void compareToParser(const char *work, int rows, int rounds,
                     const std::function<void(const QByteArray &)> &road)
{
    const QByteArray bytes = Bench::reply(rows);
    Bench::compareTimed(
        {QStringLiteral("%1, %2 rows").arg(QLatin1String(work)).arg(rows),
         QStringLiteral("QJsonDocument::fromJson"), 0},
        rounds, [&bytes] { return Bench::parseTime(bytes); },
        [&] { return Bench::milliseconds([&] { road(bytes); }); });
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
    measureCells(100000);
    return 0;
}
