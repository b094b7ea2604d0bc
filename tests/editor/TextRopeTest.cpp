#include "editor/TextRope.h"

#include "editor/LineEnds.h"

#include <QRandomGenerator>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

QString RandomHeld(QRandomGenerator &random, int length)
{
    const QString units = u"abcde \n\r"_s + QChar(LineEnd::CrLf) + QChar(LineEnd::Soft);
    QString text;
    for (int i = 0; i < length; ++i)
        text += units[random.bounded(int(units.size()))];
    return text;
}

// The look-ups, from the plain text.
int TextPosition(const QString &held, qsizetype position)
{
    int count = 0;
    for (const QChar unit : QStringView(held).left(position))
        count += IsHardEnd(unit.unicode()) ? 2 : unit.unicode() == LineEnd::Soft ? 0 : 1;
    return count;
}

int FromTextPosition(const QString &held, int textPosition)
{
    int position = 0;
    for (int count = 0; position < held.size(); ++position) {
        count += TextPosition(held.mid(position, 1), 1);
        if (count > textPosition)
            break;
    }
    return position;
}

std::vector<int> HardEnds(const QString &held)
{
    std::vector<int> ends;
    for (int i = 0; i < held.size(); ++i) {
        if (IsHardEnd(held[i].unicode()))
            ends.push_back(i);
    }
    return ends;
}

QString TextOfPieces(const TextRope &rope)
{
    QString text;
    rope.ForEachPiece([&](QStringView piece) { text += piece; });
    return text;
}

void ExpectSameLookUps(const TextRope &rope, const QString &held, QRandomGenerator &random)
{
    const int length = int(held.size());
    const std::vector<int> ends = HardEnds(held);
    ASSERT_EQ(TextOfPieces(rope), held);
    ASSERT_EQ(rope.Length(), length);
    ASSERT_EQ(rope.TextLength(), TextPosition(held, length));
    ASSERT_EQ(rope.LineCount(), int(ends.size()) + 1);
    for (int i = 0; i < 8; ++i) {
        const int place = random.bounded(length + 1);
        ASSERT_EQ(rope.At(place), place < length ? held[place].unicode() : u'\0');
        const int count = random.bounded(length + 1);
        ASSERT_EQ(rope.Mid(place, count), held.mid(place, count));
        ASSERT_EQ(rope.ToTextPosition(place), TextPosition(held, place));
        const int textPlace = random.bounded(rope.TextLength() + 3);
        ASSERT_EQ(rope.FromTextPosition(textPlace), FromTextPosition(held, textPlace));
        const auto line = std::lower_bound(ends.begin(), ends.end(), place) - ends.begin();
        ASSERT_EQ(rope.LineOf(place), line);
        ASSERT_EQ(rope.LineStart(int(line)), line == 0 ? 0 : ends[std::size_t(line) - 1] + 1);
        ASSERT_EQ(rope.LineFinish(int(line)),
                  line < int(ends.size()) ? ends[std::size_t(line)] : length);
    }
    ASSERT_EQ(rope.LineStart(-1), -1);
    ASSERT_EQ(rope.LineStart(rope.LineCount()), -1);
}

} // namespace

TEST(TextRope, RandomEditsAgreeWithAString)
{
    QRandomGenerator random(11);
    for (const int startLength : {0, 600, 20000}) {
        QString held = RandomHeld(random, startLength);
        TextRope rope{held};
        QString oldHeld = held;
        TextRope oldRope = rope;
        for (int step = 0; step < 200; ++step) {
            const int from = random.bounded(int(held.size()) + 1);
            const int length
                = std::min(int(held.size()) - from, random.bounded(step % 10 == 0 ? 2000 : 12));
            const QString added = RandomHeld(random, random.bounded(step % 7 == 0 ? 1500 : 9));
            held.replace(from, length, added);
            rope = rope.Replaced(from, length, added);
            ASSERT_NO_FATAL_FAILURE(ExpectSameLookUps(rope, held, random));
            const auto least = std::min(held.size(), oldHeld.size());
            const auto prefix
                = std::mismatch(held.begin(), held.begin() + least, oldHeld.begin()).first;
            const auto suffix
                = std::mismatch(held.rbegin(), held.rbegin() + least, oldHeld.rbegin()).first;
            ASSERT_EQ(TextRope::CommonPrefix(rope, oldRope), prefix - held.begin());
            ASSERT_EQ(TextRope::CommonSuffix(oldRope, rope), suffix - held.rbegin());
            ASSERT_EQ(rope == oldRope, held == oldHeld);
            ASSERT_TRUE(rope == TextRope(held));
            if (step % 5 == 0) { // so that comparisons meet ropes several edits apart
                oldHeld = held;
                oldRope = rope;
            }
        }
    }
}

TEST(TextRope, PlacesOutsideTheText)
{
    const TextRope rope{u"ab\ncd"};
    EXPECT_EQ(rope.At(-1), u'\0');
    EXPECT_EQ(rope.At(5), u'\0');
    EXPECT_EQ(rope.Mid(-3, 4), u"ab\nc"_s);
    EXPECT_EQ(rope.Mid(4, 99), u"d"_s);
    EXPECT_EQ(rope.ToTextPosition(99), 6);
    EXPECT_EQ(rope.FromTextPosition(99), 5);
    EXPECT_EQ(rope.FromTextPosition(-1), 0);
    EXPECT_EQ(TextOfPieces(rope.Replaced(99, 9, u"x")), u"ab\ncdx"_s);
    EXPECT_EQ(TextOfPieces(rope.Replaced(-2, 1, u"x")), u"xb\ncd"_s);
    EXPECT_TRUE(rope.Replaced(0, 99, {}).IsEmpty());
    EXPECT_EQ(TextRope().LineCount(), 1);
}
