#include "support/TextCodec.h"

#include <QRandomGenerator>
#include <QStringList>

#include <vector>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

QByteArray Hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

QByteArray RandomBytes(QRandomGenerator *random, int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(random->bounded(256));
    return bytes;
}

const QByteArray marks[]
    = {Hex("EFBBBF"), Hex("FFFE"), Hex("FEFF"), Hex("FFFE0000"), Hex("0000FEFF")};

/// Complete code pages, incomplete ones, several bytes a character, with shifts, no letters where
/// ASCII has them, Unicode under several names, and names that are none.
const QByteArray userCodecs[] = {"windows-1250",
                                 "windows-1252",
                                 "windows-1253",
                                 "windows-1255",
                                 "windows-874",
                                 "ISO-8859-1",
                                 "ISO-8859-6",
                                 "ISO-8859-8",
                                 "IBM852",
                                 "US-ASCII",
                                 "KOI8-R",
                                 "IBM037",
                                 "Shift_JIS",
                                 "EUC-JP",
                                 "ISO-2022-JP",
                                 "GB18030",
                                 "Big5",
                                 "HZ-GB-2312",
                                 "SCSU",
                                 "UTF-7",
                                 "UTF-8",
                                 "cp1208",
                                 "CESU-8",
                                 "UTF-16",
                                 "UTF-16LE",
                                 "UTF-32",
                                 "",
                                 " windows-1250 ",
                                 "no such",
                                 "../../etc",
                                 QByteArray(5000, 'x'),
                                 QByteArray("\xff\x00,=\n", 5)};

/// Codecs with which every page without a mark can be edited.
bool IsAlwaysFaithful(const QByteArray &codec)
{
    const QByteArrayList several = {"Shift_JIS",
                                    "EUC-JP",
                                    "ISO-2022-JP",
                                    "GB18030",
                                    "Big5",
                                    "HZ-GB-2312",
                                    "SCSU",
                                    "cp1208",
                                    "CESU-8"};
    return !several.contains(codec);
}

void ExpectSurvives(const QByteArray &bytes, const QByteArray &userCodec)
{
    const DecodedPage page = DecodePage(bytes, userCodec);
    if (!page.faithful)
        return;
    const EncodedPage again = EncodePage(page.text, page.encoding);
    ASSERT_EQ(again.firstUnencodable, -1) << userCodec.constData();
    ASSERT_EQ(again.bytes, bytes) << userCodec.constData();
}

} // namespace

TEST(TextCodec, WhatIsFaithfulGivesTheSameBytes)
{
    QRandomGenerator random(1);
    for (const QByteArray &codec : userCodecs) {
        for (int size = 0; size < 40; ++size) {
            const QByteArray bytes = RandomBytes(&random, size);
            ExpectSurvives(bytes, codec);
            for (const QByteArray &mark : marks)
                ExpectSurvives(mark + bytes, codec);
        }
    }
}

TEST(TextCodec, EveryPageWithoutMarkIsFaithful)
{
    QRandomGenerator random(2);
    for (const QByteArray &codec : userCodecs) {
        if (!IsAlwaysFaithful(codec))
            continue;
        for (int size = 0; size < 300; size += 7) {
            // The zero in front keeps the random bytes from making a mark.
            const QByteArray bytes = '\0' + RandomBytes(&random, size);
            ASSERT_TRUE(DecodePage(bytes, codec).faithful) << codec.constData();
        }
    }
}

TEST(TextCodec, ValidUnicodeWithMarkIsFaithful)
{
    QRandomGenerator random(3);
    const std::pair<QByteArray, QByteArray> encodings[] = {{marks[0], "UTF-8"},
                                                           {marks[1], "UTF-16LE"},
                                                           {marks[2], "UTF-16BE"},
                                                           {marks[3], "UTF-32LE"},
                                                           {marks[4], "UTF-32BE"}};
    for (int round = 0; round < 200; ++round) {
        QString text = round % 2 ? u"\uFEFF"_s : u"\u2029\uFDD0"_s;
        for (int i = 0; i < round; ++i) {
            const char32_t number = char32_t(random.bounded(0x110000));
            text += QChar::isSurrogate(number) ? u"\n"_s : QString::fromUcs4(&number, 1);
        }
        for (const auto &[mark, codec] : encodings) {
            const QByteArray bytes = EncodePage(text, {codec, mark}).bytes;
            const DecodedPage page = DecodePage(bytes, "windows-1250");
            ASSERT_TRUE(page.faithful) << codec.constData();
            ASSERT_EQ(page.encoding.codec, codec);
            ASSERT_EQ(page.encoding.byteOrderMark, mark);
            ASSERT_EQ(page.text, text) << codec.constData();
        }
    }
}

struct DecodeCase
{
    const char *name;
    QByteArray bytes;
    QByteArray userCodec;
    QString text;
    QByteArray codec;
    qsizetype markSize = 0;
    bool faithful = true;
};

class Decoding : public testing::TestWithParam<DecodeCase>
{
};

TEST_P(Decoding, FindsTheEncoding)
{
    const DecodeCase &row = GetParam();
    const DecodedPage page = DecodePage(row.bytes, row.userCodec);
    EXPECT_EQ(page.text, row.text);
    EXPECT_EQ(page.encoding.codec, row.codec);
    EXPECT_EQ(page.encoding.byteOrderMark, row.bytes.left(row.markSize));
    EXPECT_EQ(page.faithful, row.faithful);
}

// clang-format off
const DecodeCase decodeCases[] = {
    {"Empty",               {},                          {},             {},                  "UTF-8"},
    {"Ascii",               "a\r\nb",                    "windows-1253", u"a\r\nb"_s,         "UTF-8"},
    {"MarkAlone",           Hex("EFBBBF"),               {},             {},                  "UTF-8",    3},
    {"SecondMarkIsText",    Hex("EFBBBFEFBBBF61"),       {},             u"\uFEFF" "a"_s,     "UTF-8",    3},
    {"SecondWideMark",      Hex("FFFEFFFE6100"),         {},             u"\uFEFF" "a"_s,     "UTF-16LE", 2},
    {"ValidUtf8",           "\xC4\x8D",                  {},             u"\u010D"_s,         "UTF-8"},
    {"CutTailIsCodePage",   "a\xC4",                     {},             u"a\u00C4"_s,        "windows-1250"},
    {"SurrogateIsNoUtf8",   "\xED\xA0\x80",              "ISO-8859-1",   u"\u00ED\u00A0\u0080"_s, "ISO-8859-1"},
    {"OverlongIsNoUtf8",    "\xC0\x80",                  "ISO-8859-1",   u"\u00C0\u0080"_s,   "ISO-8859-1"},
    {"UndefinedAsControl",  "\x81\xE8",                  "windows-1250", u"\u0081\u010D"_s,   "windows-1250"},
    {"UndefinedLetter",     "\xD2\xE1",                  "windows-1253", u"\uF7D2\u03B1"_s,   "windows-1253"},
    {"UnknownCodec",        "\xE8",                      "no such",      u"\u010D"_s,         "windows-1250"},
    {"InvalidForUtf8",      "\xE8",                      "utf-8",        u"\u010D"_s,         "windows-1250"},
    {"SeveralBytes",        "\x93\xFA",                  "Shift_JIS",    u"\u65E5"_s,         "Shift_JIS"},
    {"Utf8WithMarkBroken",  Hex("EFBBBF61E8"),           {},             u"a\uFFFD"_s,        "UTF-8",    3, false},
    {"LoneSurrogate16",     Hex("FFFE00D8"),             {},             QString(QChar(0xD800)), "UTF-16LE", 2},
    {"NulBehindWideMark",   Hex("FFFE00006100"),         {},             QString(QChar(u'\0')) + u'a', "UTF-16LE", 2},
    {"Utf32",               Hex("FFFE000061000000"),     {},             u"a"_s,              "UTF-32LE", 4},
    {"NoMarkButBytes",      Hex("0000FEFF61"),           {},             QString(2, QChar(u'\0')) + u"\u0163\u02D9" "a"_s, "windows-1250"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(, Decoding, testing::ValuesIn(decodeCases), [](const auto &row) {
    return std::string(row.param.name);
});

struct EncodeCase
{
    const char *name;
    QString text;
    PageEncoding encoding;
    qsizetype firstUnencodable;
    QByteArray withReferences;
};

class Encoding : public testing::TestWithParam<EncodeCase>
{
};

TEST_P(Encoding, NeverReplacesALetter)
{
    const EncodeCase &row = GetParam();
    const EncodedPage refused = EncodePage(row.text, row.encoding);
    EXPECT_EQ(refused.firstUnencodable, row.firstUnencodable);
    EXPECT_EQ(refused.bytes, row.firstUnencodable < 0 ? row.withReferences : QByteArray());
    const EncodedPage written = EncodePage(row.text, row.encoding, Unencodable::CharacterReference);
    EXPECT_EQ(written.firstUnencodable, row.firstUnencodable);
    EXPECT_EQ(written.bytes, row.withReferences);
}

// clang-format off
const EncodeCase encodeCases[] = {
    {"AllThere",           u"\u010D?"_s,                    {"windows-1250", {}},            -1, "\xE8?"},
    {"Missing",            u"ab\u20AC\u03B1"_s,             {"windows-1250", {}},             3, "ab\x80&#945;"},
    {"PairIsOneCharacter", u"a\U0001F600b\U0001F600"_s,     {"ISO-8859-1", {}},               1, "a&#128512;b&#128512;"},
    {"UndefinedByteIsNoLetter", u"\u00D2"_s,                {"windows-1253", {}},             0, "&#210;"},
    {"SimilarIsNotSame",   u"\uFF21"_s,                     {"windows-1252", {}},             0, "&#65313;"},
    {"SeveralBytes",       u"\u65E5\u010D"_s,               {"Shift_JIS", {}},                1, "\x93\xFA&#269;"},
    {"SubstituteByteItself", u"\u001A\u010D"_s,             {"windows-1250", {}},            -1, "\x1A\xE8"},
    {"LoneSurrogate",      u"a"_s + QChar(0xDC00),          {"UTF-8", {}},                    1, "a&#56320;"},
    {"LoneSurrogateWide",  QString(QChar(0xD800)),          {"UTF-32BE", {}},                 0, QByteArray("\0\0\0&\0\0\0#\0\0\0005\0\0\0005\0\0\0002\0\0\0009\0\0\0006\0\0\0;", 32)},
    {"MarkComesFirst",     u"\u010D"_s,                     {"UTF-8", Hex("EFBBBF")},        -1, Hex("EFBBBFC48D")},
    {"UnknownCodec",       u"\u010D"_s,                     {"no such", {}},                 -1, "\xE8"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(, Encoding, testing::ValuesIn(encodeCases), [](const auto &row) {
    return std::string(row.param.name);
});

// What is encoded must be readable again, also with codecs that lose the end of a text without an
// error.
TEST(TextCodec, WhatIsEncodedDecodesToTheText)
{
    QRandomGenerator random(4);
    for (const QByteArray &codec : userCodecs) {
        for (int round = 0; round < 60; ++round) {
            QString text = u"\u00FF"_s;
            for (int i = 0; i < round; ++i)
                text += QChar(char16_t(random.bounded(i % 3 ? 0x180 : 0x10000)));
            const EncodedPage encoded = EncodePage(text, {codec, {}});
            if (encoded.firstUnencodable >= 0)
                continue;
            const DecodedPage page = DecodePage(encoded.bytes, codec);
            const bool isTheSameCodec = page.encoding.codec == codec.trimmed();
            ASSERT_TRUE(page.text == text || !isTheSameCodec) << codec.constData() << round;
        }
    }
}

TEST(TextCodec, StandInsAreReversible)
{
    const QString text = u"a\u2029\uFDD0\uFDD1\u2028\u00A0b"_s;
    const QString shown = WithStandIns(text);
    EXPECT_FALSE(HoldsStandIns(text));
    EXPECT_TRUE(HoldsStandIns(shown));
    for (const char16_t lost : {0x2029, 0xFDD0, 0xFDD1})
        EXPECT_FALSE(shown.contains(QChar(lost)));
    EXPECT_EQ(shown.size(), text.size());
    EXPECT_EQ(WithoutStandIns(shown), text);
}
