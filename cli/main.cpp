#include "cli/Verb.h"
#include "editor/PageText.h"
#include "editor/TextRope.h"
#include "support/AuthorFile.h"
#include "support/SettingsStore.h"
#include "support/TextCodec.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

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
    };

    const QString UsageHead
        = u"usage: brenix-cli VERB [OPTION...] [FILE]\n"
          "\n"
          "The logic of the Brenix HTML editor as filters. FILE, or standard input, is decoded as\n"
          "the editor does; the result is written to standard output as UTF-8.\n"
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

    ExitStatus RunVerb(const Verb &verb, const QStringList &arguments)
    {
        QCommandLineParser parser;
        parser.setApplicationDescription(QString::fromUtf16(verb.summary));
        parser.addOption({{u"h"_s, u"help"_s}, u"Shows this help."_s});
        parser.addPositionalArgument(u"FILE"_s,
                                     u"The page; \"-\" or nothing for standard input."_s,
                                     QString::fromUtf16(verb.arguments));
        verb.addOptions(parser);
        const QString program = u"brenix-cli "_s + QString::fromUtf16(verb.name);
        if (!parser.parse(QStringList(program) + arguments)) {
            Complain(parser.errorText());
            return Failed;
        }
        if (parser.isSet(u"help"_s))
            return WriteOutput(parser.helpText()) ? Done : Failed;
        if (parser.positionalArguments().size() > 1) {
            Complain(u"one FILE at a time"_s);
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

std::optional<QString> ReadInput(const QCommandLineParser &parser)
{
    const QString name = parser.positionalArguments().value(0, u"-"_s);
    FileContent file;
    if (name == u"-") {
        QFile input;
        input.open(stdin, QIODevice::ReadOnly);
        file.bytes = input.readAll();
        if (input.error() != QFileDevice::NoError)
            file.error = input.errorString();
    } else {
        file = ReadAuthorFile(name);
    }
    if (!file.error.isEmpty()) {
        Complain(u"%1: %2"_s.arg(name, file.error));
        return std::nullopt;
    }
    const QByteArray codec = GetSetting(u"Editor", u"Encoding", u"windows-1250"_s).toLatin1();
    return TextOf(TextRope(HeldText(DecodePage(file.bytes, codec).text)));
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
