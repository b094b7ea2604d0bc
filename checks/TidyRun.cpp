#include "checks/TidyRun.h"

#include "checks/TidyExchange.h"
#include "checks/TidyProgram.h"
#include "support/AuthorFile.h"
#include "support/MessageBoxes.h"
#include "support/Paths.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProgressDialog>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int Patience = 300; // ms that a run may take before it is shown

    struct Attempt
    {
        char16_t drive;
        const char16_t *preset; // what a preset is copied to, and Tidy is told of
        const char16_t *edited; // what the script editor saves its script as
        const char16_t *page;
    };
    constexpr Attempt Attempts[] = {
        {u'C', u"Config.txt", u"Config.txt", u"TMP.html"},
        // Tidy is told of the preset's file, also where the script was edited.
        {u'C', u"Brenix.dat", u"Brenix2.dat", u"TMP2.HTML"},
        {u'D', u"Brenix.dat", u"Brenix.dat", u"TMP2.HTML"},
    };
    constexpr const char16_t *ReportFile
        = u"error2.txt"; // not that of a check, which may be under way

    enum class Ending { Done, Failed, GivenUp };
    struct Run
    {
        Ending ending = Ending::GivenUp;
        int status = 0;
    };

    Run WaitForTidy(const QStringList &arguments, QWidget *window)
    {
        Run run;
        QEventLoop loop;
        TidyProgram tidy;
        tidy.Start(arguments, [&](TidyProgram::End end, int status) {
            const bool isDone
                = end == TidyProgram::End::Finished && status <= TidyProgram::PageIsLeft;
            run = {isDone ? Ending::Done : Ending::Failed, status};
            loop.quit();
        });
        QTimer::singleShot(Patience, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        if (!tidy.IsRunning())
            return run;
        QProgressDialog progress(u"The script is running..."_s, u"Cancel"_s, 0, 0, window);
        progress.setWindowTitle(u"Brenix"_s);
        progress.setWindowModality(Qt::ApplicationModal);
        progress.setMinimumDuration(0);
        QObject::connect(&progress, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
        progress.show();
        loop.exec();
        return run;
    }

    // The files of one attempt, which are gone when it is over.
    struct Exchange
    {
        Exchange(const Attempt &attempt, TidyScriptPlace place)
            : folder(ExchangeRoot(attempt.drive))
            , configuration(File(attempt.preset))
            , script(place == TidyScriptPlace::Preset ? configuration : File(attempt.edited))
            , page(File(attempt.page))
            , report(File(ReportFile))
        {
        }
        Exchange(const Exchange &) = delete;
        Exchange &operator=(const Exchange &) = delete;
        ~Exchange()
        {
            for (const QString &file : {script, page, report})
                QFile::remove(file);
        }

        QString File(const char16_t *name) const
        {
            return folder + QDir::separator() + QString::fromUtf16(name);
        }
        bool Write(const QString &scriptText, const QString &pageText) const
        {
            return !folder.isEmpty()
                && WriteAuthorFile(script, TidyConfiguration(scriptText)).isEmpty()
                && WriteAuthorFile(page, pageText.toUtf8()).isEmpty();
        }

        const QString folder;
        const QString configuration; // what Tidy is told of
        const QString script;
        const QString page;
        const QString report;
    };

} // namespace

TidyResult RunTidyScript(const QString &script,
                         const QString &page,
                         TidyScriptPlace place,
                         QWidget *window)
{
    for (const Attempt &attempt : Attempts) {
        const Exchange files(attempt, place);
        if (!files.Write(script, page))
            continue;
        const Run run = WaitForTidy(
            TidyRunArguments(script, files.configuration, files.report, files.page), window);
        if (run.ending == Ending::GivenUp)
            return {};
        const QByteArray result = ReadAuthorFile(files.page).bytes;
        if (run.ending == Ending::Failed || result.isEmpty())
            continue;
        MsgBox(u"Script completed!"_s, Buttons::Ok, Icon::Information);
        // A script may have Tidy write a page with errors as well.
        const bool isLeft = run.status == TidyProgram::PageIsLeft && result == page.toUtf8();
        return {TidiedPage(result, page), isLeft};
    }
    TellTidyFailure();
    return {};
}

void TellTidyFailure()
{
    MsgBox(u"Could not execute script!"_s, Buttons::Ok, Icon::Critical);
}

} // namespace brenix
