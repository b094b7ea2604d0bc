#pragma once

#include <QString>

#include <functional>

namespace brenix {

/// Reads the tags of a text and reports what it finds, in order, through the five functions; one
/// that is not set is passed over. Names and values keep their case. It reads quoted attributes
/// alone and checks nothing: behind the first attribute without double quotes, all text up to the
/// next double quote counts as the name of an attribute, ">" included. What is not complete at the
/// end of the text is not reported.
class TovikHTMLParser
{
public:
    /// A start tag's name is complete; at most once for each tag.
    std::function<void(const QString &tagName)> HTMLTagBegin;
    /// A quoted attribute: `href="x"` gives "href" and "x". The last character before the quote is
    /// dropped unseen, whether it is the "=" or not; an attribute without any is not reported.
    std::function<void(const QString &name, const QString &value)> HTMLProperty;
    /// The ">" of a start tag.
    std::function<void(const QString &tagName)> HTMLTagEnd;
    /// An end tag; the name without its "/".
    std::function<void(const QString &tagName)> HTMLTagClose;
    /// Text before a tag, without its outer blanks; never empty.
    std::function<void(const QString &text)> HTMLText;

    /// Reports what stands in `html`, which is changed first: a line end becomes a blank, a tab
    /// goes. A function that changes it meanwhile changes nothing of what is reported.
    void ParseHTML(QString &html) const;
};

} // namespace brenix
