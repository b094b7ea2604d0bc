#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

/// Runs the events of the program until the condition holds; false when it does not within half a
/// minute.
inline bool Await(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(30'000);
    QEventLoop loop;
    QTimer pulse;
    pulse.callOnTimeout(&loop, [&] {
        if (condition() || deadline.hasExpired())
            loop.quit();
    });
    pulse.start(5);
    loop.exec();
    return condition();
}
