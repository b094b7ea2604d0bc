#pragma once

#include "checks/Formats.h"

#include <QString>

namespace brenix {

class DocumentModel;

/// What the commands do with the source of a page; one that can only be read stays as it is.
/// `goOn` may let events run, but none of the user's, since the page must stay the same meanwhile.

/// Lays out the selection anew, and takes a snapshot after it.
void FormatSelection(DocumentModel &page, Format format, const GoOn &goOn = {});

/// Everything selected in lower or upper case, attribute values included; no snapshot.
void LowerSelection(DocumentModel &page);
void UpperSelection(DocumentModel &page);

/// The whole page without its tags, between two snapshots.
void ConvertToPlainText(DocumentModel &page, const GoOn &goOn = {});

/// Another text for the page, after a snapshot.
void ReplaceSource(DocumentModel &page, const QString &text);

} // namespace brenix
