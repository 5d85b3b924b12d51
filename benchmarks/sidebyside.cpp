#include "sidebyside.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>
#include <vector>

namespace
{

constexpr char referenceCounter[] = "reference_s";
constexpr char libraryCounter[] = "library_s";
constexpr char ratioCounter[] = "ratio";
constexpr char styleEventsCounter[] = "style_events";

double processorTime()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

Stopwatch::Stopwatch()
    : m_start(processorTime())
{
}

double Stopwatch::seconds() const
{
    return processorTime() - m_start;
}

void runSideBySide(benchmark::State &state, const Side &reference, const Side &library)
{
    // What only the first run pays (fonts, pictures) belongs to neither side.
    reference();
    library();

    std::vector<double> referenceTimes;
    std::vector<double> libraryTimes;
    std::vector<double> ratios;
    bool isReferenceFirst = true;
    for (auto _ : state) {
        double referenceTime = 0;
        double libraryTime = 0;
        if (isReferenceFirst)
            referenceTime = reference();
        libraryTime = library();
        if (!isReferenceFirst)
            referenceTime = reference();
        isReferenceFirst = !isReferenceFirst;

        referenceTimes.push_back(referenceTime);
        libraryTimes.push_back(libraryTime);
        ratios.push_back(libraryTime / referenceTime);
        state.SetIterationTime(libraryTime);
    }
    state.counters[referenceCounter] = median(std::move(referenceTimes));
    state.counters[libraryCounter] = median(std::move(libraryTimes));
    state.counters[ratioCounter] = median(std::move(ratios));
}

void setStyleEvents(benchmark::State &state, int count)
{
    state.counters[styleEventsCounter] = count;
}

bool RatioTable::ReportContext(const Context &context)
{
    m_nameWidth = int(context.name_field_width);
    std::printf("%-*s %6s %14s %14s %7s %13s\n", m_nameWidth, "", "pairs", "reference (ms)",
                "library (ms)", "ratio", "style events");
    return true;
}

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        // The fixed number of pairs that the name ends with has a column of its own.
        benchmark::BenchmarkName name = run.run_name;
        name.iterations.clear();
        name.time_type.clear();
        std::printf("%-*s ", m_nameWidth, name.str().c_str());
        if (run.error_occurred) {
            m_hasErrors = true;
            std::printf("not measured: %s\n", run.error_message.c_str());
            continue;
        }
        constexpr double milliseconds = 1000;
        std::printf("%6lld %14.3f %14.3f %7.3f", static_cast<long long>(run.iterations),
                    milliseconds * run.counters.at(referenceCounter),
                    milliseconds * run.counters.at(libraryCounter),
                    double(run.counters.at(ratioCounter)));
        const auto styleEvents = run.counters.find(styleEventsCounter);
        if (styleEvents != run.counters.end())
            std::printf(" %13.0f", double(styleEvents->second));
        std::printf("\n");
        std::fflush(stdout);
    }
}

bool RatioTable::hasErrors() const
{
    return m_hasErrors;
}
