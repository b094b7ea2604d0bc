#include "checks/ErrorCheck.h"
#include "checks/ErrorChecking.h"
#include "cli/Verb.h"
#include "tags/TagCatalogue.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString CharactersOption = u"characters"_s;
    const QString RulesOption = u"rules"_s;
    const QString DialectOption = u"dialect"_s;

} // namespace

void AddCheckOptions(QCommandLineParser &parser)
{
    parser.addOption({CharactersOption, u"Goes through the page's characters (the default)."_s});
    parser.addOption({RulesOption, u"Searches the page by rules, and for the dialect's tags."_s});
    parser.addOption({DialectOption,
                      u"The dialect for --rules; alone it means --rules."_s,
                      u"NAME"_s,
                      AllHtmlTitle.toString()});
}

ExitStatus RunCheck(const QCommandLineParser &parser)
{
    const bool byCharacters = parser.isSet(CharactersOption);
    if (byCharacters && parser.isSet(RulesOption)) {
        Complain(u"either --characters or --rules"_s);
        return Failed;
    }
    const QString dialect = parser.value(DialectOption);
    const std::optional<QString> text = IsDialect(dialect) ? ReadInput(parser) : std::nullopt;
    if (!text)
        return Failed;
    const QString caption = parser.positionalArguments().value(0, u"-"_s);
    const bool byRules
        = parser.isSet(RulesOption) || (parser.isSet(DialectOption) && !byCharacters);
    const CheckReport report
        = byRules ? ErrorChecking(*text, TagsOfDialect(dialect)) : ErrorCheck(*text, caption);
    if (WriteLines(report.lines) == Failed)
        return Failed;
    return report.findings > 0 ? Found : Done;
}

} // namespace brenix
