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

    constexpr int RefreshDelay = 50; // ms

    bool IsDesignNewer(const DocumentModel &document)
    {
        return document.Des() == u"1";
    }

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

bool TakeNewestText(DocumentModel &document)
{
    if (!IsDesignNewer(document))
        return true;
    DesignView *design = document.Design();
    const bool edited = design && design->IsDirty();
    if (edited)
        document.rtfText().AddUndo();
    if (TakeDesignText(document, edited))
        return true;
    MsgBox(
        u"The design view does not answer. Nothing has been done."_s, Buttons::Ok, Icon::Warning);
    return false;
}

// The split view follows by itself.
void ShowNewText(DocumentModel &document)
{
    if (document.Status() == u"Preview") {
        document.KeyDone = true;
        document.ArmRefresher(RefreshDelay);
    } else if (IsDesignNewer(document) && !document.LoadDesign()) {
        document.Des = u"0"_s;
        document.Status = u"HTML"_s;
    }
}

} // namespace brenix
