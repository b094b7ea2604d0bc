#include "app/frmDocument.h"
#include "editor/CodeHighlight.h"
#include "editor/InsertMarkup.h"
#include "editor/SourceTyping.h"
#include "support/MessageBoxes.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // "#", then red, green and blue; a choice comes in blue-green-red order.
    QString HtmlColour(quint32 colour)
    {
        const quint32 rgb = (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
        return u"#%1"_s.arg(rgb, 6, 16, QChar(u'0')).toUpper();
    }

} // namespace

void frmDocument::BuildTyping()
{
    m_typing = new SourceTyping(*m_source, *this, *this);
    m_typing->Lists().SetBarHeight(ViewBarHeight());
    m_typing->Dialect = [this] { return m_bars.Dialect(); };
    m_typing->InsertColour = [this] {
        if (const auto colour = ChooseColour(0))
            InsertMarkup(*this, HtmlColour(*colour));
    };
}

void frmDocument::RemoveLists()
{
    m_typing->RemoveLists();
}

} // namespace brenix
