#include "checks/GlobalReplace.h"

#include "checks/FolderWalk.h"
#include "support/AuthorFile.h"
#include "support/TextCodec.h"

#include <QDir>
#include <QStringBuilder>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    /// Files that wait for the disk together, so many and so large at most.
    constexpr size_t BatchFiles = 128;
    constexpr qsizetype BatchBytes = 16'000'000;

    bool IsLineEnd(QChar unit)
    {
        return unit == u'\r' || unit == u'\n';
    }

    /// The lines of a text, without their ends; one behind the last line end only where there is
    /// text.
    class Lines
    {
    public:
        explicit Lines(QStringView text)
            : m_text(text)
        {
        }

        bool Next()
        {
            if (m_next >= m_text.size())
                return false;
            m_start = m_next;
            m_end = m_start;
            while (m_end < m_text.size() && !IsLineEnd(m_text[m_end]))
                ++m_end;
            m_next = m_end + (m_text.sliced(m_end).startsWith(u"\r\n") ? 2 : 1);
            return true;
        }
        QStringView Line() const { return m_text.sliced(m_start, m_end - m_start); }
        qsizetype End() const { return m_end; }

    private:
        QStringView m_text;
        qsizetype m_start = 0;
        qsizetype m_end = 0;
        qsizetype m_next = 0;
    };

    class Replacer
    {
    public:
        Replacer(const GlobalReplaceJob &job, const GlobalReplaceListener &listener)
            : m_job(job)
            , m_sought(job.find)
            , m_listener(listener)
            , m_pulse(listener.goOn)
        {
        }

        std::optional<int> Run();

    private:
        struct Waiting
        {
            QString file;
            QStringList log;
            bool isWritten = false; ///< a file of the batch; else it cannot be edited
        };

        std::optional<QStringList> FilesWithText();
        bool HoldsText(const QString &path) const;
        bool Prepare(const QString &file);
        void Finish();

        void Report(const QString &line) const
        {
            if (m_listener.report)
                m_listener.report(line);
        }
        void ReportFailure(const QString &file) const;
        void ShowProgress(int done, qsizetype all) const
        {
            if (m_listener.progress)
                m_listener.progress(done, int(all));
        }

        const GlobalReplaceJob &m_job;
        const TextSearch m_sought;
        const GlobalReplaceListener &m_listener;
        Pulse m_pulse;
        AuthorFileBatch m_batch{AuthorFileBatch::Purpose::ReplaceMany};
        std::vector<Waiting> m_waiting;
        qsizetype m_waitingBytes = 0;
    };

    bool Replacer::HoldsText(const QString &path) const
    {
        const FileContent file = ReadAuthorFile(path);
        return file.error.isEmpty() && m_sought.StandsIn(DecodePage(file.bytes, m_job.codec).text);
    }

    std::optional<QStringList> Replacer::FilesWithText()
    {
        const bool isFindable = !m_job.find.isEmpty() && !m_job.folder.isEmpty()
            && std::none_of(m_job.find.begin(), m_job.find.end(), IsLineEnd);
        QStringList found;
        if (!isFindable)
            return found;
        const QDir folder(m_job.folder);
        for (const QString &name : FilesIn(m_job.folder, m_job.type, m_pulse)) {
            if (!m_pulse.LongStep())
                return std::nullopt;
            if (HoldsText(folder.filePath(name)))
                found += name;
        }
        return found;
    }

    /// False when it was stopped.
    bool Replacer::Prepare(const QString &file)
    {
        Waiting waiting{.file = file, .log = {}};
        const FileContent content = ReadAuthorFile(file);
        const DecodedPage page = DecodePage(content.bytes, m_job.codec);
        if (content.error.isEmpty() && page.faithful) {
            std::optional<ReplacedPage> replaced
                = ReplaceInLines(page.text, m_sought, m_job.replacement, file, m_pulse);
            if (!replaced)
                return false;
            // Changed by somebody else meanwhile.
            if (replaced->log.isEmpty())
                return true;
            const EncodedPage encoded = EncodePage(replaced->text, page.encoding);
            waiting.isWritten = encoded.firstUnencodable < 0;
            waiting.log = std::move(replaced->log);
            if (waiting.isWritten)
                m_batch.Add(file, encoded.bytes);
            m_waitingBytes += encoded.bytes.size();
        }
        m_waiting.push_back(std::move(waiting));
        return true;
    }

    void Replacer::Finish()
    {
        const QStringList errors = m_batch.PutInPlace();
        auto error = errors.begin();
        for (const Waiting &waiting : std::exchange(m_waiting, {})) {
            const bool isDone = waiting.isWritten && (error++)->isEmpty();
            for (const QString &line : waiting.log)
                Report(line);
            if (!isDone)
                ReportFailure(waiting.file);
        }
        m_waitingBytes = 0;
    }

    void Replacer::ReportFailure(const QString &file) const
    {
        const QString message = u"Brenix can't edit the file '%1'"_s.arg(file);
        if (m_listener.cannotEdit)
            m_listener.cannotEdit(message + u". Check if the file is a 'Read Only' file"_s);
        Report(u"Error: "_s + message);
    }

    std::optional<int> Replacer::Run()
    {
        Report(u"Searching through "_s + m_job.folder);
        Report({});
        ShowProgress(0, 0);
        const std::optional<QStringList> names = FilesWithText();
        if (!names)
            return std::nullopt;
        // Kept as it is: the number told is one more than the number of files.
        int number = names->isEmpty() ? 0 : 1;
        for (const QString &name : *names) {
            if (!m_pulse.LongStep() || !Prepare(m_job.folder + QDir::separator() + name))
                return std::nullopt;
            ShowProgress(number++, names->size());
            if (m_waiting.size() >= BatchFiles || m_waitingBytes >= BatchBytes)
                Finish();
        }
        Finish();
        ShowProgress(0, 0);
        Report(u"---------"_s);
        Report(u"Text in %1 files"_s.arg(number));
        return number;
    }

} // namespace

std::optional<ReplacedPage> ReplaceInLines(const QString &text,
                                           const TextSearch &sought,
                                           const QString &replacement,
                                           const QString &file,
                                           Pulse &pulse)
{
    ReplacedPage page;
    page.text.reserve(text.size());
    qsizetype hit = sought.FindIn(text);
    int number = 0;
    for (Lines lines(text); lines.Next();) {
        if (!pulse.Step())
            return std::nullopt;
        ++number;
        const QStringView old = lines.Line();
        if (hit < 0 || hit >= lines.End()) {
            page.text += old % u"\r\n";
            continue;
        }
        const QString now = ReplaceAll(old, sought, replacement);
        page.log += u"In file: '%1', In line: '%2',  Was '%3', Now '%4'"_s.arg(
            file, QString::number(number), old, now);
        page.text += now % u"\r\n";
        hit = sought.FindIn(text, lines.End());
    }
    return page;
}

std::optional<int> GlobalReplace(const GlobalReplaceJob &job, const GlobalReplaceListener &listener)
{
    return Replacer(job, listener).Run();
}

} // namespace brenix
