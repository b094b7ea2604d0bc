#include "checks/SourceCommands.h"

#include "checks/PlainText.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"
#include "support/TextSearch.h"

namespace brenix {

void FormatSelection(DocumentModel &page, Format format, const GoOn &goOn)
{
    SourceView &source = page.rtfText();
    if (source.IsReadOnlyPage())
        return;
    source.SetSelText(FormatMarkup(source.SelText(), format, goOn));
    source.AddUndo();
}

void LowerSelection(DocumentModel &page)
{
    SourceView &source = page.rtfText();
    if (!source.IsReadOnlyPage())
        source.SetSelText(LowerCased(source.SelText()));
}

void UpperSelection(DocumentModel &page)
{
    SourceView &source = page.rtfText();
    if (!source.IsReadOnlyPage())
        source.SetSelText(UpperCased(source.SelText()));
}

void ConvertToPlainText(DocumentModel &page, const GoOn &goOn)
{
    ReplaceSource(page, StripTags(page.rtfText().Text(), goOn));
    if (!page.rtfText().IsReadOnlyPage())
        page.rtfText().AddUndo();
}

void ReplaceSource(DocumentModel &page, const QString &text)
{
    SourceView &source = page.rtfText();
    if (source.IsReadOnlyPage())
        return;
    source.AddUndo();
    source.SetText(text);
}

} // namespace brenix
