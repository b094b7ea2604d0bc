#include "tags/TagNameList.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // clang-format off
    constexpr QStringView Names[] = {
        u"A", u"ABBR", u"ACRONYM", u"ADDRESS", u"APPLET", u"AREA", u"B", u"BASE", u"BASEFONT",
        u"BDO", u"BGSOUND", u"BIG", u"BLINK", u"BLOCKQUOTE", u"BODY", u"BR", u"BUTTON", u"CAPTION",
        u"CENTER", u"CITE", u"CODE", u"COL", u"COLGROUP", u"COMMENT", u"DD", u"DEL", u"DFN", u"DIR",
        u"DIV", u"DL", u"DT", u"EM", u"EMBED", u"FIELDSET", u"FONT", u"FORM", u"FRAME", u"FRAMESET",
        u"H1", u"H2", u"H3", u"H4", u"H5", u"H6", u"HEAD", u"HR", u"I", u"IFRAME", u"ILAYER",
        u"IMG", u"INPUT", u"INS", u"ISINDEX", u"KBD", u"KEYGEN", u"LABEL", u"LAYER", u"LEGEND",
        u"LI", u"LINK", u"LISTING", u"MAP", u"MARQUEE", u"MENU", u"META", u"MULTICOL", u"NEXTID",
        u"NOBR", u"NOEMBED", u"NOFRAMES", u"NOLAYER", u"NOSCRIPT", u"OBJECT", u"OL", u"OPTGROUP",
        u"OPTION", u"P", u"PARAM", u"PLAINTEXT", u"PRE", u"Q", u"RT", u"RUBY", u"S", u"SAMP",
        u"SCRIPT", u"SELECT", u"SERVER", u"SMALL", u"SOUND", u"SPACER", u"SPAN", u"STRIKE",
        u"STRONG", u"STYLE", u"SUB", u"SUP", u"TABLE", u"TBODY", u"TD", u"TEXTAREA", u"TFOOT",
        u"TH", u"THEAD", u"TITLE", u"TR", u"TT", u"U", u"UL", u"WBR", u"XML",
    };
    // clang-format on

} // namespace

const QStringList &InsertTagNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const QStringView name : Names)
            list.append(name.toString());
        return list;
    }();
    return names;
}

int FindTagName(QStringView start)
{
    for (qsizetype i = 0; i < InsertTagNames().size(); ++i) {
        if (InsertTagNames()[i].startsWith(start, Qt::CaseInsensitive))
            return int(i);
    }
    return -1;
}

QString InsertTagMarkup(const QString &name, bool withEndTag)
{
    const QString startTag = u'<' + name + u'>';
    return withEndTag ? startTag + u"</"_s + name + u'>' : startTag;
}

} // namespace brenix
