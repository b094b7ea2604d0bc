#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace brenix {

struct CompressOptions
{
    bool lineBreaks = false; ///< each line break becomes a blank
    bool spaces = false; ///< fewer blanks, and none beside a tag
    bool simplify = false; ///< "<em>" to "<i>" and so on
    bool unnecessary = false; ///< no "</img>" and similar
    bool unused = false; ///< no "<b></b>" and similar
};

/// Is told the length that the text has by now, after each piece of the work and about every 10 ms
/// within it; false stops the work.
using CompressProgress = std::function<bool(qsizetype length)>;

/// Makes a page smaller by replacements over the whole text; nothing is protected, neither scripts
/// nor preformatted text nor attribute values. Tabs become blanks whatever the options. Without
/// regard to case; what is put in is lower case. "<b>one</b>  two" with `spaces` gives
/// "<b>one</b>two", "<EMBED>" with `simplify` "<iBED>". When it is stopped, the text as it was.
QString Compress(const QString &text,
                 const CompressOptions &options,
                 const CompressProgress &progress = {});

/// A length as a percentage of the original one, halves to the even number; nothing when the
/// original text is empty.
std::optional<int> SizePercent(qsizetype length, qsizetype originalLength);

} // namespace brenix
