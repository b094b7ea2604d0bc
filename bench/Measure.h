#pragma once

#include <QByteArray>
#include <QStringList>

#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

namespace bench {

/// Seconds that `body` takes.
template <typename Body> double SecondsOf(const Body &body)
{
    const auto start = std::chrono::steady_clock::now();
    body();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Measured times. Other programs disturb single ones, so that the median counts.
class Samples
{
public:
    void Add(double seconds) { m_seconds.push_back(seconds); }
    double Median() const { return At(0.5); }
    /// The time that the given share of the samples stays under; 0 when there are none.
    double At(double share) const;

private:
    std::vector<double> m_seconds;
};

/// What the machine needs at the least to go over some bytes: to copy them, and to look for "<" in
/// them.
class Floor
{
public:
    explicit Floor(QByteArray bytes);
    /// Measures both once. Called between the samples of what is compared with it, so that a busy
    /// machine slows down both alike.
    void Sample();
    double Copy() const { return m_copy.Median(); }
    double Scan() const { return m_scan.Median(); }

private:
    QByteArray m_bytes;
    QByteArray m_target;
    Samples m_copy;
    Samples m_scan;
};

/// The row of a benchmark in the table.
class Row
{
public:
    explicit Row(benchmark::State &state)
        : m_state(state)
    {
    }
    /// Median and 95th percentile, the floor beside them, and the ratio to it.
    void Times(const Samples &samples, const Floor &floor);
    /// What was found and what was aimed at, as part of the remark at the row's end.
    void Target(const QString &what, double found, double target);
    void Remark(const QString &text);

private:
    benchmark::State &m_state;
    QStringList m_remarks;
};

/// The whole loop of a benchmark: times `body` and the floor in turn.
template <typename Body> Samples MeasureInTurn(benchmark::State &state, Floor &floor, Body body)
{
    Samples samples;
    for ([[maybe_unused]] auto turn : state) {
        floor.Sample();
        const double seconds = SecondsOf(body);
        state.SetIterationTime(seconds);
        samples.Add(seconds);
    }
    return samples;
}

} // namespace bench
