#pragma once

#include <QString>

namespace brenix {

class SourceView;

/// What single keys do in a source view beyond entering their character. Positions count UTF-16
/// units from 0. None of it looks farther than 200 units, whatever the size of the page, and none
/// changes a page that can only be read.

/// The Home key: moves the caret behind the blanks that open its line; tabs are no blanks. False
/// when the caret stands there already, or on the first line: the key is then the box's. Where the
/// line begins more than 200 units before the caret, it moves by 200. At the end of the text a
/// blank is added first, and stays.
bool HomeStep(SourceView &source);

/// The Enter key: a line end, and the blanks that open the caret's line, as far as they stand
/// before the caret. False on the first line, where nothing is done. At the end of the text a blank
/// is added first, which then follows the caret. A line that begins more than 200 units before the
/// caret gives no blanks.
bool EnterStep(SourceView &source);

/// The end tag of the tag that the ">" before the caret ends.
struct EndTagSearch
{
    QString endTag; ///< empty when there is none to offer
    bool takesNone = false; ///< the tag is one that has no end tag
};
enum class EndTagName { AsTyped, Upper };
/// "<b>" gives "</b>", and nothing but the name counts when the tag has attributes. Nothing for an
/// end tag, and when no "<" stands within 100 units or a ">" comes first. "<IMG SRC=x" gets an end
/// tag and "<img src=x" none: of most names that take none, only the lower-case form is known.
/// `name` is the case of a name that is followed by attributes.
EndTagSearch FindEndTag(const SourceView &source, EndTagName name = EndTagName::AsTyped);

/// Puts an end tag behind the caret, unless it stands there in whatever case.
void InsertEndTag(SourceView &source, const QString &endTag);

/// The keys with Ctrl or Shift that insert markup, and the Tab key, which inserts four blanks.
/// Takes the codes of VirtualKeys.h; false for any other key.
bool ApplyShortcut(SourceView &source, int keyCode, int shift);

/// At most `length` units of the text that end before `position`; fewer at the start of the text.
QString TextBefore(const SourceView &source, int position, int length);

} // namespace brenix
