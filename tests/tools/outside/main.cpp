// Reads a configuration document and shows its columns in the plug-in's own widgets, as an embedding program would.

#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfheaderdatastruct.h"
#include "pagination/tfpaginationbar.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QByteArray document = R"({"View_Config": [{"prop_typ": "EXTEND", "prop_name": "Bands",
        "ext_prop_val": "[{\"FieldName\":\"NAME\",\"Caption\":\"Name\",\"Visible\":true}]"}],
        "Data": [{"NAME": "alpha"}]})";
    TFTreeStruct header{QString()};
    TFSubject::TFJsonParser parser;
    const bool read = parser.parseConfig(QJsonDocument::fromJson(document).object(), &header);

    TFPaginationBar bar;
    bar.show();
    QTextStream(stdout) << header.leafCaptions().join(',') << ' ' << parser.rows().size() << '\n';
    return read && parser.rows().size() == 1 && header.leafCaptions() == QStringList{"Name"} ? 0 : 1;
}
