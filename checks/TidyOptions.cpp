#include "checks/TidyOptions.h"

namespace brenix {

namespace {

    constexpr QStringView Names[] = {
        // clang-format off
        u"tidy-mark", u"markup", u"wrap", u"wrap-attributes", u"wrap-script-literals",
        u"wrap-asp", u"wrap-jste", u"wrap-php", u"literal-attributes", u"tab-size", u"indent",
        u"indent-spaces", u"indent-attributes", u"hide-endtags", u"input-xml", u"output-xml",
        u"add-xml-pi", u"add-xml-decl", u"output-xhtml", u"doctype", u"char-encoding",
        u"numeric-entities", u"quote-marks", u"quote-nbsp", u"quote-ampersand",
        u"assume-xml-procins", u"fix-backslash", u"break-before-br", u"uppercase-tags",
        u"uppercase-attributes", u"word-2000", u"clean", u"logical-emphasis",
        u"drop-empty-paras", u"drop-font-tags", u"enclose-text", u"enclose-block-text",
        u"fix-bad-comments", u"add-xml-space", u"alt-text", u"write-back", u"keep-time",
        u"error-file", u"show-warnings", u"quiet", u"gnu-emacs", u"split", u"new-empty-tags",
        u"new-inline-tags", u"new-blocklevel-tags", u"new-pre-tags",
        // clang-format on
    };

}

QStringList TidyOptionNames()
{
    QStringList names;
    for (const QStringView name : Names)
        names.append(name.toString());
    return names;
}

} // namespace brenix
