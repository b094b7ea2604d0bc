#include "checks/TidyProgram.h"

#include "support/Paths.h"

#include <QProcess>
#include <QStandardPaths>

#include <utility>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int KillPatience = 2000; // ms; a killed process is gone at once

#ifdef Q_OS_UNIX
    // In the new process, where nothing but system calls is allowed.
    void PrepareProcess()
    {
        ::setpgid(0, 0);
        const rlimit fileSize{TidyProgram::LargestFile, TidyProgram::LargestFile};
        ::setrlimit(RLIMIT_FSIZE, &fileSize);
        ::signal(SIGXFSZ, SIG_DFL); // a signal that is ignored stays so in a new program
        const rlimit noCore{0, 0};
        ::setrlimit(RLIMIT_CORE, &noCore);
#ifdef Q_OS_LINUX
        ::prctl(PR_SET_PDEATHSIG, SIGKILL); // an editor that crashes leaves nothing behind
#endif
    }
#endif

    void Kill(QProcess &process)
    {
#ifdef Q_OS_UNIX
        if (const qint64 group = process.processId(); group > 0)
            ::kill(pid_t(-group), SIGKILL);
#endif
        process.kill(); // the group may not be there yet
        process.waitForFinished(KillPatience);
    }

} // namespace

QString TidyProgram::Path()
{
    const QString own = QStandardPaths::findExecutable(u"tidydbg"_s, {AppPath(u"Tidy")});
    return own.isEmpty() ? QStandardPaths::findExecutable(u"tidy"_s) : own;
}

void TidyProgram::Start(const QStringList &arguments, std::function<void(End, int)> ended)
{
    Stop();
    m_ended = std::move(ended);
    m_process = new QProcess(this);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C"_s);
    m_process->setProcessEnvironment(environment);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
    m_process->setChildProcessModifier(PrepareProcess);
#endif
    // Queued, with the process as the receiver: nothing comes before this function has returned,
    // and nothing after the process was stopped.
    const auto finished = [this](int exitStatus, QProcess::ExitStatus how) {
        Finish(how == QProcess::NormalExit ? End::Finished : End::Broken, exitStatus);
    };
    const auto failed = [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Finish(End::Missing, 0);
    };
    connect(m_process, &QProcess::finished, m_process, finished, Qt::QueuedConnection);
    connect(m_process, &QProcess::errorOccurred, m_process, failed, Qt::QueuedConnection);
    m_process->start(Path(), arguments);
}

void TidyProgram::Finish(End end, int exitStatus)
{
    std::exchange(m_process, nullptr)->deleteLater();
    // Held here: the call may start another run.
    const auto ended = std::exchange(m_ended, {});
    ended(end, exitStatus);
}

void TidyProgram::Stop()
{
    if (!m_process)
        return;
    Kill(*m_process);
    delete std::exchange(m_process, nullptr);
    m_ended = {};
}

} // namespace brenix
