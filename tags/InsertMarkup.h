#pragma once

#include <QString>

namespace brenix {

class DocumentModel;
class SourceView;

/// Puts markup into the page that the author works on, after a snapshot: the design view takes it
/// as it is, the source view by InsertSourceMarkup. The page counts as modified from then on. A
/// page that can only be read stays as it is.
void InsertMarkup(DocumentModel &page, const QString &text);

/// Puts markup at the caret, after a snapshot. Tags are written in lower case when `TagCase` is 1,
/// else in upper case.
///
/// A text that begins with "&" replaces the selection as it is. So does a single tag, that is a
/// text whose first ">" is its last character; its attribute values change case with it. Any other
/// text goes around the selection, which lands behind its first tag with the caret behind it:
/// "<B></B>" over "x" gives "<b>x</b>". Without a ">" the selection stands before the text.
void InsertSourceMarkup(SourceView &source, const QString &text);

/// Replaces the selection by a text as it is, without a snapshot, and gives the view the focus. The
/// caret goes behind the first ">" of the text; where there is none, to its start.
void InsertTag(SourceView &source, const QString &text);

/// A tag, or whatever else is to change with it, in the case that `TagCase` asks for.
QString InTagCase(const QString &text);

} // namespace brenix
