#pragma once

#include "support/MessageBoxes.h"

namespace brenix {

class DocumentModel;

/// What links and picture fields of a page hold for a file. For a page that was never saved it is
/// the whole path, after a message that says so.
QString LinkTo(const DocumentModel &page, const QString &path);
/// The dialog that asks what a link leads to: pages, shortcuts, all that lies on a web server. It
/// starts in the folder of the page.
FileDialog LinkTargets(const DocumentModel &page);
/// Asks for a file, in the folder of the page; `LinkTo` it, or nothing when none was chosen.
QString ChooseLink(const DocumentModel &page, FileDialog dialog);

} // namespace brenix
