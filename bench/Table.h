#pragma once

#include <benchmark/benchmark.h>

namespace bench {

/// Prints one line for each benchmark: its time, the floor under it, how many times the floor that
/// is, and what it aimed at.
class Table : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
};

} // namespace bench
