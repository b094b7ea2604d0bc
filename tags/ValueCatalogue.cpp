#include "tags/ValueCatalogue.h"

#include "tags/Html5Catalogue.h"
#include "tags/TagCatalogue.h"
#include "tags/WordRows.h"

namespace brenix {

namespace {

    // Dated codes of languages, and the scripting languages that stand twice, are the catalogue's
    // own.
    // clang-format off
    constexpr WordRow Rows[] = {
        {u"bgcolor text vlink alink color", u"(color)"},
        {u"background href xmlns", u"(file)"},
        {u"runat", u"server"},
        {u"src codebase", u"(file)"},
        {u"border tabindex", u"0 1 2 3 4 5 6 7 8 9"},
        {u"align", u"top middle center bottom left right justify"},
        {u"target", u"_blank _parent _top _self"},
        {u"shape", u"circ circle rect rectangle poly polygon default"},
        {u"dataformatas", u"html text"},
        {u"topmargin", u"0 1 2 3 4 5 6 7 8 9"},
        {u"bgproperties", u"fixed"},
        {u"bottommargin leftmargin marginheight marginwidth rightmargin", u"0 1 2 3 4 5 6 7 8 9"},
        {u"size", u"0 1 2 3 4 5 6 7"},
        {u"dir", u"rtl ltr"},
        {u"language",
         u"JavaScript JavaScript1.1 JavaScript1.2 JavaScript1.2 JavaScript1.3 JavaScript1.3 "
         u"JavaScript1.4 JavaScript1.5 JScript VBScript VBS VB PHP TCL XML"},
        {u"url", u"(file)"},
        {u"method", u"get post"},
        {u"lang",
         u"af ar ar-ae ar-bh ar-dz ar-eg ar-iq ar-jo ar-kw ar-lb ar-ly ar-ma ar-om ar-qa "
         u"ar-sa ar-sy ar-tn ar-ye be bg ca cs da de de-at de-ch de-li de-lu el en en-au "
         u"en-bz en-ca en-gb en-ie en-jm en-nz en-tt en-us en-za es es-ar es-bo es-cl es-co "
         u"es-cr es-do es-ec es-gt es-hn es-mx es-ni es-pa es-pe es-pr es-py es-sv et eu fa "
         u"fi fo fr fr-ca fr-ch fr-lu gd he hi hr hu in is it it-ch ja ji ko lt lv mk ms mt "
         u"nl nl-be no pl pt pt-br rm ro ro-mo ru ru-mo sb sk sl sq sr sv sv-fi sx th tn tr "
         u"ts uk ur vi xh zh zh-cn zh-hk zh-sg zh-tw zu"},
    };
    // clang-format on

} // namespace

QStringList ValuesOfAttribute(QStringView name, const FontLister &fonts, QStringView dialect)
{
    static const QHash<QString, QStringList> lists = ListsByKey(Rows);
    if (name == u"face") {
        QStringList values = fonts ? fonts() : QStringList();
        for (QString &font : values)
            font = font.toLower();
        return values;
    }
    const QString key = name.toString();
    const QStringList html5 = dialect == Html5Title ? Html5ValuesOfAttribute(key) : QStringList();
    return html5.isEmpty() ? lists.value(key) : html5;
}

} // namespace brenix
