#include "tags/SelectTag.h"

#include "support/SourceView.h"

namespace brenix {

namespace {
    constexpr int Reach = 200;
}

// Positions of the text count from 0 here: the character before the caret is the first that is
// looked at.
void SelectTagAtCaret(SourceView &source)
{
    const QString text = source.Text();
    const int before = source.SelStart() - 1;
    int start = before;
    while (start >= 0 && before - start <= Reach && text[start] != u'<') {
        if (text[start] == u'>')
            return;
        --start;
    }
    if (start < 0 || before - start > Reach)
        return;
    int end = before;
    while (end < text.size() && end - before <= Reach && text[end] != u'>')
        ++end;
    if (end >= text.size() || end - before > Reach)
        return;
    source.SetSelStart(start);
    source.SetSelLength(end + 1 - start);
}

} // namespace brenix
