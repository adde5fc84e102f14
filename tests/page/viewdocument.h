#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>

/// Configuration documents and rows as the service delivers them, for tests.
struct ViewDocument
{
    struct Field
    {
        QString name;
        QString valueType = "String";
        QString columnType = QString();
        QString band = QString(); ///< field of the band over it
        bool isVisible = true;
        QJsonObject further = {}; ///< keys of the field's settings beside these
    };
    struct Child
    {
        qint64 id;
        QString caption;
        QString links = QString();
    };

    qint64 id = 260;
    QString name = "视图";
    QList<Field> fields = {{"CODE"}, {"NAME"}, {"PRICE", "Decimal"}};
    QList<Child> children = {};
    QJsonArray filters = {};
    QMap<QString, QString> properties = {};

    QJsonObject config() const
    {
        QJsonArray bands, objects, related;
        for (const Field &field : fields) {
            const QString link = field.columnType == "HyperLinkEdit" ? "view://subjectpage?code=${CODE}" : "";
            QJsonObject settings{{"FieldName", field.name},
                                 {"Caption", field.name},
                                 {"ValueType", field.valueType},
                                 {"ColumnType", field.columnType},
                                 {"Visible", field.isVisible},
                                 {"OwnerBand", field.band},
                                 {"Width", 90},
                                 {"Url", link}};
            for (auto key = field.further.begin(); key != field.further.end(); ++key)
                settings.insert(key.key(), key.value());
            bands.append(settings);
            objects.append(QJsonObject{{"obj_prop_name", field.name},
                                       {"vw_sts", field.isVisible ? "1" : "0"},
                                       {"ots_cfg", QString::fromUtf8(QJsonDocument(settings).toJson())}});
        }
        for (const Child &child : children)
            related.append(QJsonObject{{"Caption", child.caption},
                                       {"Propertyparams", child.links},
                                       {"ObjShowName", QString::number(child.id)}});
        QJsonArray view{extension("Bands", bands), extension("childView", related),
                        extension("filters", filters)};
        for (auto entry = properties.begin(); entry != properties.end(); ++entry)
            view.append(QJsonObject{{"prop_name", entry.key()}, {"prop_val", entry.value()}});
        return {{"View_Config", view},
                {"Object_View_Config", objects},
                {"Object_View", QJsonArray{QJsonObject{{"obj_vw_name", name}}}}};
    }

    /// One page: rows from number \a first, with values such as "CODE3".
    QJsonObject rows(int first, int count, int total, int page = 1, int size = 200) const
    {
        QJsonArray data;
        for (int i = first; i < first + count; ++i) {
            QJsonObject row;
            for (const Field &field : fields)
                row.insert(field.name, field.valueType == "Decimal"
                                           ? QJsonValue(i)
                                           : QJsonValue(field.name + QString::number(i)));
            data.append(row);
        }
        const QJsonArray summary{QJsonObject{{"Item", "rcount"}, {"value", total}},
                                 QJsonObject{{"Item", "pindex"}, {"value", page}},
                                 QJsonObject{{"Item", "psize"}, {"value", size}}};
        return {{"Data", data}, {"Summary", summary}};
    }

private:
    static QJsonObject extension(const QString &name, const QJsonArray &content)
    {
        return {{"prop_typ", "EXTEND"},
                {"prop_name", name},
                {"ext_prop_val", QString::fromUtf8(QJsonDocument(content).toJson())}};
    }
};
