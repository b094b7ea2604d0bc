#pragma once

namespace brenix {

class SourceView;

/// Selects the "<...>" round the caret, brackets included; looks at most 200 characters each way.
/// Where there is none, as just behind a ">", the selection stays as it is.
void SelectTagAtCaret(SourceView &source);

} // namespace brenix
