#include "bench/Corpus.h"
#include "bench/Measure.h"
#include "checks/GlobalReplace.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr int Files = 2000;
    constexpr int Hits = 1500;
    constexpr qsizetype FileSize = 10 * Kilobyte;
    constexpr int Turns = 9;
    constexpr double Target = 1; // times what the stream editor needs

    const QString Word = u"qzwx"_s;

    /// A folder of pages of which each but the last ones holds the word once.
    class Site
    {
    public:
        Site()
        {
            QByteArray pages = Html(5 * Megabyte);
            pages.replace(Word.toLatin1(), "");
            for (int i = 0; i < Files; ++i) {
                const qsizetype start = qint64(i) * 618033 % (pages.size() - FileSize);
                QByteArray page = pages.mid(start, FileSize);
                if (i < Hits)
                    page.insert(page.indexOf('\n', FileSize / 2), " Qzwx ");
                m_pages += page;
            }
        }

        QString Path() const { return m_folder.path(); }

        /// Writes the pages anew, and waits until nothing of it is left to do.
        bool Restore() const
        {
            const QDir folder(Path());
            for (int i = 0; i < Files; ++i) {
                QFile file(folder.filePath(u"page%1.html"_s.arg(i)));
                if (!file.open(QIODevice::WriteOnly) || file.write(m_pages[i]) != m_pages[i].size())
                    return false;
            }
            ::sync();
            return true;
        }

    private:
        QTemporaryDir m_folder;
        QByteArrayList m_pages;
    };

    bool RunStreamEditor(const QString &folder)
    {
        QProcess editor;
        editor.setWorkingDirectory(folder);
        editor.start(u"sh"_s, {u"-c"_s, u"exec sed -i s/%1/replaced/gI *.html"_s.arg(Word)});
        return editor.waitForFinished(-1) && editor.exitCode() == 0;
    }

    bool RunReplace(const QString &folder)
    {
        QStringList report;
        const auto number
            = brenix::GlobalReplace({.folder = folder,
                                     .type = u"*.html"_s,
                                     .find = Word,
                                     .replacement = u"replaced"_s,
                                     .codec = "windows-1250"},
                                    {.report = [&report](const QString &line) { report += line; },
                                     .cannotEdit = {},
                                     .progress = {},
                                     .goOn = {}});
        return number == Hits + 1 && report.size() == Hits + 4;
    }

    void ReplaceInFolder(benchmark::State &state)
    {
        const Site site;
        Floor floor(Html(5 * Megabyte));
        Samples ours;
        Samples theirs;
        bool isRight = true;
        for ([[maybe_unused]] auto turn : state) {
            floor.Sample();
            isRight &= site.Restore();
            theirs.Add(SecondsOf([&] { isRight &= RunStreamEditor(site.Path()); }));
            isRight &= site.Restore();
            const double seconds = SecondsOf([&] { isRight &= RunReplace(site.Path()); });
            state.SetIterationTime(seconds);
            ours.Add(seconds);
        }
        if (!isRight)
            return state.SkipWithError("the replacement failed");
        Row row(state);
        row.Times(ours, floor);
        row.Target(u"times sed -i"_s, ours.Median() / theirs.Median(), Target);
    }

} // namespace

void RegisterReplacing()
{
    benchmark::RegisterBenchmark("Replace/2000 files, 1500 hits", ReplaceInFolder)
        ->Iterations(Turns)
        ->UseManualTime();
}

} // namespace bench
