#include "macros/SendKeys.h"

#include <gmock/gmock.h>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

using Keys = QList<KeyStroke>;

constexpr auto shift = Qt::ShiftModifier;
constexpr auto control = Qt::ControlModifier;
constexpr auto alt = Qt::AltModifier;

TEST(SendKeys, ReadsTheNotation)
{
    const struct
    {
        const char *name;
        QString text;
        Keys keys;
    } rows[] = {
        {"characters", u"a<"_s, {{Qt::Key_A, {}, u"a"_s}, {Qt::Key_Less, {}, u"<"_s}}},
        {"a capital holds Shift", u"A"_s, {{Qt::Key_A, shift, u"A"_s}}},
        {"beyond ASCII",
         u"\u00F8\U0001F600"_s,
         {{Qt::Key_Ooblique, {}, u"\u00F8"_s}, {0x1F600, {}, u"\U0001F600"_s}}},
        {"no capital of one unit", u"\u00DF"_s, {{Qt::Key_ssharp, {}, u"\u00DF"_s}}},
        {"names in any case",
         u"{Enter}{DEL}"_s,
         {{Qt::Key_Return, {}, u"\r"_s}, {Qt::Key_Delete, {}, u"\x7F"_s}}},
        {"tilde", u"~"_s, {{Qt::Key_Return, {}, u"\r"_s}}},
        {"function keys", u"{f1}{f16}"_s, {{Qt::Key_F1, {}, {}}, {Qt::Key_F16, {}, {}}}},
        {"counts", u"{down 5}{x 2}"_s, {{Qt::Key_Down, {}, {}, 5}, {Qt::Key_X, {}, u"x"_s, 2}}},
        {"no times", u"{x 0}y"_s, {{Qt::Key_Y, {}, u"y"_s}}},
        {"signs in braces",
         u"{+}{{}{}}{ }"_s,
         {{Qt::Key_Plus, {}, u"+"_s},
          {Qt::Key_BraceLeft, {}, u"{"_s},
          {Qt::Key_BraceRight, {}, u"}"_s},
          {Qt::Key_Space, {}, u" "_s}}},
        {"prefixes hold for one key",
         u"^a^+{home}b"_s,
         {{Qt::Key_A, control, {}}, {Qt::Key_Home, control | shift, {}}, {Qt::Key_B, {}, u"b"_s}}},
        {"or for a group",
         u"+(ab)%(x^y)z"_s,
         {{Qt::Key_A, shift, u"A"_s},
          {Qt::Key_B, shift, u"B"_s},
          {Qt::Key_X, alt, {}},
          {Qt::Key_Y, alt | control, {}},
          {Qt::Key_Z, {}, u"z"_s}}},
        {"nothing", {}, {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ReadKeys(row.text), std::optional(row.keys));
    }
}

TEST(SendKeys, RefusesWhatIsNotWellFormed)
{
    for (const QString &text : {u"{"_s,
                                u"{}"_s,
                                u"{enter"_s,
                                u"}"_s,
                                u"{nokey}"_s,
                                u"{f0}"_s,
                                u"{f17}"_s,
                                u"{f+1}"_s,
                                u"{x y}"_s,
                                u"{x -1}"_s,
                                u"{x 99999999999}"_s,
                                u"{del }"_s,
                                u"("_s,
                                u")"_s,
                                u"((a))"_s,
                                u"(a^)"_s,
                                u"^"_s})
        EXPECT_EQ(ReadKeys(text), std::nullopt) << text.toStdString();
}

} // namespace
