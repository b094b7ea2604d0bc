#pragma once

#include <QString>

#include <functional>

namespace brenix {

class DocumentModel;

/// How a pane of the toolbox reaches the page that the author works on; null when none is open, and
/// then the pane's handlers do nothing.
using ActivePage = std::function<DocumentModel *()>;

/// Puts markup that was chosen in a list into the page, and hands the page the focus, so that the
/// author can go on typing at the place that the markup made.
void InsertIntoPage(const ActivePage &activePage, const QString &markup);

/// Gives the focus to the view that the author edits the page in.
void FocusPage(DocumentModel &page);

} // namespace brenix
