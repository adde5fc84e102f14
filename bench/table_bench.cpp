// From the bytes of a reply to a model ready to paint, through the table widget, against parsing the same
// bytes as JSON and nothing else. Both run in turns in one process; the ratio is the median of the rounds'
// ratios.

#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "net/tfjsp.h"
#include "tfsubjecttablewidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <algorithm>
#include <cstdio>

namespace {
constexpr int kColumns = 30;
constexpr int kRowsReply = 1;

QString fieldName(int column)
{
    return QStringLiteral("FIELD_NAME_%1").arg(column, 2, 10, QLatin1Char('0'));
}

QString jsonText(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

/// Ten texts, fifteen figures, five dates.
QJsonObject configuration()
{
    QJsonArray bands, objects;
    for (int column = 0; column < kColumns; ++column) {
        const QString type = column < 10 ? "String" : column < 25 ? "Decimal" : "DateTime";
        const QJsonObject field{{"FieldName", fieldName(column)},
                                {"Caption", fieldName(column)},
                                {"ValueType", type},
                                {"Visible", true},
                                {"Width", 90}};
        bands.append(field);
        objects.append(QJsonObject{{"obj_prop_name", fieldName(column)},
                                   {"vw_sts", "1"},
                                   {"ots_cfg", QString::fromUtf8(QJsonDocument(field).toJson())}});
    }
    const QJsonArray view{QJsonObject{{"obj_vw_id", 260},
                                      {"prop_typ", "EXTEND"},
                                      {"prop_name", "Bands"},
                                      {"ext_prop_val", jsonText(bands)}},
                          QJsonObject{{"obj_vw_id", 260}, {"prop_name", "FrozenCount"}, {"prop_val", "1"}}};
    return {{"View_Config", view}, {"Object_View_Config", objects}};
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
        for (int column = 0; column < kColumns; ++column)
            object.insert(fieldName(column), cellValue(row, column));
        data.append(object);
    }
    const QJsonArray summary{QJsonObject{{"Item", "rcount"}, {"value", rows}},
                             QJsonObject{{"Item", "pindex"}, {"value", 1}},
                             QJsonObject{{"Item", "psize"}, {"value", 200}}};
    const QJsonObject envelope{{"state", 1},
                               {"msg", ""},
                               {"extend", QJsonValue()},
                               {"data", QJsonObject{{"Data", data}, {"Summary", summary}}}};
    return QJsonDocument(envelope).toJson(QJsonDocument::Compact);
}

double parseAlone(const QByteArray &bytes)
{
    QElapsedTimer clock;
    clock.start();
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    const double time = clock.nsecsElapsed() / 1e6;
    return document.isNull() ? 0 : time;
}

double wholeRoad(TFSubjectTableWidget *table, const QByteArray &bytes, int rows)
{
    QElapsedTimer clock;
    clock.start();
    NtResponse response;
    const bool isGood =
        TFJSP::parseResponse(bytes, response) && table->handleReply(response.data, QString(), kRowsReply);
    const double time = clock.nsecsElapsed() / 1e6;
    if (!isGood || table->model()->rowCount() != rows)
        qFatal("the table did not take the reply");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return time;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

void measure(TFSubjectTableWidget *table, int rows, int rounds)
{
    const QByteArray bytes = reply(rows);
    QVector<double> alone, road, ratio;
    for (int round = -1; round < rounds; ++round) {
        const double parse = parseAlone(bytes);
        const double whole = wholeRoad(table, bytes, rows);
        if (round < 0)
            continue;
        alone.append(parse);
        road.append(whole);
        ratio.append(whole / parse);
    }
    std::printf("%7d rows x %d  %9.1f KB  fromJson %8.2f ms  table %8.2f ms  ratio %5.2f\n", rows, kColumns,
                bytes.size() / 1024.0, median(alone), median(road), median(ratio));
}
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    TFSubjectTableWidget table(nullptr, false);
    table.initLayout();
    table.setViewId(260);
    table.resize(1400, 800);
    table.show();
    table.parseConfig(configuration(), true);
    measure(&table, 200, 200);
    measure(&table, 100000, 7);
    return 0;
}
