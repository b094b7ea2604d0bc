#pragma once

#include "checks/CheckReport.h"
#include "checks/Pulse.h"

#include <QStringList>
#include <QStringView>

namespace brenix {

/// The rules that search a whole page: tags that are opened and closed differently often, for each
/// row of `catalogue` ("<TABLE></TABLE>"; rows without an end tag count for nothing), quotation
/// marks, end tags that must not be, tags that stand once, letters that want an entity, the frame
/// of the document, FONT in FONT, TITLE, IMG without alt, and tags that follow their like. The
/// report begins with a heading and ends with the totals; errors count up to the rule for the
/// document's frame only. Positions in the lines are from 0 or from 1, as each rule has it.
///
/// Time grows with the text's length, whatever it holds. When `goOn` says no, the report ends where
/// it is, without the totals. There is no rule for redundant nested tags: it would look for a
/// tag's end tag between the tag and its first end tag, where none can be.
CheckReport ErrorChecking(QStringView text, const QStringList &catalogue, const GoOn &goOn = {});

} // namespace brenix
