#pragma once

#include <QString>

namespace brenix {

class DocumentModel;

/// The page's file on the disk, else its preview copy; empty when it has neither.
QString FileOfPage(const DocumentModel &page);

} // namespace brenix
