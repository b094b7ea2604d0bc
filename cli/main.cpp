#include "cli/Verb.h"
#include "support/SettingsStore.h"
#include "support/TextCodec.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr Verb Verbs[] = {
        {u"highlight",
         u"[FILE]",
         u"Writes the page as a coloured stream.",
         AddHighlightOptions,
         RunHighlight},
        {u"check", u"[FILE]", u"Reports errors of the page.", AddCheckOptions, RunCheck},
        {u"compress", u"[FILE]", u"Makes the page smaller.", AddCompressOptions, RunCompress},
        {u"format",
         u"FORMAT [FILE]",
         u"Lays out the markup anew.",
         nullptr,
         RunFormat,
         u"\"hierarchical\", \"compact\" or \"simple\", and the page; \"-\" or nothing for "
         u"standard "
         u"input."},
        {u"strip", u"[FILE]", u"Writes the page without its tags.", nullptr, RunStrip},
        {u"keywords",
         u"[FILE]",
         u"Lists words of the page that may serve as keywords, one a line.",
         nullptr,
         RunKeywords},
        {u"tags",
         u"[DIALECT]",
         u"Lists the tags of a dialect, one a line.",
         nullptr,
         RunTags,
         u"The title of the dialect (\"HTML 5\", \"Web TV\" ...); nothing for \"All HTML\"."},
        {u"attributes",
         u"TAG",
         u"Lists the attributes of a tag, one a line.",
         AddAttributesOptions,
         RunAttributes,
         u"The name of the tag, in any case and without brackets."},
        {u"values",
         u"ATTRIBUTE",
         u"Lists the values of an attribute, one a line.",
         AddValuesOptions,
         RunValues,
         u"The name of the attribute, in any case. There are no fonts here for \"face\"."},
        {u"parse",
         u"[FILE]",
         u"Lists what the tag reader reports, one event a line as a JSON array.",
         nullptr,
         RunParse},
        {u"endtag",
         u"[FILE]",
         u"Writes the end tag of the element that is open at a caret.",
         AddEndTagOptions,
         RunEndTag},
        {u"relpath",
         u"TARGET BASE",
         u"Writes the path of a link to a file, as seen from a folder.",
         nullptr,
         RunRelPath,
         u"The paths of the file and of the folder, both with \"\\\" or both with \"/\"."},
        {u"links",
         u"[FILE]",
         u"Lists the links of a page, each with its status and a tab before it.",
         AddLinksOptions,
         RunLinks},
        {u"estimate",
         u"[FILE]",
         u"Lists the files that a page depends on, with their sizes.",
         AddEstimateOptions,
         RunEstimate},
        {u"replace",
         u"FIND REPLACEMENT",
         u"Replaces a text in all files of a folder, and reports each changed line.",
         AddReplaceOptions,
         RunReplace,
         u"The text to find, in any case, and what takes its place."},
    };

    const QString UsageHead
        = u"usage: brenix-cli VERB [OPTION...] [ARGUMENT...]\n"
          "\n"
          "The logic of the Brenix HTML editor as filters. A verb on a page reads FILE, or\n"
          "standard input, decoded as the editor does. Output is UTF-8.\n"
          "\n"_s;
    const QString UsageTail
        = u"\n"
          "brenix-cli VERB --help tells the options of a verb.\n"
          "Exit status: 0 done, 1 done and something was found, 2 could not be done.\n"_s;

    QString Usage()
    {
        QString usage = UsageHead;
        for (const Verb &verb : Verbs)
            usage += u"  "_s + QString::fromUtf16(verb.name).leftJustified(12)
                + QString::fromUtf16(verb.summary) + u'\n';
        return usage + UsageTail;
    }

    bool TakesThatMany(const Verb &verb, qsizetype count)
    {
        const QString arguments = QString::fromUtf16(verb.arguments);
        const qsizetype most = arguments.split(u' ').size();
        return count <= most && count >= most - arguments.count(u'[');
    }

    // The parser's own names the program by its path, without the verb.
    QString HelpOf(const QCommandLineParser &parser, const QString &program)
    {
        const QString help = parser.helpText();
        return u"Usage: "_s + program + u' ' + help.sliced(help.indexOf(u'['));
    }

    ExitStatus RunVerb(const Verb &verb, const QStringList &arguments)
    {
        QCommandLineParser parser;
        parser.setApplicationDescription(QString::fromUtf16(verb.summary));
        parser.addOption({{u"h"_s, u"help"_s}, u"Shows this help."_s});
        const QString syntax = QString::fromUtf16(verb.arguments);
        parser.addPositionalArgument(
            QString(syntax).remove(u'[').remove(u']'), QString::fromUtf16(verb.meaning), syntax);
        if (verb.addOptions)
            verb.addOptions(parser);
        const QString program = u"brenix-cli "_s + QString::fromUtf16(verb.name);
        if (!parser.parse(QStringList(program) + arguments)) {
            Complain(parser.errorText());
            return Failed;
        }
        if (parser.isSet(u"help"_s))
            return WriteOutput(HelpOf(parser, program)) ? Done : Failed;
        if (!TakesThatMany(verb, parser.positionalArguments().size())) {
            Complain(u"wrong number of arguments; usage: %1 [OPTION...] %2"_s.arg(program, syntax));
            return Failed;
        }
        return verb.run(parser);
    }

    ExitStatus Run(QStringList arguments)
    {
        const QString first = arguments.isEmpty() ? QString() : arguments.takeFirst();
        if (first == u"--help" || first == u"-h")
            return WriteOutput(Usage()) ? Done : Failed;
        if (first == u"--version")
            return WriteOutput(u"brenix-cli "_s + QCoreApplication::applicationVersion() + u'\n')
                ? Done
                : Failed;
        for (const Verb &verb : Verbs) {
            if (first == verb.name)
                return RunVerb(verb, arguments);
        }
        Complain(first.isEmpty() ? u"no verb given; see --help"_s
                                 : u"unknown verb '%1'; see --help"_s.arg(first));
        return Failed;
    }

} // namespace

std::optional<QString> ReadInput(const QCommandLineParser &parser, qsizetype argument)
{
    const QString name = parser.positionalArguments().value(argument, u"-"_s);
    // Also a pipe or a device can be named, such as a shell makes of "<(command)".
    std::FILE *stream
        = name == u"-" ? stdin : std::fopen(QFile::encodeName(name).constData(), "rb");
    if (!stream) {
        Complain(u"%1: %2"_s.arg(name, qt_error_string(errno)));
        return std::nullopt;
    }
    QFile input;
    input.open(stream, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QByteArray bytes = input.readAll();
    if (input.error() != QFileDevice::NoError) {
        Complain(u"%1: %2"_s.arg(name, input.errorString()));
        return std::nullopt;
    }
    const QByteArray codec = GetSetting(u"Editor", u"Encoding", u"windows-1250"_s).toLatin1();
    return WithCrLf(DecodePage(bytes, codec).text);
}

bool WriteOutput(const QString &text)
{
    QFile output;
    const QByteArray bytes = text.toUtf8();
    const bool written = output.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered)
        && output.write(bytes) == bytes.size() && output.flush();
    if (!written)
        Complain(u"standard output: "_s + output.errorString());
    return written;
}

void Complain(const QString &message)
{
    std::fprintf(stderr, "brenix-cli: %s\n", message.toLocal8Bit().constData());
}

} // namespace brenix

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Brenix"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BRENIX_VERSION));
    return brenix::Run(QCoreApplication::arguments().mid(1));
}
