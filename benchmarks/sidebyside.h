#ifndef SIDEBYSIDE_H
#define SIDEBYSIDE_H

#include <benchmark/benchmark.h>

#include <functional>

/// Processor time since its making. The time that a busy machine gives to others does not count.
class Stopwatch
{
public:
    Stopwatch();
    double seconds() const;

private:
    double m_start;
};

/// Does its work once and returns the processor time in seconds of what is to be measured.
using Side = std::function<double()>;

/// Measures the library beside its reference. Each iteration is a pair that runs both sides, in
/// turns the one and the other first, so that whatever slows the machine slows both. The medians
/// and the median of the pairs' ratios become counters of \a state, which RatioTable prints.
void runSideBySide(benchmark::State &state, const Side &reference, const Side &library);

/// Adds a count that the table shows beside the ratio.
void setStyleEvents(benchmark::State &state, int count);

/// Prints a line for each benchmark: its two medians and their ratio.
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

    /// Whether a benchmark could not be measured.
    bool hasErrors() const;

private:
    int m_nameWidth = 0;
    bool m_hasErrors = false;
};

#endif // SIDEBYSIDE_H
