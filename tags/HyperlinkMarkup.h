#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// The kinds of link, which are the root nodes of `TW`.
enum class LinkKind {
    Exist, ///< "Existing file"
    Inside, ///< "Inside Document"
    Mail, ///< "Mail Address"
};

/// What is filled in `frmHyperlink`.
struct Hyperlink
{
    LinkKind kind = LinkKind::Exist;
    QString address; ///< `AutoComplete1`
    QString anchor; ///< the row of `List1`
    QString mail; ///< `Combo3`
    QString text; ///< `Text1`
};

/// The address that is linked to: "#" and the anchor, "mailto:" and the mail address, or the
/// address as it stands.
QString HyperlinkAddress(const Hyperlink &link);
/// What edit mode writes over the tag: `<a href="x">` and nothing that the tag had besides.
QString HyperlinkStartTag(const Hyperlink &link);
/// What is inserted: `<a href="x">text</a>`.
QString HyperlinkMarkup(const Hyperlink &link);

/// Edit mode: the tag's "href" in lower case, as the address and, when it begins with "mailto", as
/// the mail address too. No other attribute is read.
Hyperlink ReadHyperlink(const QString &tag);

/// The named anchors of a page, in order: `<a name="top">` gives "top". What is looked for is the
/// word "name" in any case, the quoted text behind it, and an "<a " in the 20 characters before the
/// quote, without another "<" between. Costs time in proportion to the text.
QStringList AnchorsOf(QStringView page);

/// The address box while the author types: an address that begins with "www." gets "http://" before
/// it; the selection moves by as much.
QString WithScheme(const QString &address);
/// The address box at Ctrl+Enter: "example" gives "http://www.example.com".
QString WebSiteOf(const QString &name);

} // namespace brenix
