#include "editor/CodeHighlight.h"
#include "editor/Completion.h"
#include "editor/SourceTyping.h"
#include "editor/TypingSteps.h"
#include "editor/VirtualKeys.h"
#include "support/SettingsStore.h"
#include "tags/AttributeCatalogue.h"
#include "tags/ChooseLink.h"
#include "tags/InsertMarkup.h"
#include "tags/TagCatalogue.h"
#include "tags/ValueCatalogue.h"

#include <QFontDatabase>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int ColourLength = 7; // "#" and six digits

    bool InsertsEndTag()
    {
        return GetNumberSetting(u"Auto", u"ClosetagVersion", 2) == 1;
    }

} // namespace

void SourceTyping::OnTimer1()
{
    const QString dialect = Dialect();
    if (dialect != m_dialect) {
        m_dialect = dialect;
        QStringList names = TagNames(dialect);
        for (QString &name : names)
            name = name.toLower();
        m_lists.Fill(CompletionLists::Tags, names);
    }
    if (!m_source.isHidden() && !m_lists.IsEmpty(CompletionLists::Tags))
        m_lists.Show(CompletionLists::Tags, 0);
}

void SourceTyping::OnTimer4()
{
    if (!m_lists.IsShown(CompletionLists::Attributes)) {
        const TagSearch tag = FindTagAtCaret(m_source);
        if (tag.result == TagSearch::Result::Nothing)
            return;
        if (tag.result != TagSearch::Result::NoName)
            m_lists.Fill(CompletionLists::Attributes, AttributesOfTag(tag.name, Dialect()));
    }
    if (!m_source.isHidden() && !m_lists.IsEmpty(CompletionLists::Attributes))
        m_lists.Show(CompletionLists::Attributes);
}

void SourceTyping::OnValues()
{
    for (const auto kind :
         {CompletionLists::EndTag, CompletionLists::Tags, CompletionLists::Attributes})
        m_lists.Hide(kind);
    const QString name = FindAttributeAtCaret(m_source);
    if (name.isEmpty() || m_source.isHidden())
        return;
    const auto fonts = [] { return QFontDatabase::families(); };
    m_lists.Fill(CompletionLists::Values, ValuesOfAttribute(name, fonts, Dialect()));
    if (!m_lists.IsEmpty(CompletionLists::Values))
        m_lists.Show(CompletionLists::Values);
}

// False when the key is the view's: with nothing selected, and where a blank would add nothing to a
// word that the author has typed to its end. No key is lost in a list.
bool SourceTyping::Accept(int keyCode)
{
    using Lists = CompletionLists;
    constexpr Lists::Kind Order[]
        = {Lists::Macros, Lists::Values, Lists::Attributes, Lists::EndTag, Lists::Tags};
    const auto *shown
        = std::ranges::find_if(Order, [this](auto kind) { return m_lists.IsShown(kind); });
    if (shown == std::end(Order))
        return false;
    const QString row = m_lists.Selected(*shown);
    const QString typed = m_lists.Typed(*shown);
    m_lists.Hide(*shown);
    if (row.isEmpty())
        return false;
    AcceptRow(*shown, typed, row);
    const bool isWord = *shown != Lists::Macros && *shown != Lists::Values;
    return m_edited || keyCode != VirtualKey::Space || !isWord;
}

void SourceTyping::AcceptRow(CompletionLists::Kind kind, const QString &typed, const QString &row)
{
    switch (kind) {
    case CompletionLists::Attributes:
        if (AcceptAttribute(m_source, typed, row))
            ArmValues();
        break;
    case CompletionLists::EndTag: {
        // What stands before a "<" is the text between the tags, and stays.
        const qsizetype open = typed.lastIndexOf(u'<');
        AcceptAttribute(m_source, open < 0 ? QString() : typed.sliced(open), row);
        break;
    }
    case CompletionLists::Tags: {
        const bool closes = IsSettingOn(u"Auto", u"TagInsertGT", false);
        AcceptTag(m_source, typed, row, closes ? u">"_s : QString());
        if (closes && IsSettingOn(u"Auto", u"Closetag", true))
            OfferEndTag(true);
        break;
    }
    case CompletionLists::Values:
        AcceptValueRow(typed, row);
        break;
    case CompletionLists::Macros:
        RunMacro(row);
        break;
    case CompletionLists::KindCount:
        break;
    }
}

void SourceTyping::AcceptValueRow(const QString &typed, const QString &row)
{
    if (row == ColourChoice) {
        const int caret = m_source.SelStart();
        const int length = m_source.TextLength();
        InsertColour();
        if (m_source.TextLength() > length)
            m_source.SetSelStart(caret + ColourLength);
    } else if (row == FileChoice) {
        InsertFile();
    } else {
        AcceptValue(m_source, typed, row);
    }
}

void SourceTyping::InsertFile()
{
    const QString path
        = ChooseLink(m_page, {.title = u"Open"_s, .filter = u"All files (*.*)|*.*"_s});
    if (path.isEmpty())
        return;
    const int caret = m_source.SelStart();
    InsertSourceMarkup(m_source, path);
    m_source.SetSelStart(caret + int(path.size()));
}

void SourceTyping::OfferEndTag(bool upperName)
{
    const EndTagSearch search
        = FindEndTag(m_source, upperName ? EndTagName::Upper : EndTagName::AsTyped);
    if (search.takesNone)
        m_lists.Hide(CompletionLists::Tags);
    if (search.endTag.isEmpty())
        return;
    if (InsertsEndTag())
        return InsertEndTag(m_source, search.endTag);
    m_lists.Fill(CompletionLists::EndTag, {search.endTag});
    m_lists.Show(CompletionLists::EndTag);
}

} // namespace brenix
