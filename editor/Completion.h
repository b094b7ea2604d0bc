#pragma once

#include <QString>
#include <QStringList>

namespace brenix {

class SourceView;

/// What completion finds at the caret and what accepting a row writes there, for a source view
/// without its lists. `typed` is what the author has typed of the word that ends at the caret. The
/// scans look at some hundred units around the caret, whatever the size of the page.

/// The tag that the caret stands in, for the list of its attributes.
struct TagSearch
{
    enum class Result {
        Nothing, ///< the text begins without a "<" before the caret: no list
        Outside, ///< a ">" comes first: the list is emptied
        NoName, ///< an end tag, a tag without a blank, or none within 200 units: the list stays
        Found
    };
    Result result = Result::Nothing;
    QString name; ///< as it is written
};
/// Only a tag whose ">" follows within 100 units of its "<" is found: "<img |>" gives "img".
TagSearch FindTagAtCaret(const SourceView &source);

/// The attribute whose value the quote before the caret opens, in lower case: `<a HREF="|` gives
/// "href". Empty where no "=" stands before it, or no blank before the name, within 100 units.
QString FindAttributeAtCaret(const SourceView &source);

/// The first row that begins with `typed`, without regard to case; -1 when there is none and when
/// nothing has been typed.
int FindRow(const QStringList &rows, const QString &typed);

/// What has been typed becomes `row`: its rest is added where it begins with what was typed, else
/// the word is replaced. True when the row ends in "=": two quotes then follow, and the caret
/// stands between them.
bool AcceptAttribute(SourceView &source, const QString &typed, const QString &row);

/// The same for a tag, followed by `suffix`. The name comes in upper case when all that was typed
/// is, else in lower case.
void AcceptTag(SourceView &source, const QString &typed, const QString &row, const QString &suffix);

/// Replaces what has been typed by the row.
void AcceptValue(SourceView &source, const QString &typed, const QString &row);

} // namespace brenix
