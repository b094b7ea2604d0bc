#pragma once

#include "support/DocumentModel.h"

namespace brenix {

/// Brings the text of the design view into the source view; without the marks that older design
/// controls left in a page where `cleaned`. False when the page does not answer: the source is then
/// as it was.
bool TakeDesignText(DocumentModel &document, bool cleaned);

} // namespace brenix
