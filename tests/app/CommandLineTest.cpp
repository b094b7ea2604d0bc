#include "app/CommandLine.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(CommandLine, NamesOneFile)
{
    struct Case
    {
        const char *row;
        QStringList arguments;
        bool startFirst;
        QString path;
    };
    const Case cases[] = {
        {"nothing", {}, false, {}},
        {"a file", {u"/x/page.html"_s}, false, u"/x/page.html"_s},
        {"first start", {u"-StartFirst"_s}, true, {}},
        {"another case is a file", {u"-startfirst"_s}, false, u"-startfirst"_s},
        {"the switch and a file", {u"-StartFirst"_s, u"a"_s}, false, u"-StartFirst a"_s},
        {"blanks in one argument", {u"/my pages/a.html"_s}, false, u"/my pages/a.html"_s},
        {"blanks between arguments", {u"/my"_s, u"pages/a.html"_s}, false, u"/my pages/a.html"_s},
        {"quotes round it", {u"\"/my pages/a.html\""_s}, false, u"/my pages/a.html"_s},
        {"a quote within", {u"/x/pa\"ge.html"_s}, false, u"/x/page.html"_s},
        {"outer blanks", {u"  /x/a.html "_s}, false, u"/x/a.html"_s},
        {"quotes and blanks alone", {u"\" \""_s}, false, {}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        const CommandLine line = ReadCommandLine(row.arguments);
        EXPECT_EQ(line.startFirst, row.startFirst);
        EXPECT_EQ(line.path, row.path);
    }
}

} // namespace
