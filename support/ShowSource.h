#pragma once

namespace brenix {

class DocumentModel;

/// Whether the page is in a view in which the author sees its source: "HTML" or "Split".
bool ShowsSource(const DocumentModel &page);

/// Brings up the source for a command that works on it, and with it the text of the design view,
/// which is newer than the source while it is shown. False when the page stays in its view, since
/// that does not answer; the command would then work on an old text.
bool BringUpSource(DocumentModel &page);

} // namespace brenix
