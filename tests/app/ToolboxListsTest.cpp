#include "app/ClipboardFile.h"
#include "app/ProjectFiles.h"
#include "tests/support/PrintQt.h"

#include <gmock/gmock.h>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(ProjectFiles, MarkupByTheEnding)
{
    const std::tuple<QString, QString, QString> cases[] = {
        {u"a.gif"_s, u"sel"_s, u"<img src = \"a.gif\">"_s},
        {u"a.JPEG"_s, {}, u"<img src = \"a.JPEG\">"_s},
        {u"mypng"_s, {}, u"<img src = \"mypng\">"_s},
        {u"a.jpe"_s, {}, u"<A href = \"a.jpe\"></A>"_s},
        {u"a b.html"_s, u"sel"_s, u"<A href = \"a b.html\">sel</A>"_s},
        {u"a\"b.png"_s, {}, u"<img src = \"a&quot;b.png\">"_s},
    };
    for (const auto &[name, selection, markup] : cases)
        EXPECT_EQ(ProjectMarkup(name, selection), markup);
}

TEST(ClipboardFile, ReadsFields)
{
    const std::tuple<const char *, QString, QStringList> cases[] = {
        {"lines", u"a\r\nb\r\n"_s, {u"a"_s, u"b"_s}},
        {"a comma", u"a,b\r\n"_s, {u"a"_s, u"b"_s}},
        {"quotes", u"\"a,\r\nb\"\r\nc"_s, {u"a,\r\nb"_s, u"c"_s}},
        {"an open quote", u"a\r\n\"b\r\nc"_s, {u"a"_s, u"b\r\nc"_s}},
        {"NUL", u"a\0b"_s, {u"a\0b"_s}},
        {"nothing", {}, {}},
        {"more than are wanted", u"1,2,3,4,5,6,7,8,9"_s, {u"6"_s, u"7"_s, u"8"_s, u"9"_s}},
    };
    for (const auto &[row, text, elements] : cases)
        EXPECT_EQ(ClipboardElements(text, 4), elements) << row;
    EXPECT_EQ(ClipboardFileText({u"a\nb"_s, u"c"_s}), u"a\nb\r\nc\r\n"_s);
}

} // namespace
