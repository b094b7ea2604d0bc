#include "app/TakeDesign.h"

#include "support/DesignView.h"
#include "support/MessageBoxes.h"
#include "support/SourceView.h"
#include "tags/SelectTag.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString ContentMark = u"<META content=\"MSHTML"_s;
    const QString GeneratorMark
        = u"<META NAME=\"GENERATOR\" Content=\"Microsoft DHTML Editing Control\">"_s;

    // The first of each kind goes.
    void RemoveGeneratorMarks(SourceView &source)
    {
        if (source.Search(ContentMark, 0) && source.SelText() == ContentMark) {
            source.SetSelStart(source.SelStart() + 2);
            SelectTagAtCaret(source);
            source.SetSelText({});
        }
        if (source.Search(GeneratorMark, 0))
            source.SetSelText({});
        source.SetSelStart(0);
    }

} // namespace

bool TakeDesignText(DocumentModel &document, bool cleaned)
{
    DesignView *design = document.Design();
    const std::optional<QString> html = design ? design->DocumentHTML() : std::nullopt;
    if (!html)
        return false;
    document.rtfText().SetText(*html);
    if (cleaned)
        RemoveGeneratorMarks(document.rtfText());
    return true;
}

void WithNewestText(DocumentModel &document, const std::function<void()> &command)
{
    if (document.Des() != u"1") {
        command();
        return;
    }
    DesignView *design = document.Design();
    if (!design || !TakeDesignText(document, design->IsDirty())) {
        MsgBox(u"The design view does not answer. Nothing has been done."_s,
               Buttons::Ok,
               Icon::Warning);
        return;
    }
    const QString before = document.rtfText().Text();
    command();
    if (document.Des() != u"1" || document.rtfText().Text() == before || document.LoadDesign())
        return;
    document.Des = u"0"_s;
    document.Status = u"HTML"_s;
}

} // namespace brenix
