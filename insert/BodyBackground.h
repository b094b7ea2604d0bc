#pragma once

#include <QString>

namespace brenix {

class SourceView;

/// Gives the page's first body tag the background picture `address`: the value that it has is
/// replaced, whatever its quotes, or the attribute is added behind the others; nothing else of the
/// tag changes. Without a body tag the attribute goes to the caret. One undo step.
void SetBodyBackground(SourceView &source, const QString &address);

} // namespace brenix
