#include "cli/Verb.h"
#include "tags/EndTag.h"
#include "tags/RelativePath.h"
#include "tags/TovikHTMLParser.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString CaretOption = u"caret"_s;

}

ExitStatus RunParse(const QCommandLineParser &parser)
{
    std::optional<QString> text = ReadInput(parser);
    if (!text)
        return Failed;
    QString output;
    const auto writer = [&output](const QString &event) {
        return [&output, event](const auto &...arguments) {
            const QJsonArray line{event, arguments...};
            output += QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + u'\n';
        };
    };
    TovikHTMLParser events;
    events.HTMLTagBegin = writer(u"HTMLTagBegin"_s);
    events.HTMLProperty = writer(u"HTMLProperty"_s);
    events.HTMLTagEnd = writer(u"HTMLTagEnd"_s);
    events.HTMLTagClose = writer(u"HTMLTagClose"_s);
    events.HTMLText = writer(u"HTMLText"_s);
    events.ParseHTML(*text);
    return WriteOutput(output) ? Done : Failed;
}

void AddEndTagOptions(QCommandLineParser &parser)
{
    parser.addOption({CaretOption,
                      u"Where the caret stands: how many UTF-16 units of the page are before it, "
                      "two for a line end. Needed."_s,
                      u"N"_s});
}

ExitStatus RunEndTag(const QCommandLineParser &parser)
{
    bool isNumber = false;
    const int caret = parser.value(CaretOption).toInt(&isNumber);
    if (!isNumber || caret < 0) {
        Complain(u"--caret N needs a number from 0 on"_s);
        return Failed;
    }
    const std::optional<QString> text = ReadInput(parser);
    if (!text)
        return Failed;
    return WriteOutput(EndTagAt(*text, caret).value_or(QString())) ? Done : Failed;
}

ExitStatus RunRelPath(const QCommandLineParser &parser)
{
    const QString target = parser.positionalArguments().value(0);
    const QString base = parser.positionalArguments().value(1);
    QString changed = base;
    if (!target.startsWith(u'/') && !RelativePath(target, changed)) {
        Complain(u"no path leads from '%1' to '%2'"_s.arg(base, target));
        return Failed;
    }
    return WriteOutput(LinkPath(target, base)) ? Done : Failed;
}

} // namespace brenix
