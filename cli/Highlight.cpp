#include "cli/Verb.h"
#include "editor/HighlightBlock.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QStringList Languages{u"none"_s, u"basic"_s, u"java"_s, u"html"_s, u"tidy"_s};

}

void AddHighlightOptions(QCommandLineParser &parser)
{
    parser.addOption({u"language"_s,
                      u"Colours as %1 (default html). Pages of any size are coloured."_s.arg(
                          Languages.join(u", ")),
                      u"NAME"_s,
                      u"html"_s});
}

ExitStatus RunHighlight(const QCommandLineParser &parser)
{
    const int language = int(Languages.indexOf(parser.value(u"language"_s).toLower()));
    if (language < 0) {
        Complain(u"unknown language '%1'; one of %2"_s.arg(parser.value(u"language"_s),
                                                           Languages.join(u", ")));
        return Failed;
    }
    const std::optional<QString> text = ReadInput(parser);
    if (!text)
        return Failed;
    SyntaxTables tables;
    tables.SetLanguage(language);
    return WriteOutput(HighlightBlock(*text, tables, {})) ? Done : Failed;
}

} // namespace brenix
