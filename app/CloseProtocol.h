#pragma once

#include "support/DocumentModel.h"

namespace brenix {

/// What closing a document asks, and the saving that the author wants. False when the page is to
/// stay open.
bool MayClose(DocumentModel &document, const MainWindowBars &bars, const QString &activeCaption);

/// The same, and the end of the preview copy. False when the user wants to go on with it: then
/// nothing has been closed, deleted or lost. `activeCaption` is the caption of the active window,
/// which the question names.
bool CloseDocument(DocumentModel &document,
                   const MainWindowBars &bars,
                   const QString &activeCaption);

} // namespace brenix
