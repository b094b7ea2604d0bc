#include "tags/SelectTag.h"

#include "support/SourceView.h"

#include <algorithm>

namespace brenix {

namespace {
    constexpr int Reach = 200;
}

// Positions count from 0: the character before the caret is the first that is looked at. `text` is
// what can be reached, and begins at `pageFirst` of the page.
void SelectTagAtCaret(SourceView &source)
{
    const int pageBefore = source.SelStart() - 1;
    if (pageBefore < 0)
        return;
    const int pageFirst = std::max(0, pageBefore - Reach);
    const QString text = source.TextAt(pageFirst, pageBefore + Reach + 1 - pageFirst);
    const int before = pageBefore - pageFirst;
    int start = before;
    while (start >= 0 && text[start] != u'<') {
        if (text[start] == u'>')
            return;
        --start;
    }
    const qsizetype end = text.indexOf(u'>', before);
    if (start < 0 || end < 0)
        return;
    source.SetSelStart(pageFirst + start);
    source.SetSelLength(int(end) + 1 - start);
}

} // namespace brenix
