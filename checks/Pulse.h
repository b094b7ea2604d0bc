#pragma once

#include <QElapsedTimer>

#include <functional>

namespace brenix {

/// Whether a long loop is to go on. It is asked about every 10 ms, which is the moment to let
/// events run and to look whether the user wants to stop.
using GoOn = std::function<bool()>;

/// Counts the steps of a loop and asks at the right times.
class Pulse
{
public:
    /// Without a function the loop always goes on.
    explicit Pulse(GoOn goOn)
        : m_goOn(std::move(goOn))
    {
        m_timer.start();
    }

    /// To be called for each small step, such as a word or a tag; false when the loop is to stop.
    bool Step() { return !m_stopped && ((++m_steps % StepsPerLook) != 0 || Look()); }
    /// As `Step`, for one that takes a while, such as a file.
    bool LongStep() { return !m_stopped && Look(); }
    /// To be called where a piece of work is done; false when the loop is to stop.
    bool Ask()
    {
        m_timer.restart();
        m_stopped = m_stopped || (m_goOn && !m_goOn());
        return !m_stopped;
    }
    /// It was told to stop; it is never asked again then.
    bool Stopped() const { return m_stopped; }

private:
    static constexpr unsigned StepsPerLook = 4096;
    static constexpr qint64 Milliseconds = 10;

    bool Look() { return m_timer.elapsed() < Milliseconds || Ask(); }

    GoOn m_goOn;
    QElapsedTimer m_timer;
    unsigned m_steps = 0;
    bool m_stopped = false;
};

} // namespace brenix
