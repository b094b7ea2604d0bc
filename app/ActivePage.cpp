#include "app/ActivePage.h"

#include "support/DesignView.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"
#include "tags/InsertMarkup.h"

namespace brenix {

void InsertIntoPage(const ActivePage &activePage, const QString &markup)
{
    if (DocumentModel *page = activePage()) {
        InsertMarkup(*page, markup);
        FocusPage(*page);
    }
}

void FocusPage(DocumentModel &page)
{
    if (page.Status() != u"Design")
        page.rtfText().SetFocus();
    else if (DesignView *design = page.Design())
        design->SetFocus();
}

} // namespace brenix
