// A large workbook by the export's job, against the same cells given to the workbook library with nothing
// else done. Both run in turns in processes of their own, so that each has its peak of memory; a ratio is the
// median of the rounds' ratios.

#include "comparison.h"
#include "mulittable/tfheaderdatastruct.h"
#include "tfexcelwritterjob.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
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
constexpr int PollInterval = 5; ///< milliseconds
constexpr double MostMegabytes = 50;

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

bool writeByLibrary(const Rows &rows, const QString &path)
{
    QXlsx::Document document;
    const QXlsx::Format text = centred();
    const QXlsx::Format number = centred(QStringLiteral("#,##0.00######;-#,##0.00######"));
    const QXlsx::Format whole = centred(QStringLiteral("#,##0;-#,##0"));
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < Columns; ++column) {
            const QXlsx::Format &format = column < FirstNumber ? text : column < FirstWhole ? number : whole;
            document.write(row + 2, column + 1, rows.at(row).at(column), format);
        }
    }
    return document.saveAs(path);
}

bool writeByExport(const Rows &rows, const QString &path)
{
    TFTreeStruct header{QString()};
    for (int column = 0; column < Columns; ++column) {
        HeaderFieldInfo info;
        info.caption = QString::number(column);
        info.visible = true;
        header.addChild(new TFTreeStruct(info));
    }
    const auto job = TFExcelWritterJob::start(path, header, rows);
    while (job->isRunning())
        QThread::msleep(PollInterval);
    return job->state() == TFExcelWritterJob::Saved;
}

/// Of this process so far, so that other work on the machine does not count.
double processorMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval &time) { return time.tv_sec * 1e3 + time.tv_usec / 1e3; };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

double peakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

/// In a process of its own: prints the time and the memory beyond the rows.
int runOne(const QString &way)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.xlsx"));
    const Rows rows = makeRows();
    const double megabytes = peakMegabytes();
    const double start = processorMilliseconds();
    if (!(way == QLatin1String("library") ? writeByLibrary(rows, path) : writeByExport(rows, path)))
        return 1;
    std::printf("%f %f\n", processorMilliseconds() - start, peakMegabytes() - megabytes);
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
    QVector<double> memories;
    Bench::compareTimed(
        {QStringLiteral("workbook, %1 rows x %2").arg(RowCount).arg(Columns), QStringLiteral("QXlsx alone"),
         0.3},
        Rounds, [] { return measure(QStringLiteral("library")).milliseconds; },
        [&] {
            const Figures ours = measure(QStringLiteral("export"));
            memories.append(ours.megabytes);
            return ours.milliseconds;
        });
    std::sort(memories.begin(), memories.end());
    const double memory = memories.at(memories.size() / 2);
    Bench::report({QStringLiteral("the same, memory beyond the rows"), QStringLiteral("50 MB"), 1.0},
                  {memory, MostMegabytes, memory / MostMegabytes, "MB"});
    return 0;
}
