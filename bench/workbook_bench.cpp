// A large workbook by the export's writer, against the same cells given to the workbook library with nothing
// else done. Both run in turns in processes of their own, so that each has its peak of memory; a ratio is the
// median of the rounds' ratios.

#include "comparison.h"
#include "mulittable/tfheaderdatastruct.h"
#include "tfexcelwritter.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QVector>

#include <xlsxdocument.h>

#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

namespace {
constexpr int RowCount = 100000;
constexpr int Columns = 30;
constexpr int FirstNumber = 10;
constexpr int FirstWhole = 25;
constexpr int Rounds = 5;

using Rows = QList<QList<QVariant>>;

struct Figures
{
    double milliseconds;
    double megabytes;
};

/// Ten texts, fifteen doubles, five whole numbers a row.
Rows makeRows()
{
    Rows rows;
    rows.reserve(RowCount);
    for (int row = 0; row < RowCount; ++row) {
        QList<QVariant> values;
        values.reserve(Columns);
        for (int column = 0; column < Columns; ++column) {
            if (column < FirstNumber)
                values.append(QStringLiteral("text %1").arg(row * column % 5000));
            else if (column < FirstWhole)
                values.append(row * 1.25 + column);
            else
                values.append(row);
        }
        rows.append(values);
    }
    return rows;
}

QXlsx::Format centred(const QString &numberFormat = QString())
{
    QXlsx::Format format;
    format.setHorizontalAlignment(QXlsx::Format::AlignHCenter);
    format.setVerticalAlignment(QXlsx::Format::AlignVCenter);
    if (!numberFormat.isEmpty())
        format.setNumberFormat(numberFormat);
    return format;
}

void writeByLibrary(const Rows &rows, QXlsx::Document &document)
{
    const QXlsx::Format text = centred();
    const QXlsx::Format number = centred(QStringLiteral("#,##0.00######;-#,##0.00######"));
    const QXlsx::Format whole = centred(QStringLiteral("#,##0;-#,##0"));
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < Columns; ++column) {
            const QXlsx::Format &format = column < FirstNumber ? text : column < FirstWhole ? number : whole;
            document.write(row + 2, column + 1, rows.at(row).at(column), format);
        }
    }
}

void writeByExport(const Rows &rows, QXlsx::Document &document)
{
    TFTreeStruct header{QString()};
    for (int column = 0; column < Columns; ++column) {
        HeaderFieldInfo info;
        info.caption = QString::number(column);
        info.visible = true;
        header.addChild(new TFTreeStruct(info));
    }
    TFExcelWritter::writeHeader(document, &header);
    TFExcelWritter::writeData(document, &header, rows);
}

/// Of this process so far. It neither waits nor has a second thread, so that other work on the machine does
/// not count.
double processorMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval &time) { return time.tv_sec * 1e3 + time.tv_usec / 1e3; };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

/// In a process of its own: prints the time and the peak of memory.
int runOne(const QString &way)
{
    const QTemporaryDir folder;
    const Rows rows = makeRows();
    const double start = processorMilliseconds();
    QXlsx::Document document;
    if (way == QLatin1String("library"))
        writeByLibrary(rows, document);
    else
        writeByExport(rows, document);
    if (!document.saveAs(folder.filePath(QStringLiteral("bench.xlsx"))))
        return 1;
    const double time = processorMilliseconds() - start;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%f %f\n", time, double(usage.ru_maxrss) / 1024);
    return 0;
}

Figures measure(const QString &way)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {way});
    process.waitForFinished(-1);
    const QList<QByteArray> figures = process.readAllStandardOutput().simplified().split(' ');
    if (process.exitCode() != 0 || figures.size() != 2)
        qFatal("the workbook could not be written");
    return {figures.at(0).toDouble(), figures.at(1).toDouble()};
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc > 1)
        return runOne(QString::fromUtf8(argv[1]));
    Figures library{}, ours{};
    QVector<double> memories;
    Bench::compareTimed(
        {QStringLiteral("workbook, %1 rows x %2").arg(RowCount).arg(Columns), QStringLiteral("QXlsx alone"),
         1.05},
        Rounds,
        [&] {
            library = measure(QStringLiteral("library"));
            return library.milliseconds;
        },
        [&] {
            ours = measure(QStringLiteral("export"));
            memories.append(ours.megabytes / library.megabytes);
            return ours.milliseconds;
        });
    std::sort(memories.begin(), memories.end());
    Bench::report({QStringLiteral("the same, peak of memory"), QStringLiteral("QXlsx alone"), 1.05},
                  {ours.megabytes, library.megabytes, memories.at(memories.size() / 2), "MB"});
    return 0;
}
