#include "editor/ColourRuns.h"
#include "editor/HighlightBlock.h"
#include "editor/PageText.h"
#include "support/TextCodec.h"

#include <cstdlib>

using namespace brenix;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

// Any bytes at all as a page: they come back as they were, and every language colours them side by
// side.
extern "C" int LLVMFuzzerTestOneInput(const char *data, std::size_t size)
{
    const QByteArray bytes(data, qsizetype(size));
    const DecodedPage page = DecodePage(bytes, "windows-1250");
    Require(!page.faithful || EncodePage(page.text, page.encoding).bytes == bytes);
    if (HoldsStandIns(page.text))
        return 0;
    const TextRope rope(HeldText(page.text));
    Require(FileTextOf(rope) == page.text);

    const QString text = TextOf(rope);
    SyntaxTables tables;
    for (int language = SyntaxTables::Basic; language <= SyntaxTables::Tidy; ++language) {
        tables.SetLanguage(language);
        int end = 0;
        for (const ColourRun &run : ColourRuns(text, tables)) {
            Require(run.start >= end && run.length > 0);
            end = run.start + run.length;
        }
        Require(end <= text.size());
        Require(StatesAt(text, tables, BlockEnds(rope)).size() == BlockEnds(rope).size());
        Require(HighlightBlock(text, tables, {}).isEmpty() == text.isEmpty());
        Require(WithNormalisedCase(text, tables).size() == text.size());
    }
    return 0;
}
