#include "checks/Compressor.h"
#include "checks/Formats.h"
#include "checks/Keywords.h"
#include "checks/PlainText.h"
#include "cli/Verb.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct Switch
    {
        const char16_t *name;
        const char16_t *meaning;
        bool CompressOptions::*option;
    };
    constexpr Switch Switches[] = {
        {u"line-breaks", u"Removes line breaks.", &CompressOptions::lineBreaks},
        {u"spaces", u"Removes extra spaces.", &CompressOptions::spaces},
        {u"simplify", u"Simplifies tags (<em> to <i> and so on).", &CompressOptions::simplify},
        {u"unnecessary",
         u"Removes unnecessary tags (</img> and similar).",
         &CompressOptions::unnecessary},
        {u"unused", u"Removes unused tags (<b></b> and similar).", &CompressOptions::unused},
    };

    /// In the order of `Format`.
    const QStringList Formats{u"hierarchical"_s, u"compact"_s, u"simple"_s};

    ExitStatus Transform(const QCommandLineParser &parser,
                         const std::function<QString(const QString &)> &transform,
                         qsizetype fileArgument = 0)
    {
        const std::optional<QString> text = ReadInput(parser, fileArgument);
        return text && WriteOutput(transform(*text)) ? Done : Failed;
    }

} // namespace

void AddCompressOptions(QCommandLineParser &parser)
{
    for (const Switch &one : Switches)
        parser.addOption({QString::fromUtf16(one.name), QString::fromUtf16(one.meaning)});
}

ExitStatus RunCompress(const QCommandLineParser &parser)
{
    CompressOptions options;
    for (const Switch &one : Switches)
        options.*one.option = parser.isSet(QString::fromUtf16(one.name));
    return Transform(parser, [&](const QString &text) { return Compress(text, options); });
}

ExitStatus RunFormat(const QCommandLineParser &parser)
{
    const QString kind = parser.positionalArguments().value(0);
    const qsizetype format = Formats.indexOf(kind);
    if (format < 0) {
        Complain(u"unknown format '%1'; one of %2"_s.arg(kind, Formats.join(u", ")));
        return Failed;
    }
    return Transform(
        parser, [&](const QString &text) { return FormatMarkup(text, Format(format)); }, 1);
}

ExitStatus RunStrip(const QCommandLineParser &parser)
{
    return Transform(parser, [](const QString &text) { return StripTags(text); });
}

ExitStatus RunKeywords(const QCommandLineParser &parser)
{
    return Transform(parser, [](const QString &text) {
        QString lines;
        for (const QString &word : Keywords(text))
            lines += word + u'\n';
        return lines;
    });
}

} // namespace brenix
