#pragma once

#include <memory>

class QTextDocument;

namespace brenix {

class PageMirror;

/// A stretch of the source as it goes to paper, in positions of `view`, the text document that the
/// page is shown by. A line that is wider than the paper goes on in the next row, whether the view
/// wraps or not. Colours are those of the formats laid on the blocks, dark enough for white paper.
std::unique_ptr<QTextDocument> PrintedSource(const QTextDocument &view,
                                             const PageMirror &page,
                                             int from,
                                             int to);

} // namespace brenix
