#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>
#include <private/qzipreader_p.h>

/// A workbook as a second reader sees it: unzips the file and reads its first sheet, without the library that
/// wrote it.
class ExportedWorkbook
{
public:
    explicit ExportedWorkbook(const QString &path)
        : m_zip(path)
    {
        readTexts();
        readFormats();
        readSheet();
    }

    /// One string a row, one "cell value" each with the short name of its number format: 'd', 'i', 't' for a
    /// double, an integer, a date. Texts stand in quotes, '*' marks bold.
    QStringList rows() const { return m_rows.values(); }
    QStringList merges; ///< in the order of the sheet
    QString widths;     ///< such as "1-3:25"
    bool isCentred = true;

private:
    struct Format
    {
        QString mark;
        bool isCentred;
    };

    template <typename F> void forEachElement(const QString &part, F take)
    {
        const QByteArray text = m_zip.fileData(part);
        if (text.isEmpty())
            return;
        QXmlStreamReader xml(text);
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement)
                take(xml);
        }
        if (xml.hasError())
            m_rows.insert(-1, part + ": " + xml.errorString());
    }

    void readTexts()
    {
        forEachElement("xl/sharedStrings.xml", [this](QXmlStreamReader &xml) {
            if (xml.name() == QLatin1String("si"))
                m_texts.append(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        });
    }

    void readFormats()
    {
        const QHash<QString, QString> marks{
            {"#,##0.00######;-#,##0.00######", " d"}, {"#,##0;-#,##0", " i"}, {"yyyy-MM-dd", " t"}};
        QHash<QString, QString> codes{{"0", ""}};
        QList<bool> fonts;
        bool isInCells = false;
        forEachElement("xl/styles.xml", [&](QXmlStreamReader &xml) {
            const QXmlStreamAttributes a = xml.attributes();
            if (xml.name() == QLatin1String("numFmt"))
                codes.insert(a.value("numFmtId").toString(),
                             marks.value(a.value("formatCode").toString(), " ?"));
            else if (xml.name() == QLatin1String("font"))
                fonts.append(false);
            else if (xml.name() == QLatin1String("b") && !fonts.isEmpty())
                fonts.last() = true;
            else if (xml.name() == QLatin1String("cellXfs"))
                isInCells = true;
            else if (xml.name() == QLatin1String("cellStyles"))
                isInCells = false;
            else if (isInCells && xml.name() == QLatin1String("xf"))
                m_formats.append({codes.value(a.value("numFmtId").toString(), " ?") +
                                      (fonts.value(a.value("fontId").toInt()) ? "*" : ""),
                                  false});
            else if (isInCells && xml.name() == QLatin1String("alignment"))
                m_formats.last().isCentred = a.value("horizontal") == QLatin1String("center") &&
                                             a.value("vertical") == QLatin1String("center");
        });
    }

    void readSheet()
    {
        forEachElement("xl/worksheets/sheet1.xml", [this](QXmlStreamReader &xml) {
            const QXmlStreamAttributes a = xml.attributes();
            if (xml.name() == QLatin1String("col"))
                widths += QString("%1-%2:%3 ").arg(a.value("min"), a.value("max"), a.value("width"));
            else if (xml.name() == QLatin1String("mergeCell"))
                merges.append(a.value("ref").toString());
            else if (xml.name() == QLatin1String("c"))
                readCell(xml);
        });
        widths = widths.trimmed();
    }

    void readCell(QXmlStreamReader &xml)
    {
        const QXmlStreamAttributes a = xml.attributes();
        const QString name = a.value("r").toString();
        const Format format = m_formats.value(a.value("s").toInt());
        isCentred = isCentred && format.isCentred;
        const QString content = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        const bool isShared = a.value("t") == QLatin1String("s");
        if (content.isEmpty() && !isShared)
            return; // covered by a merge
        QString &row = m_rows[name.mid(name.indexOf(QRegExp("\\d"))).toInt()];
        if (!row.isEmpty())
            row += " | ";
        row += name + ' ' + (isShared ? '\'' + m_texts.value(content.toInt()) + '\'' : content) + format.mark;
    }

    QZipReader m_zip;
    QStringList m_texts;
    QList<Format> m_formats;
    QMap<int, QString> m_rows;
};
