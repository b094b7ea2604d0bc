#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

/// Lets the application work until a condition holds; false when it does not within half a minute.
/// Windows that were closed meanwhile are deleted, as in the event loop of the program.
inline bool WaitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(30'000);
    QTimer pulse;
    pulse.start(5);
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return condition();
}

/// Lets the application do what is due now.
inline void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
