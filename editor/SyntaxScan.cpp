#include "editor/SyntaxScan.h"

namespace brenix {

namespace {

    constexpr char16_t AsciiLower(char16_t unit)
    {
        return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit;
    }

    // The block with its end behind it, read without making it.
    class BlockText
    {
    public:
        BlockText(QStringView block, QStringView end)
            : m_block(block)
            , m_end(end)
        {
        }
        qsizetype Length() const { return m_block.size() + m_end.size(); }
        char16_t At(qsizetype i) const
        {
            if (i < m_block.size())
                return m_block[i].unicode();
            return i < Length() ? m_end[i - m_block.size()].unicode() : u'\0';
        }
        bool BeginsLowerCased(QStringView mark) const
        {
            for (qsizetype i = 0; i < mark.size(); ++i) {
                if (AsciiLower(At(i)) != mark[i].unicode())
                    return false;
            }
            return true;
        }
        char16_t Last() const { return At(Length() - 1); }

    private:
        QStringView m_block;
        QStringView m_end;
    };

    constexpr QStringView TableMarks[]
        = {u"<td", u"<tr", u"<table", u"</td>", u"</tr>", u"</table>"};

} // namespace

BlockPaint PaintOfBlock(QStringView block, QStringView end)
{
    const BlockText text(block, end);
    switch (text.At(0)) {
    case u'<':
        break;
    case u'&':
        // A line end at the very end is written as a control word, so that it never is a ";".
        if (text.Last() != u';')
            return BlockPaint::OpenEntity;
        return text.At(1) == u' ' ? BlockPaint::FreeAmpersand : BlockPaint::Entity;
    case u':':
        return text.Length() == 1 ? BlockPaint::LoneColon : BlockPaint::Other;
    default:
        return BlockPaint::Other;
    }
    switch (text.At(1)) {
    case u'!':
        return BlockPaint::Declaration;
    case u'?':
    case u'%':
        return BlockPaint::ServerCode;
    case u'a':
    case u'A':
        return text.At(2) == u' ' ? BlockPaint::Anchor : BlockPaint::Other;
    case u'/':
    case u't':
    case u'T':
        for (const QStringView mark : TableMarks) {
            if (text.BeginsLowerCased(mark))
                return BlockPaint::TableTag;
        }
        return text.BeginsLowerCased(u"</a>") ? BlockPaint::Anchor : BlockPaint::Other;
    default:
        return BlockPaint::Other;
    }
}

} // namespace brenix
