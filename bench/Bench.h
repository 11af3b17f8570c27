// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// Figures with budgets. A figure that depends on the machine is measured against a floor: the least that
/// any program would have to do, timed in the same process in turns with the figure. Beside Google
/// Benchmark's own output every row prints one line when the program ends:
///
///     RATIO <name> <figure> <floor> <ratio> <budget> PASS|MISS
///     LIMIT <name> <figure> <budget> PASS|MISS
namespace Bench {
struct Report
{
    std::vector<std::string> lines;
};

inline Report &report()
{
    static Report instance;
    return instance;
}

/// Seconds that `work()` takes; those that it says where it says some.
template <typename Work>
double seconds(Work &&work)
{
    if constexpr (std::is_same_v<decltype(work()), double>)
        return work();
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Seconds of the processor that this thread, or the process, has used. Other programs do not change them.
inline double processorSeconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}
inline double threadSeconds()
{
    return processorSeconds(CLOCK_THREAD_CPUTIME_ID);
}

/// Seconds of the processor that `work()` takes, in all threads.
template <typename Work>
double processSeconds(Work &&work)
{
    const double before = processorSeconds(CLOCK_PROCESS_CPUTIME_ID);
    work();
    return processorSeconds(CLOCK_PROCESS_CPUTIME_ID) - before;
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

inline std::string readable(double seconds)
{
    char text[32];
    if (seconds < 1e-3)
        std::snprintf(text, sizeof text, "%.2fus", seconds * 1e6);
    else
        std::snprintf(text, sizeof text, "%.2fms", seconds * 1e3);
    return text;
}

/// Adds a line for a figure and its floor, in seconds, that were measured in turns.
inline void addRatioLine(const std::string &name, double figure, double floor, double measured, double budget)
{
    char line[256];
    std::snprintf(line, sizeof line, "RATIO %s %s %s %.2f %.2f %s", name.c_str(), readable(figure).c_str(),
                  readable(floor).c_str(), measured, budget, measured <= budget ? "PASS" : "MISS");
    report().lines.push_back(line);
}

/// Registers a row whose time of `figure()` may be at most `budget` times that of `floor()`. The two run in
/// turns, `repetitions` times after one turn that is not counted, and the median of the turns' ratios counts.
template <typename Figure, typename Floor>
void ratio(const std::string &name, double budget, int repetitions, Figure figure, Floor floor)
{
    const auto body = [=](benchmark::State &state) mutable {
        std::vector<double> figures;
        std::vector<double> floors;
        std::vector<double> ratios;
        floor();
        figure();
        for ([[maybe_unused]] auto turn : state) {
            floors.push_back(seconds(floor));
            figures.push_back(seconds(figure));
            ratios.push_back(figures.back() / floors.back());
            state.SetIterationTime(figures.back());
        }
        const double figureTime = median(std::move(figures));
        const double floorTime = median(std::move(floors));
        const double measured = median(std::move(ratios));
        state.counters["floor_ms"] = floorTime * 1e3;
        state.counters["ratio"] = measured;
        addRatioLine(name, figureTime, floorTime, measured, budget);
    };
    benchmark::RegisterBenchmark(name.c_str(), body)
        ->Iterations(repetitions)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

/// Registers a row whose median time of `figure()` may be at most `budget` seconds.
template <typename Figure>
void limit(const std::string &name, double budget, int repetitions, Figure figure)
{
    const auto body = [=](benchmark::State &state) mutable {
        std::vector<double> figures;
        figure();
        for ([[maybe_unused]] auto turn : state) {
            figures.push_back(seconds(figure));
            state.SetIterationTime(figures.back());
        }
        const double measured = median(std::move(figures));
        char line[256];
        std::snprintf(line, sizeof line, "LIMIT %s %s %s %s", name.c_str(), readable(measured).c_str(),
                      readable(budget).c_str(), measured <= budget ? "PASS" : "MISS");
        report().lines.push_back(line);
    };
    benchmark::RegisterBenchmark(name.c_str(), body)
        ->Iterations(repetitions)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

/// Adds a line for a figure that is no time, such as bytes an item.
inline void addLimitLine(const std::string &name, double measured, double budget, const char *unit)
{
    char line[256];
    std::snprintf(line, sizeof line, "LIMIT %s %.2f%s %.2f%s %s", name.c_str(), measured, unit, budget, unit,
                  measured <= budget ? "PASS" : "MISS");
    report().lines.push_back(line);
}

/// Adds a line for what a work takes for twice as much as for once as much. Both return their seconds, of the
/// processor, which other programs do not change; they run in turns, and the median of their ratios counts.
template <typename Once, typename Twice>
void addGrowthLine(const std::string &name, double budget, int repetitions, Once once, Twice twice)
{
    once(); // not counted: the memory and the files are at hand from then on
    twice();
    std::vector<double> ratios;
    for (int i = 0; i < repetitions; ++i) {
        const double least = once();
        ratios.push_back(twice() / least);
    }
    addLimitLine(name + "_twice_as_many", median(ratios), budget, "x");
}

/// Prints the lines of all rows that were measured.
inline void printReport()
{
    for (const std::string &line : report().lines)
        std::printf("%s\n", line.c_str());
}

/// Runs the registered rows and prints their lines. Returns the program's exit status; a missed budget is
/// no failure of the program.
inline int run(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    printReport();
    return 0;
}
} // namespace Bench
