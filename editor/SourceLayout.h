#pragma once

#include <QPlainTextDocumentLayout>

#include <algorithm>

namespace brenix {

/// The layout of a plain text edit, told precisely what has changed. The base class adds up what
/// was removed and what was added, so that every key press in a coloured line would end behind its
/// block, and repaint the whole window.
class SourceLayout : public QPlainTextDocumentLayout
{
public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

protected:
    void documentChanged(int from, int, int charsAdded) override
    {
        QPlainTextDocumentLayout::documentChanged(from, 0, std::max(1, charsAdded));
    }
};

} // namespace brenix
