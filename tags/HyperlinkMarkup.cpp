#include "tags/HyperlinkMarkup.h"

#include "tags/Quoted.h"
#include "tags/TovikHTMLParser.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // Whether the quote at `quote` belongs to a tag "<a ", as far as that can be seen from here.
    bool IsInAnchor(QStringView page, qsizetype quote)
    {
        constexpr qsizetype Reach = 20;
        const qsizetype first = qMax(qsizetype(0), quote - Reach);
        const qsizetype tag = page.sliced(first, quote - first).lastIndexOf(u'<');
        return tag >= 0 && page.sliced(first + tag).startsWith(u"<a ", Qt::CaseInsensitive);
    }

} // namespace

QString HyperlinkAddress(const Hyperlink &link)
{
    switch (link.kind) {
    case LinkKind::Inside:
        return u'#' + link.anchor;
    case LinkKind::Mail:
        return u"mailto:"_s + link.mail;
    case LinkKind::Exist:
        break;
    }
    return link.address;
}

QString HyperlinkStartTag(const Hyperlink &link)
{
    return u"<a href="_s + Quoted(HyperlinkAddress(link)) + u'>';
}

QString HyperlinkMarkup(const Hyperlink &link)
{
    return HyperlinkStartTag(link) + link.text + u"</a>"_s;
}

Hyperlink ReadHyperlink(const QString &tag)
{
    Hyperlink link;
    TovikHTMLParser parser;
    parser.HTMLProperty = [&link](const QString &name, const QString &value) {
        if (name != u"href")
            return;
        if (value.startsWith(u"mailto"))
            link.mail = value.mid(7);
        link.address = value;
    };
    QString lowerCase = tag.toLower();
    parser.ParseHTML(lowerCase);
    return link;
}

QStringList AnchorsOf(QStringView page)
{
    QStringList anchors;
    qsizetype from = 0;
    for (;;) {
        const qsizetype word = page.indexOf(u"name"_s, from, Qt::CaseInsensitive);
        const qsizetype open = word < 0 ? -1 : page.indexOf(u'"', word);
        const qsizetype close = open < 0 ? -1 : page.indexOf(u'"', open + 1);
        if (close < 0)
            return anchors;
        if (IsInAnchor(page, open))
            anchors.append(page.sliced(open + 1, close - open - 1).toString());
        from = open + 1;
    }
}

QString WithScheme(const QString &address)
{
    return address.startsWith(u"www.") ? u"http://"_s + address : address;
}

QString WebSiteOf(const QString &name)
{
    return u"http://www."_s + name + u".com"_s;
}

} // namespace brenix
