#include "editor/TypingSteps.h"

#include "editor/VirtualKeys.h"
#include "support/SourceView.h"
#include "tags/InsertMarkup.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int LineReach = 200;
    constexpr int TagReach = 100;

    // Compared as a whole, in any case.
    constexpr QStringView BareTagsWithoutEnd[] = {u"<br", u"<meta", u"<hr", u"<bgsound", u"<li"};
    // What a tag begins with, in just this case.
    constexpr QStringView TagsWithoutEnd[] = {
        u"<!",
        u"<param",
        u"<frame",
        u"<wbr",
        u"<spacer",
        u"<link",
        u"<keygen",
        u"<isindex",
        u"<input",
        u"<img",
        u"<hr",
        u"<col ",
        u"<basefont",
        u"<base",
        u"<area",
    };

    enum class Held { ControlAlone, Shift, NoShift };
    enum class Insertion { AsItIs, Markup, MarkupRoundSelection };

    struct Shortcut
    {
        int keyCode;
        Held held;
        Insertion insertion;
        const char16_t *start;
        const char16_t *end;
    };
    // clang-format off
    constexpr Shortcut Shortcuts[] = {
        {VirtualKey::Return,   Held::ControlAlone, Insertion::Markup, u"<P>",     u""},
        {VirtualKey::Add,      Held::ControlAlone, Insertion::Markup, u"<BIG>",   u"</BIG>"},
        {VirtualKey::Subtract, Held::ControlAlone, Insertion::Markup, u"<SMALL>", u"</SMALL>"},
        {VirtualKey::Space,    Held::ControlAlone, Insertion::AsItIs, u"&nbsp;",  u""},
        {'B',                  Held::ControlAlone, Insertion::Markup, u"<B>",     u"</B>"},
        {'I',                  Held::ControlAlone, Insertion::Markup, u"<I>",     u"</I>"},
        {'U',                  Held::ControlAlone, Insertion::Markup, u"<U>",     u"</U>"},
        {'L', Held::ControlAlone, Insertion::MarkupRoundSelection, u"<div align=\"left\">", u"<div>"},
        {'E', Held::ControlAlone, Insertion::MarkupRoundSelection, u"<div align=\"center\">", u"</div>"},
        {'R', Held::ControlAlone, Insertion::MarkupRoundSelection, u"<div align=\"right\">", u"</div>"},
        {VirtualKey::Tab,      Held::NoShift,      Insertion::AsItIs, u"    ",    u""},
        {VirtualKey::Return,   Held::Shift,        Insertion::Markup, u"<BR>",    u""},
        {VirtualKey::Space,    Held::Shift,        Insertion::Markup, u"&nbsp;",  u""},
    };
    // clang-format on

    bool IsHeld(Held held, int shift)
    {
        const bool controlAlone = shift == ShiftBit::Control;
        if (held == Held::ControlAlone || controlAlone)
            return held == Held::ControlAlone && controlAlone;
        return (held == Held::Shift) == ((shift & ShiftBit::Shift) != 0);
    }

    // The scans read the text at the caret, so that there has to be one.
    void EnsureTextBehindCaret(SourceView &source)
    {
        const int caret = source.SelStart();
        if (caret != source.TextLength() || source.IsReadOnlyPage())
            return;
        source.SetSelText(u" "_s);
        source.SetSelStart(caret);
    }

    struct LineHead
    {
        int toLineEnd; // from the line end before the caret's line up to the caret
        int blanks; // that open the line, before the caret
    };
    LineHead ReadLineHead(const SourceView &source)
    {
        const QString before = TextBefore(source, source.SelStart(), LineReach + 1);
        const qsizetype lineEnd = before.lastIndexOf(u'\r');
        if (lineEnd < 0)
            return {LineReach + 1, 0};
        const auto line = before.begin() + std::min(lineEnd + 2, before.size());
        const auto text = std::find_if(line, before.end(), [](QChar unit) { return unit != u' '; });
        return {int(before.size() - 1 - lineEnd), int(text - line)};
    }

    bool TakesNoEndTag(const QString &tag)
    {
        return std::ranges::any_of(
                   BareTagsWithoutEnd,
                   [&](QStringView bare) { return tag.compare(bare, Qt::CaseInsensitive) == 0; })
            || std::ranges::any_of(TagsWithoutEnd,
                                   [&](QStringView start) { return tag.startsWith(start); });
    }

} // namespace

QString TextBefore(const SourceView &source, int position, int length)
{
    const int start = std::max(0, position - length);
    return source.TextAt(start, std::max(0, position - start));
}

bool HomeStep(SourceView &source)
{
    if (source.LineIndex() == 0)
        return false;
    EnsureTextBehindCaret(source);
    const int caret = source.SelStart();
    const LineHead head = ReadLineHead(source);
    int target = std::max(0, caret - head.toLineEnd + head.blanks + 1);
    if (target == caret)
        return false;
    const QString unit = source.TextAt(target, 1);
    if (target > 0 && !unit.isEmpty() && unit.front().isLowSurrogate())
        --target;
    source.SetSelStart(target);
    return true;
}

bool EnterStep(SourceView &source)
{
    if (source.LineIndex() == 0 || source.IsReadOnlyPage())
        return false;
    EnsureTextBehindCaret(source);
    source.SetSelText(u"\r\n"_s + QString(ReadLineHead(source).blanks, u' '));
    return true;
}

EndTagSearch FindEndTag(const SourceView &source, EndTagName name)
{
    const QString before = TextBefore(source, source.SelStart() - 1, TagReach);
    const qsizetype open = before.lastIndexOf(u'<');
    if (open < 0 || before.lastIndexOf(u'>') > open)
        return {};
    const QString tag = before.sliced(open);
    if (tag.size() > 1 && (tag[1] == u'/' || tag[1] == u'\\'))
        return {};
    if (TakesNoEndTag(tag))
        return {.endTag = {}, .takesNone = true};

    const qsizetype blank = tag.indexOf(u' ');
    if (blank < 0 || blank == tag.size() - 1)
        return {u"</"_s + tag.sliced(1) + u'>'};
    const QString word = tag.sliced(1, blank - 1);
    return {u"</"_s + (name == EndTagName::Upper ? word.toUpper() : word) + u'>'};
}

void InsertEndTag(SourceView &source, const QString &endTag)
{
    const int caret = source.SelStart();
    if (source.TextAt(caret, int(endTag.size())).compare(endTag, Qt::CaseInsensitive) == 0)
        return;
    source.SetSelText(endTag);
    source.SetSelStart(caret);
}

bool ApplyShortcut(SourceView &source, int keyCode, int shift)
{
    const auto *row = std::ranges::find_if(Shortcuts, [&](const Shortcut &shortcut) {
        return shortcut.keyCode == keyCode && IsHeld(shortcut.held, shift);
    });
    if (row == std::end(Shortcuts))
        return false;
    const QString start = QString::fromUtf16(row->start);
    const QString end = QString::fromUtf16(row->end);
    if (row->insertion == Insertion::AsItIs)
        source.SetSelText(start);
    else if (row->insertion == Insertion::Markup)
        InsertSourceMarkup(source, start + end);
    else
        InsertSourceMarkup(source, start + source.SelText() + end);
    return true;
}

} // namespace brenix
