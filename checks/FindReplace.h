#pragma once

#include "checks/Pulse.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace brenix {

class SourceView;

/// Finding and replacing in the page, without regard to case. Each of these leaves what it found
/// selected; false when there was nothing, and then nothing changes. A page whose selection is the
/// text already counts as found in even where no further occurrence is left. An empty text is found
/// nowhere.

/// "Find!": from behind the selection on, or, with `fromTop`, from as far into the page as the
/// selection is long.
bool Find(SourceView &source, const QString &text, bool fromTop);
/// "Search next": from the end of the selection on.
bool FindNext(SourceView &source, const QString &text);
/// "Replace": the first occurrence that begins behind the start of the selection, or the first of
/// the page, becomes `replacement`, as a step of its own to undo.
bool ReplaceNext(SourceView &source, const QString &text, const QString &replacement, bool fromTop);
/// Replaces every occurrence as one step to undo; the caret keeps its position. When it is stopped
/// nothing is replaced.
void ReplaceAll(SourceView &source, const QString &text, const QString &replacement, GoOn goOn);
/// The search while its text is being typed. It lands on the first occurrence of the page where
/// that has the very letters, and stays where it is while the typed text still stands there.
void LiveSearch(SourceView &source, const QString &text);

/// Where a text stands in a page, from 0, in one pass; occurrences may overlap. Stopped, it gives
/// those found until then.
std::vector<int> Occurrences(QStringView page, QStringView text, GoOn goOn = {});
/// A page with its occurrences replaced, from left to right, those that overlap the one before left
/// out; the page itself when it is stopped.
QString WithReplacements(const QString &page,
                         QStringView text,
                         QStringView replacement,
                         GoOn goOn = {});

} // namespace brenix
