#include "checks/SourceCommands.h"

#include "tests/editor/MarkedSource.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *name;
    std::function<void(DocumentModel &page)> command;
    QString before;
    QString after;
    int undoCount;
};

const auto simple = [](DocumentModel &page) { FormatSelection(page, Format::Simple); };
const auto plain = [](DocumentModel &page) { ConvertToPlainText(page); };
const auto replace = [](DocumentModel &page) { ReplaceSource(page, u"new"_s); };

const Row rows[] = {
    {"format", simple, u"<a>[ <b><c>]  <d>"_s, u"<a> <b>\n<c>|  <d>"_s, 1},
    {"format nothing", simple, u"<a><b>|"_s, u"<a><b>|"_s, 1},
    {"lower case", LowerSelection, u"A[<B C=D>Æ]E"_s, u"A<b c=d>æ|E"_s, 0},
    {"upper case", UpperSelection, u"a[<b c=d>æß]e"_s, u"a<B C=D>Æß|e"_s, 0},
    {"plain text", plain, u"|<a>b<c>"_s, u"| b "_s, 2},
    {"another text", replace, u"|old"_s, u"|new"_s, 1},
};

class SourceCommandsTest : public testing::TestWithParam<Row>
{
};

TEST_P(SourceCommandsTest, ChangesThePage)
{
    for (const bool isReadOnly : {false, true}) {
        MemoryDocument page;
        page.source = MarkedSource(GetParam().before);
        page.source.isReadOnlyPage = isReadOnly;
        const QString before = page.source.Text();
        GetParam().command(page);
        if (isReadOnly)
            EXPECT_EQ(page.source.Text(), before);
        else
            EXPECT_EQ(Marked(page.source), GetParam().after);
        EXPECT_EQ(page.source.UndoCount(), isReadOnly ? 0 : GetParam().undoCount);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, SourceCommandsTest, testing::ValuesIn(rows), [](const auto &info) {
    return QString::fromLatin1(info.param.name).replace(u' ', u'_').toStdString();
});

} // namespace
