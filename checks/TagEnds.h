#pragma once

#include "checks/Pulse.h"

#include <QStringView>

#include <optional>
#include <vector>

namespace brenix {

/// One of the tags that follow each other in a page: from a "<" to the first ">" behind it,
/// whatever stands between. Positions from 0.
struct TagPlace
{
    qsizetype start = 0;
    qsizetype length = 0; ///< with both brackets
    /// The first "<" behind the tag's end tag, which is "</" and the tag from its second character
    /// on, attributes included, at its first place behind the tag in any case. The first "<" of the
    /// text when there is no such end tag; -1 when there is one, and no "<" behind it.
    qsizetype next = -1;
};

/// All tags of the text behind the position `after` (-1 for all of them), in their order. Takes
/// time that grows with the text's length and with nothing else. Nothing when `pulse` ended it.
std::optional<std::vector<TagPlace>> FindTags(QStringView text, qsizetype after, Pulse &pulse);

} // namespace brenix
