#include "support/ShowSource.h"

#include "support/DocumentModel.h"

using namespace Qt::StringLiterals;

namespace brenix {

bool ShowsSource(const DocumentModel &page)
{
    return page.Status() == u"HTML" || page.Status() == u"Split";
}

bool BringUpSource(DocumentModel &page)
{
    if (!ShowsSource(page))
        page.Status = u"HTML"_s;
    return ShowsSource(page);
}

} // namespace brenix
