#include "app/ProjectFiles.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // clang-format off
    const QStringList Pages{
        u"html"_s, u"htm"_s, u"xhtml"_s, u"shtml"_s, u"xml"_s, u"php"_s, u"asp"_s, u"cfm"_s, u"jsp"_s,
    };
    const QStringList Pictures{
        u"gif"_s, u"jpg"_s, u"jpeg"_s, u"png"_s, u"svg"_s, u"webp"_s, u"avif"_s, u"bmp"_s, u"ico"_s,
    };
    const QStringList Styles{
        u"css"_s, u"xsl"_s, u"xslt"_s, u"scss"_s, u"less"_s,
    };
    const QStringList Scripts{
        u"js"_s, u"mjs"_s, u"ts"_s, u"vbs"_s, u"py"_s, u"pl"_s, u"cgi"_s, u"java"_s,
    };
    // clang-format on

} // namespace

FileKind KindOf(QStringView fileName)
{
    const QString ending = fileName.mid(fileName.lastIndexOf(u'.') + 1).toString().toLower();
    if (Pages.contains(ending))
        return FileKind::Page;
    if (Pictures.contains(ending))
        return FileKind::Picture;
    if (Styles.contains(ending))
        return FileKind::Style;
    return Scripts.contains(ending) ? FileKind::Script : FileKind::Other;
}

QString ProjectMarkup(const QString &fileName, const QString &selection)
{
    const QString attribute = u"\""_s + QString(fileName).replace(u'"', u"&quot;"_s) + u"\">"_s;
    for (const QStringView ending : {u"gif", u"jpg", u"png", u"jpeg"}) {
        if (fileName.endsWith(ending, Qt::CaseInsensitive))
            return u"<img src = "_s + attribute;
    }
    return u"<A href = "_s + attribute + selection + u"</A>"_s;
}

} // namespace brenix
