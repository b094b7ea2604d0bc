#pragma once

#include "checks/Pulse.h"

#include <QString>

namespace brenix {

enum class Format {
    Hierarchical, ///< each tag in a line of its own, a blank for each tag that it stands in
    Compact, ///< without line breaks, and with few blanks
    Simple, ///< compact, but for a line break between tags that touch
};

/// Lays out markup anew, looking at nothing but "<" and ">": "<b>\r\n  x</b><br>" gives "<b> x</b>"
/// and behind it "<br>", in a line of its own when `Simple`.
///
/// `Hierarchical` has its own ways, which are meant: the first character of the result is dropped
/// (of the CR LF that begins it, or of a text without a tag); what stands before the first "<" is
/// followed by that "<" and a new line; while more tags were closed than opened, tags are left out
/// with the text behind them: "<p>x</p></b>" gives "\n<p>x" and not even the "</p>". Behind 64
/// million blanks of indentation all lines stand at the edge. When it is stopped, the text as it
/// was.
QString FormatMarkup(const QString &text, Format format, const GoOn &goOn = {});

} // namespace brenix
