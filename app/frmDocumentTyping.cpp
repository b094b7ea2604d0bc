#include "app/frmDocument.h"
#include "editor/CodeHighlight.h"
#include "editor/SourceTyping.h"
#include "support/ColourText.h"
#include "support/MessageBoxes.h"
#include "tags/InsertMarkup.h"

namespace brenix {

void frmDocument::BuildTyping()
{
    m_typing = new SourceTyping(*m_source, *this, *this);
    m_typing->Lists().SetBarHeight(ViewBarHeight());
    m_typing->Dialect = [this] { return m_bars.Dialect(); };
    m_typing->InsertColour = [this] {
        if (const auto colour = ChooseColour(0))
            InsertMarkup(*this, ColourText(*colour));
    };
}

void frmDocument::RemoveLists()
{
    m_typing->RemoveLists();
}

} // namespace brenix
