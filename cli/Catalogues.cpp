#include "cli/Verb.h"
#include "tags/AttributeCatalogue.h"
#include "tags/TagCatalogue.h"
#include "tags/ValueCatalogue.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString DialectOption = u"dialect"_s;
    const QString DialogOption = u"dialog"_s;

    void AddDialectOption(QCommandLineParser &parser)
    {
        parser.addOption({DialectOption,
                          u"The dialect: \"%1\" has rows of its own."_s.arg(Html5Title),
                          u"NAME"_s,
                          AllHtmlTitle.toString()});
    }

} // namespace

bool IsDialect(const QString &title)
{
    const QStringList titles = DialectNames();
    if (titles.contains(title))
        return true;
    Complain(u"unknown dialect '%1'; one of %2"_s.arg(title, titles.join(u", ")));
    return false;
}

ExitStatus WriteLines(const QStringList &lines)
{
    QString output;
    for (const QString &line : lines)
        output += line + u'\n';
    return WriteOutput(output) ? Done : Failed;
}

ExitStatus RunTags(const QCommandLineParser &parser)
{
    const QString title = parser.positionalArguments().value(0, AllHtmlTitle.toString());
    return IsDialect(title) ? WriteLines(TagsOfDialect(title)) : Failed;
}

void AddAttributesOptions(QCommandLineParser &parser)
{
    AddDialectOption(parser);
    parser.addOption({DialogOption, u"As the dialogs show them: names without \"=\"."_s});
}

ExitStatus RunAttributes(const QCommandLineParser &parser)
{
    const QString dialect = parser.value(DialectOption);
    if (!IsDialect(dialect))
        return Failed;
    const QString tag = parser.positionalArguments().constFirst();
    return WriteLines(parser.isSet(DialogOption) ? DialogAttributesOfTag(tag, dialect)
                                                 : AttributesOfTag(tag, dialect));
}

void AddValuesOptions(QCommandLineParser &parser)
{
    AddDialectOption(parser);
}

ExitStatus RunValues(const QCommandLineParser &parser)
{
    const QString dialect = parser.value(DialectOption);
    if (!IsDialect(dialect))
        return Failed;
    const QString name = parser.positionalArguments().constFirst().toLower();
    return WriteLines(ValuesOfAttribute(name, nullptr, dialect));
}

} // namespace brenix
