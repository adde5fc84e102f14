#include "comparison.h"

#include <QElapsedTimer>
#include <QFile>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <malloc.h>

namespace {
double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

QString figure(double value, const char *unit)
{
    return QString::asprintf("%.*f %s", value < 10 ? 3 : 1, value, unit);
}

/// A line of /proc/self/status that is in kB, as bytes.
size_t statusBytes(const QByteArray &name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith(name + ':'))
                return line.mid(name.size() + 1).simplified().split(' ').first().toULongLong() * 1024;
        }
    }
    qFatal("%s can't be read", name.constData());
}

void append(const QString &line)
{
    const QString path = qEnvironmentVariable("SUBJECTPAGE_BENCH_TABLE");
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::Append) || file.write(line.toUtf8()) < 0)
        qFatal("%s can't be written: %s", qPrintable(path), qPrintable(file.errorString()));
}
} // namespace

double Bench::milliseconds(const std::function<void()> &work, int times)
{
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < times; ++i)
        work();
    return double(clock.nsecsElapsed()) / 1e6 / times;
}

size_t Bench::allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

size_t Bench::peakBytes(const std::function<void()> &work)
{
    malloc_trim(0);
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    if (!reset.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || reset.write("5") != 1)
        qFatal("the peak can't be reset");
    const size_t before = statusBytes("VmRSS");
    work();
    return statusBytes("VmHWM") - before;
}

Bench::Result Bench::compare(const Goal &goal, int rounds, const std::function<void()> &base,
                             const std::function<void()> &work, int times)
{
    return compareTimed(
        goal, rounds, [&] { return milliseconds(base, times); }, [&] { return milliseconds(work, times); });
}

Bench::Result Bench::compareTimed(const Goal &goal, int rounds, const std::function<double()> &base,
                                  const std::function<double()> &work)
{
    QVector<double> bases, works, ratios;
    for (int round = -1; round < rounds; ++round) {
        const double first = base();
        const double second = work();
        if (round < 0)
            continue;
        bases.append(first);
        works.append(second);
        ratios.append(second / first);
    }
    const Result result{median(works), median(bases), median(ratios)};
    report(goal, result);
    return result;
}

void Bench::report(const Goal &goal, const Result &result)
{
    const QString verdict = goal.most <= 0              ? QStringLiteral("-")
                            : result.ratio <= goal.most ? QStringLiteral("met")
                                                        : QStringLiteral("MISSED");
    const QStringList fields{goal.work,
                             figure(result.ours, result.unit),
                             goal.base + QLatin1String(": ") + figure(result.base, result.unit),
                             QString::asprintf("%.3f", result.ratio),
                             goal.most > 0 ? QString::number(goal.most) : QStringLiteral("-"),
                             verdict};
    std::printf("%s\n", qPrintable(fields.join(QLatin1String(" | "))));
    std::fflush(stdout);
    append(fields.join(QLatin1Char('\t')) + QLatin1Char('\n'));
}
