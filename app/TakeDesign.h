#pragma once

#include "support/DocumentModel.h"

#include <functional>

namespace brenix {

/// Brings the text of the design view into the source view; without the marks that older design
/// controls left in a page where `cleaned`. False when the page does not answer: the source is then
/// as it was.
bool TakeDesignText(DocumentModel &document, bool cleaned);

/// Runs a command that works on the source. While the design view holds the newest text, the source
/// is given that text before, and the design view what the command makes of it after. When the
/// design view does not answer, this is said and the command does not run.
void WithNewestText(DocumentModel &document, const std::function<void()> &command);

} // namespace brenix
