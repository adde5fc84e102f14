// From the bytes of a reply to the store of rows that a model takes, against parsing the same bytes as JSON
// and nothing else. All variants run in turns in one process; a ratio is the median of the rounds' ratios.

#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfheaderdatastruct.h"
#include "net/tfjsp.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <malloc.h>

namespace {
constexpr int Columns = 30;

QString fieldName(int column)
{
    return QStringLiteral("FIELD_NAME_%1").arg(column, 2, 10, QLatin1Char('0'));
}

QString jsonText(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

/// Ten texts, fifteen figures, five dates; the first figure is computed when \a unbound is not empty.
QJsonObject configuration(const QString &unbound)
{
    QJsonArray bands, objects;
    for (int column = 0; column < Columns; ++column) {
        QJsonObject field{{"FieldName", fieldName(column)},
                          {"Caption", fieldName(column)},
                          {"ValueType", column < 10   ? "String"
                                        : column < 25 ? "Decimal"
                                                      : "DateTime"},
                          {"Visible", true},
                          {"Width", 90}};
        if (column == 10)
            field.insert("UnboundExpression", unbound);
        bands.append(field);
        objects.append(QJsonObject{{"obj_prop_name", fieldName(column)},
                                   {"vw_sts", "1"},
                                   {"ots_cfg", QString::fromUtf8(QJsonDocument(field).toJson())}});
    }
    return {{"View_Config",
             QJsonArray{QJsonObject{
                 {"prop_typ", "EXTEND"}, {"prop_name", "Bands"}, {"ext_prop_val", jsonText(bands)}}}},
            {"Object_View_Config", objects}};
}

QJsonValue cellValue(int row, int column)
{
    if (column < 10)
        return QStringLiteral("text %1").arg(row * column);
    return column < 25 ? row * 1.25 + column : 1577808000000.0 + row * 86400000.0;
}

QByteArray reply(int rows)
{
    QJsonArray data;
    for (int row = 0; row < rows; ++row) {
        QJsonObject object;
        for (int column = 0; column < Columns; ++column)
            object.insert(fieldName(column), cellValue(row, column));
        data.append(object);
    }
    const QJsonObject envelope{
        {"state", 1}, {"msg", ""}, {"extend", QJsonValue()}, {"data", QJsonObject{{"Data", data}}}};
    return QJsonDocument(envelope).toJson(QJsonDocument::Compact);
}

/// A way from the reply to rows; its name, what it does, and the times of its rounds.
struct Variant
{
    const char *name;
    std::function<void(const QByteArray &)> run;
    QVector<double> times;
};

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) / 1e6;
}

void measure(QVector<Variant> &variants, int rows, int rounds)
{
    const QByteArray bytes = reply(rows);
    for (int round = -1; round < rounds; ++round) {
        for (Variant &variant : variants) {
            const double time = milliseconds([&] { variant.run(bytes); });
            if (round >= 0)
                variant.times.append(time);
        }
    }
    std::printf("%d rows x %d, %.1f KB\n", rows, Columns, double(bytes.size()) / 1024);
    for (Variant &variant : variants) {
        QVector<double> ratios;
        for (int round = 0; round < rounds; ++round)
            ratios.append(variant.times.at(round) / variants.first().times.at(round));
        std::printf("  %-38s %9.2f ms  ratio %6.2f\n", variant.name, median(variant.times), median(ratios));
        variant.times.clear();
    }
}

size_t allocated()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// A parser that has read a configuration, with the header it fills.
struct Page
{
    explicit Page(const QString &unbound = QString())
        : header(QString())
    {
        parser.parseConfig(configuration(unbound), &header);
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
    const QByteArray bytes = reply(rows);
    const size_t before = allocated();
    page.read(bytes);
    const TFRowStore store = page.parser.rowStore();
    const size_t withRawRows = allocated() - before;
    page.parser.clearData();
    malloc_trim(0);
    const size_t rowsAlone = allocated() - before;
    std::printf("memory of %d rows: %.2f of the reply with the raw rows, %.2f without (%.1f bytes a cell)\n",
                rows, double(withRawRows) / double(bytes.size()), double(rowsAlone) / double(bytes.size()),
                double(rowsAlone) / rows / Columns);
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    Page page;
    Page computed(QStringLiteral("[FIELD_NAME_11]/[FIELD_NAME_12]*100"));
    Page aggregate(QStringLiteral("SUM([FIELD_NAME_11])"));
    QVector<Variant> variants = {
        {"QJsonDocument::fromJson", [](const QByteArray &bytes) { QJsonDocument::fromJson(bytes); }, {}},
        {"envelope from bytes",
         [](const QByteArray &bytes) {
             NtResponse response;
             TFJSP::parseResponse(bytes, response);
         },
         {}},
        {"envelope from a text",
         [](const QByteArray &bytes) {
             NtResponse response;
             TFJSP::parseResponse(QString::fromUtf8(bytes), response);
         },
         {}},
        {"rows ready for a model", [&page](const QByteArray &bytes) { page.read(bytes); }, {}},
        {"the same, with an aggregate column",
         [&aggregate](const QByteArray &bytes) { aggregate.read(bytes); },
         {}},
        {"rows as lists of cells",
         [&page](const QByteArray &bytes) {
             page.read(bytes);
             page.parser.rows();
         },
         {}}};
    measure(variants, 200, 200);
    measure(variants, 100000, 7);
    QVector<Variant> formulas = {
        variants.first(),
        {"rows with a formula column", [&computed](const QByteArray &bytes) { computed.read(bytes); }, {}}};
    measure(formulas, 200, 50);
    measureMemory(100000);
    return 0;
}
