#include "editor/PageText.h"

#include "editor/LineEnds.h"
#include "support/TextCodec.h"

#include <QRandomGenerator>
#include <QStringList>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// Line ends of every kind, characters that a text document cannot hold, and long lines.
QString RandomFileText(QRandomGenerator &random, int pieces)
{
    const QStringList parts = {u"\r\n"_s,
                               u"\n"_s,
                               u"\r"_s,
                               u"a"_s,
                               u"<b> "_s,
                               u"\u2028\u00A0"_s,
                               u"\u2029"_s,
                               QString(QChar(0xFDD0)),
                               QString(QChar(0xFDD1)),
                               QString(QChar(u'\0')),
                               u"\U0001F600"_s,
                               QString(QChar(0xD83D))};
    QString text;
    for (int i = 0; i < pieces; ++i) {
        QString part = parts[random.bounded(int(parts.size()))];
        if (part != u"\r\n"_s && random.bounded(40) == 0)
            part = part.repeated(random.bounded(9000));
        text += part;
    }
    return text;
}

} // namespace

TEST(PageText, RoundTrip)
{
    QRandomGenerator random(3);
    for (int i = 0; i < 300; ++i) {
        const QString file = RandomFileText(random, 1 + random.bounded(60));
        const QString held = HeldText(file);
        const TextRope rope{held};
        ASSERT_EQ(FileTextOf(rope), file) << i;

        QString asSeen = file;
        asSeen.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u"\n"_s, u"\r\n"_s);
        ASSERT_EQ(TextOf(rope), asSeen) << i;
        ASSERT_EQ(TextOf(QStringView(held)), asSeen) << i;
        ASSERT_EQ(rope.TextLength(), asSeen.size()) << i;
        ASSERT_EQ(FileTextOf(TextRope(HeldText(asSeen, LineEnd::Lf))),
                  QString(asSeen).replace(u"\r\n"_s, u"\n"_s))
            << i;

        // Blocks are short enough, and none begins within a character.
        const QStringList blocks = DocumentText(held).split(u'\n');
        const std::vector<int> ends = BlockEnds(rope);
        ASSERT_EQ(ends.size() + 1, std::size_t(blocks.size()));
        int from = 0;
        for (qsizetype b = 0; b < blocks.size(); ++b) {
            ASSERT_LE(blocks[b].size(), LongestBlock);
            const int upTo
                = std::size_t(b) < ends.size() ? ends[std::size_t(b)] : int(asSeen.size());
            QString block = asSeen.sliced(from, upTo - from);
            if (block.endsWith(u"\r\n"_s))
                block.chop(2);
            ASSERT_EQ(WithStandIns(block), blocks[b]);
            ASSERT_FALSE(upTo > 0 && upTo < asSeen.size() && asSeen[upTo].isLowSurrogate()
                         && asSeen[upTo - 1].isHighSurrogate());
            from = upTo;
        }
    }
}

TEST(PageText, UsualLineEnd)
{
    const struct
    {
        const char *name;
        QString file;
        char16_t expected;
    } rows[] = {{"none", u"a"_s, LineEnd::CrLf},
                {"most", u"\n\n\r\n\r"_s, LineEnd::Lf},
                {"old", u"\r\r\n\r"_s, LineEnd::Cr},
                {"as many CR LF as LF", u"\n\r\n"_s, LineEnd::CrLf},
                {"as many LF as CR", u"\n\n a\r \r"_s, LineEnd::Lf}};
    for (const auto &row : rows)
        EXPECT_EQ(UsualLineEnd(HeldText(row.file)), row.expected) << row.name;
}
