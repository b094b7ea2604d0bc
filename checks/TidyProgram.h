#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QProcess;

namespace brenix {

/// Tidy, the program that checks and corrects pages, run beside the editor and never by a shell.
/// All that counts goes through files: it gets nothing on its input, and what it writes on its
/// output is dropped. It speaks English, and ends with this object, together with all that it has
/// started.
class TidyProgram : public QObject
{
    Q_OBJECT

public:
    enum class End {
        Finished, ///< with an exit status of its own
        Missing, ///< there is no such program, or it cannot be started
        Broken, ///< it crashed, was killed, or wrote more than `LargestFile` into a file
    };
    /// 0: the page is right; 1: with warnings; 2: with errors that Tidy does not correct, so that
    /// it writes no page. Any other status is none of Tidy's.
    static constexpr int PageIsLeft = 2;
    /// No file that it writes gets larger, in bytes: the exchange directories may lie in memory.
    static constexpr qint64 LargestFile = qint64(64) << 20;

    using QObject::QObject;
    ~TidyProgram() override { Stop(); }

    /// "Tidy/tidydbg" of the application directory, else "tidy" on the path; empty when neither can
    /// be run.
    static QString Path();

    /// `ended` is called once, from the event loop; `exitStatus` counts where the end is
    /// `Finished`. A run that is under way is stopped first.
    void Start(const QStringList &arguments, std::function<void(End end, int exitStatus)> ended);
    bool IsRunning() const { return m_process != nullptr; }
    /// Nobody is told of the end of a run that was stopped.
    void Stop();

private:
    void Finish(End end, int exitStatus);

    QProcess *m_process = nullptr; // only while it runs
    std::function<void(End end, int exitStatus)> m_ended;
};

} // namespace brenix
