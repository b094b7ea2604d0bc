#pragma once

#include "support/DocumentModel.h"

namespace brenix {

/// Brings the text of the design view into the source view; without the marks that older design
/// controls leave when `cleaned`. False when the view does not answer; the source is then left
/// as it was.
bool TakeDesignText(DocumentModel &document, bool cleaned);

/// Before a command on the source, whatever the view: the source takes the text of a design view
/// that is newer, which can be undone as a step of its own. False, after a message, when that view
/// does not answer: what the command made of an older text would be lost.
bool TakeNewestText(DocumentModel &document);
/// After a command that has changed the source: the view that the author looks at shows it.
void ShowNewText(DocumentModel &document);

} // namespace brenix
