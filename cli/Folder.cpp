// The verbs on a page's folder: its links, the files that it depends on, and replacing in all its
// files.
#include "checks/Estimate.h"
#include "checks/GlobalReplace.h"
#include "checks/Links.h"
#include "checks/QuotedValues.h"
#include "cli/Verb.h"
#include "support/SettingsStore.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    /// Lines on their way to standard output, which gets them a piece at a time.
    class Output
    {
    public:
        void Line(const QString &line)
        {
            m_pending += line + u'\n';
            if (m_pending.size() > Piece)
                Flush();
        }
        /// False when one of the writes failed, for which there was a message.
        bool Finish()
        {
            Flush();
            return m_isWritten;
        }

    private:
        static constexpr qsizetype Piece = 1'000'000;

        void Flush()
        {
            if (m_isWritten && !m_pending.isEmpty())
                m_isWritten = WriteOutput(m_pending);
            m_pending.clear();
        }

        QString m_pending;
        bool m_isWritten = true;
    };

    /// The file of the page; empty for standard input.
    QString PageFile(const QCommandLineParser &parser)
    {
        const QString name = parser.positionalArguments().value(0, u"-"_s);
        return name == u"-" ? QString() : QFileInfo(name).absoluteFilePath();
    }

    /// Where the page's links start from: the folder that was given, else the page's own, else the
    /// current one. Nothing, after a message, when there is no such folder.
    std::optional<QString> StartFolder(const QCommandLineParser &parser)
    {
        const QString given = parser.value(u"folder"_s);
        if (parser.isSet(u"folder"_s) && !QFileInfo(given).isDir()) {
            Complain(u"no folder '%1'"_s.arg(given));
            return std::nullopt;
        }
        const QString page = PageFile(parser);
        if (parser.isSet(u"folder"_s))
            return QDir(given).absolutePath();
        return page.isEmpty() ? QDir::currentPath() : QFileInfo(page).path();
    }

    void AddStartFolder(QCommandLineParser &parser)
    {
        parser.addOption({u"folder"_s,
                          u"Where relative links start from (default: the folder of the page)."_s,
                          u"DIR"_s});
    }

    /// A quote that is missing makes a link of several lines.
    QString OnOneLine(QString link)
    {
        return link.replace(u"\r\n"_s, u" "_s);
    }

    QString TimeLine(const LineSpeed &speed, qint64 total)
    {
        return speed.name + u'\t' + TimeFor(total, speed.divisor).text;
    }

} // namespace

void AddLinksOptions(QCommandLineParser &parser)
{
    AddStartFolder(parser);
}

ExitStatus RunLinks(const QCommandLineParser &parser)
{
    const std::optional<QString> folder = StartFolder(parser);
    const std::optional<QString> text = folder ? ReadInput(parser) : std::nullopt;
    if (!text)
        return Failed;
    Output output;
    bool hasBroken = false;
    QuotedValues links(*text, u"href");
    while (const std::optional<QString> link = links.Next()) {
        const CheckedLink row = CheckLink(*link, LinkFolder(*folder), *folder);
        output.Line(StatusWord(row.status) + u'\t' + OnOneLine(row.link));
        hasBroken |= row.status == LinkStatus::Broken;
    }
    if (!output.Finish())
        return Failed;
    return hasBroken ? Found : Done;
}

void AddEstimateOptions(QCommandLineParser &parser)
{
    AddStartFolder(parser);
    parser.addOption({u"times"_s, u"Lists the time for each line speed behind the report."_s});
}

ExitStatus RunEstimate(const QCommandLineParser &parser)
{
    const std::optional<QString> folder = StartFolder(parser);
    const std::optional<QString> text = folder ? ReadInput(parser) : std::nullopt;
    if (!text)
        return Failed;
    Output output;
    const EstimateListener listener{.report = [&output](const QString &line) { output.Line(line); },
                                    .document = {},
                                    .progress = {},
                                    .goOn = {}};
    const std::optional<EstimateResult> result = EstimateDownload(
        {.text = *text, .file = PageFile(parser), .folder = LinkFolder(*folder)}, listener);
    if (parser.isSet(u"times"_s) && result) {
        output.Line({});
        for (const LineSpeed &speed : LineSpeeds() + QList{ModemSpeed, IsdnSpeed})
            output.Line(TimeLine(speed, result->total));
    }
    return output.Finish() ? Done : Failed;
}

void AddReplaceOptions(QCommandLineParser &parser)
{
    parser.addOption({u"folder"_s, u"The folder whose files are changed; required."_s, u"DIR"_s});
    parser.addOption(
        {u"type"_s,
         u"Which files, as a pattern such as \"*.html\" (default *.*, which are all)."_s,
         u"PATTERN"_s,
         u"*.*"_s});
}

ExitStatus RunReplace(const QCommandLineParser &parser)
{
    const QStringList texts = parser.positionalArguments();
    const QString folder = parser.value(u"folder"_s);
    if (!QFileInfo(folder).isDir() || texts.value(0).isEmpty()) {
        Complain(!parser.isSet(u"folder"_s)     ? u"--folder DIR is required"_s
                     : texts.value(0).isEmpty() ? u"FIND is empty"_s
                                                : u"no folder '%1'"_s.arg(folder));
        return Failed;
    }
    Output output;
    bool hasFailures = false;
    const GlobalReplaceListener listener{
        .report = [&output](const QString &line) { output.Line(line); },
        .cannotEdit = [&hasFailures](const QString &) { hasFailures = true; },
        .progress = {},
        .goOn = {}};
    GlobalReplace({.folder = folder,
                   .type = parser.value(u"type"_s),
                   .find = texts[0],
                   .replacement = texts[1],
                   .codec = GetSetting(u"Editor", u"Encoding", u"windows-1250"_s).toLatin1()},
                  listener);
    if (!output.Finish())
        return Failed;
    return hasFailures ? Found : Done;
}

} // namespace brenix
