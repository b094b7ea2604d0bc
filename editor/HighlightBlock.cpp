#include "editor/HighlightBlock.h"

#include <cstring>

namespace brenix {

namespace {

    // The classic values of the 25 system colours, in the order of their numbers.
    // clang-format off
    constexpr quint32 SystemColours[] = {
        0xC8D0D4, 0xA56E3A, 0x6A240A, 0x808080, 0xC8D0D4, 0xFFFFFF, 0x000000, 0x000000, 0x000000,
        0xFFFFFF, 0xC8D0D4, 0xC8D0D4, 0x808080, 0x6A240A, 0xFFFFFF, 0xC8D0D4, 0x808080, 0x808080,
        0x000000, 0xC8D0D4, 0xFFFFFF, 0x404040, 0xC8D0D4, 0x000000, 0xE1FFFF,
    };
    // clang-format on

    constexpr qsizetype ColourTableRoom = 200;

    // What the delimiters are written as, in their order.
    constexpr QStringView DelimiterStream[] = {
        u" ",
        u"\\par \r\n",
        u"\\tab ",
        u"\\cf2 (\\cf0 ",
        u"\\cf2 )\\cf0 ",
        u"\\cf2 =\\cf0 ",
        u"\\cf2 +\\cf0 ",
        u"\\cf2 -\\cf0 ",
        u"\\cf2 *\\cf0 ",
        u"\\cf2 >\\cf0 ",
        u"\\cf2 <\\cf0 ",
        u"\\cf2 \\\\\\cf0 ",
        u"\\cf2 /\\cf0 ",
        u"\\cf2 \\{\\cf0 ",
        u"\\cf2 \\}\\cf0 ",
    };

    struct Affix
    {
        QStringView prefix;
        QStringView suffix;
    };
    constexpr Affix AffixOf(BlockPaint paint)
    {
        switch (paint) {
        case BlockPaint::Declaration:
            return {u"\\cf1\\i", u"\\cf0\\i0"};
        case BlockPaint::TableTag:
            return {u"\\cf2", u"\\cf0 "};
        case BlockPaint::LoneColon:
        case BlockPaint::ServerCode:
            return {u"\\cf2\\b\\", u"\\b0\\cf0 "};
        case BlockPaint::FreeAmpersand:
        case BlockPaint::OpenEntity:
            return {u"\\cf0", u"\\cf0"};
        case BlockPaint::Entity:
            return {u"\\cf3\\i\\b\\", u"\\b0\\i0\\cf0 "};
        case BlockPaint::Anchor:
            return {u"\\cf4\\b\\", u"\\b0\\cf0 "};
        case BlockPaint::Other:
            break;
        }
        return {u"\\cf4", u"\\cf0 "};
    }

    // Text that grows in few steps: a stream is two or three times as long as its page. Room is
    // made once for each part of the text, so that its pieces are copied without a test.
    class StreamBuffer
    {
    public:
        explicit StreamBuffer(qsizetype expected)
            : m_text(expected, Qt::Uninitialized)
            , m_end(m_text.data())
            , m_limit(m_end + expected)
        {
        }
        void MakeRoomFor(qsizetype length)
        {
            if (m_limit - m_end < length)
                Grow(length);
        }
        void Add(QStringView part)
        {
            constexpr qsizetype Short = 16; // below, a loop beats the call
            if (part.size() <= Short)
                return AddShort(part);
            std::memcpy(
                static_cast<void *>(m_end), part.data(), std::size_t(part.size()) * sizeof(QChar));
            m_end += part.size();
        }
        void AddShort(QStringView part)
        {
            for (const QChar unit : part)
                *m_end++ = unit;
        }
        // Control words: their length is known, so that copying them is a few moves.
        template <std::size_t Size> void Add(const char16_t (&literal)[Size])
        {
            std::memcpy(static_cast<void *>(m_end), literal, (Size - 1) * sizeof(char16_t));
            m_end += Size - 1;
        }
        QString Take()
        {
            m_text.truncate(m_end - m_text.constData());
            return std::move(m_text);
        }

    private:
        void Grow(qsizetype length)
        {
            const qsizetype used = m_end - m_text.constData();
            const qsizetype wanted = (used + length) * 5 / 4;
            m_text.reserve(wanted); // or resizing would make room for twice as much
            m_text.resize(wanted);
            m_end = m_text.data() + used;
            m_limit = m_text.data() + m_text.size();
        }

        QString m_text;
        QChar *m_end;
        QChar *m_limit;
    };

    class StreamSink
    {
    public:
        static constexpr bool TakesPlainWords = true;

        StreamSink(QStringView text, const SyntaxTables &tables, StreamBuffer &out)
            : m_text(text)
            , m_tables(tables)
            , m_out(out)
        {
        }

        void Word(qsizetype start, qsizetype length, int index)
        {
            QStringView word = m_text.sliced(start, length);
            m_out.MakeRoomFor(length + LongestControls);
            if (index < 0) {
                m_out.Add(u"\\cf0 ");
            } else {
                const auto &entry = m_tables.WordAt(index);
                const char16_t number = u'0' + int(entry.wordClass);
                m_out.Add(u"\\cf");
                m_out.Add(QStringView(&number, 1));
                m_out.Add(u" ");
                if (m_tables.NormalisesCase())
                    word = entry.text;
            }
            m_out.Add(word);
            m_out.Add(u"\\cf0 ");
        }

        void Delimiter(qsizetype, int index)
        {
            m_out.MakeRoomFor(LongestControls);
            m_out.AddShort(DelimiterStream[index]);
        }

        void Block(const ScannedBlock &block)
        {
            const Affix affix = AffixOf(block.paint);
            const QStringView end = block.EndText(m_tables);
            m_out.MakeRoomFor(block.length * LongestEscape + end.size() + LongestControls);
            m_out.AddShort(affix.prefix);
            AddEscaped(m_text.sliced(block.start, block.length));
            if (end == u"\r\n")
                m_out.Add(u"\\par\r\n");
            else
                m_out.Add(end == u"\t" ? QStringView(u"\\tab ") : end);
            m_out.AddShort(affix.suffix);
        }

    private:
        static constexpr qsizetype LongestControls = 32; // before and behind one part
        static constexpr qsizetype LongestEscape
            = 3; // units for one: a line end of two becomes five

        static bool NeedsEscape(char16_t unit)
        {
            return unit == u'\\' || unit == u'{' || unit == u'}' || unit == u'\r';
        }

        void AddEscaped(QStringView block)
        {
            qsizetype plainFrom = 0;
            for (qsizetype i = 0; i < block.size(); ++i) {
                const char16_t unit = block[i].unicode();
                if (!NeedsEscape(unit))
                    continue;
                const bool lineEnd = unit == u'\r';
                if (lineEnd && (i + 1 == block.size() || block[i + 1] != u'\n'))
                    continue;
                m_out.Add(block.sliced(plainFrom, i - plainFrom));
                m_out.AddShort(lineEnd ? QStringView(u"\\par ") : QStringView(u"\\"));
                plainFrom = lineEnd ? i + 2 : i;
            }
            m_out.Add(block.sliced(plainFrom));
        }

        QStringView m_text;
        const SyntaxTables &m_tables;
        StreamBuffer &m_out;
    };

} // namespace

qint64 TranslateColour(quint32 colour)
{
    if (colour <= 0xFFFFFF)
        return colour;
    const quint32 number = colour & 0xFFFFFF;
    if (colour >> 24 != 0x80 || number >= std::size(SystemColours))
        return -1;
    return SystemColours[number];
}

QString ColorTableEntry(quint32 colour)
{
    const qint64 translated = TranslateColour(colour);
    const auto rgb = translated < 0 ? 0xFFFFFFu : quint32(translated);
    return QStringLiteral("\\red%1\\green%2\\blue%3;")
        .arg(rgb & 0xFF)
        .arg(rgb >> 8 & 0xFF)
        .arg(rgb >> 16 & 0xFF);
}

QString HighlightBlock(QStringView text, const SyntaxTables &tables, const SyntaxColours &colours)
{
    if (tables.CurrentLanguage() == SyntaxTables::None)
        return text.toString();
    if (text.isEmpty())
        return {};
    StreamBuffer out(text.size() * 3 + ColourTableRoom);
    out.Add(u"{{\\colortbl ;");
    for (const quint32 colour : {colours.keyword, colours.op, colours.function, colours.delimiter})
        out.Add(ColorTableEntry(colour));
    out.Add(u"}");
    StreamSink sink(text, tables, out);
    ScanSyntax(text, tables, sink);
    out.MakeRoomFor(1);
    out.Add(u"}");
    return out.Take();
}

} // namespace brenix
