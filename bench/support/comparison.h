#pragma once

#include <QString>

#include <functional>

/// What every benchmark shares: ratios of two works that run in turns in one process, and one line for each.
///
/// A line goes to the standard output; where the environment variable SUBJECTPAGE_BENCH_TABLE names a file,
/// it is also appended there, its fields (work, ours, base, ratio, goal, verdict) separated by tabulators.
/// `bench/compare` makes its table of that file.
namespace Bench {

/// What a ratio is called and the most that it may be; a goal of 0 is a figure to report without one.
struct Goal
{
    QString work; ///< what is measured
    QString base; ///< what it is measured against
    double most;
};

/// A figure of each side, and the median of their ratios; \a unit follows both figures, "ms" or "MB".
struct Result
{
    double ours;
    double base;
    double ratio;
    const char *unit = "ms";
};

/// Milliseconds that \a work takes, the mean of \a times runs of it.
double milliseconds(const std::function<void()> &work, int times = 1);

/// Bytes that the process holds on its heap.
size_t allocatedBytes();

/// Bytes of memory that \a work had in use at its most, beyond those in use before it.
size_t peakBytes(const std::function<void()> &work);

/// Runs \a base and \a work in turns, \a times runs of each a round, after one round to warm up; reports and
/// returns the medians over the rounds.
Result compare(const Goal &goal, int rounds, const std::function<void()> &base,
               const std::function<void()> &work, int times = 1);

/// The same with works that measure themselves and return their milliseconds.
Result compareTimed(const Goal &goal, int rounds, const std::function<double()> &base,
                    const std::function<double()> &work);

void report(const Goal &goal, const Result &result);

} // namespace Bench
