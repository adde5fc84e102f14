#include "replies.h"

#include "comparison.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {
constexpr int Texts = 10;
constexpr int TextsAndFigures = 25;
constexpr int FirstFigure = Texts;

QString jsonText(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QJsonObject field(int column, const QString &unbound)
{
    const char *type = column < Texts ? "String" : column < TextsAndFigures ? "Decimal" : "DateTime";
    QJsonObject field{{"FieldName", Bench::fieldName(column)},
                      {"Caption", Bench::fieldName(column)},
                      {"ValueType", type},
                      {"Visible", true},
                      {"Width", 90}};
    if (column == FirstFigure && !unbound.isEmpty())
        field.insert("UnboundExpression", unbound);
    return field;
}

QJsonValue cellValue(int row, int column)
{
    if (column < Texts)
        return QStringLiteral("text %1").arg(row * column);
    return column < TextsAndFigures ? row * 1.25 + column : 1577808000000.0 + row * 86400000.0;
}
} // namespace

QString Bench::fieldName(int column)
{
    return QStringLiteral("FIELD_NAME_%1").arg(column, 2, 10, QLatin1Char('0'));
}

QJsonObject Bench::configuration(const QString &unbound)
{
    QJsonArray bands, objects;
    for (int column = 0; column < Columns; ++column) {
        const QJsonObject band = field(column, unbound);
        bands.append(band);
        objects.append(QJsonObject{{"obj_prop_name", fieldName(column)},
                                   {"vw_sts", "1"},
                                   {"ots_cfg", QString::fromUtf8(QJsonDocument(band).toJson())}});
    }
    const QJsonArray view{
        QJsonObject{{"obj_vw_id", ViewId},
                    {"prop_typ", "EXTEND"},
                    {"prop_name", "Bands"},
                    {"ext_prop_val", jsonText(bands)}},
        QJsonObject{{"obj_vw_id", ViewId}, {"prop_name", "FrozenCount"}, {"prop_val", "1"}}};
    return {{"View_Config", view}, {"Object_View_Config", objects}};
}

QByteArray Bench::reply(int rows)
{
    QJsonArray data;
    for (int row = 0; row < rows; ++row) {
        QJsonObject object;
        for (int column = 0; column < Columns; ++column)
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

double Bench::parseTime(const QByteArray &json)
{
    QJsonDocument document;
    return milliseconds([&] { document = QJsonDocument::fromJson(json); });
}
