#include "app/CloseProtocol.h"

#include "support/PreviewCopies.h"
#include "support/UntitledPages.h"
#include "tests/support/FreshHome.h"
#include "tests/support/MemoryDocument.h"
#include "tests/support/ScriptedBoxes.h"

#include <QFile>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Close
{
    const char *row;
    bool modified;
    bool untitled;
    Answer answer;
    QString chosen; // in the Save dialog
    bool fails; // to write
    bool closes;
    QString savedTo = {};
    bool unread = false; // the file is there, and the window does not show what is in it
};

class CloseProtocol : public testing::TestWithParam<Close>
{
};

TEST_P(CloseProtocol, AsksSavesAndCleansUp)
{
    const Close &row = GetParam();
    const FreshHome home;
    ScriptedBoxes boxes;
    boxes.answer = row.answer;
    boxes.file = row.chosen;
    ChooseTempDir();
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"page_.html"_s);

    MemoryDocument document;
    document.Caption = row.untitled ? UntitledCaption(1) : u"/x/page.html"_s;
    document.Unread = row.unread;
    if (row.unread)
        document.Caption = copy; // any file that is there
    document.Modyfied = row.modified ? u"1"_s : u"0"_s;
    document.Banen = ClaimPreviewCopy(copy);
    ASSERT_TRUE(WritePreviewCopy(document.Banen(), "text"));
    document.source.SetText(u"text"_s);
    document.source.failsToSave = row.fails;

    EXPECT_EQ(CloseDocument(document, document.bars, u"/y/active.html"_s), row.closes);
    EXPECT_EQ(QFile::exists(copy), !row.closes) << "the preview copy goes with the document";
    EXPECT_EQ(boxes.asked,
              row.modified ? QStringList(u"Do you want save /y/active.html?"_s) : QStringList());
    const bool asksForName
        = row.modified && (row.untitled || row.unread) && row.answer == Answer::Yes;
    EXPECT_EQ(boxes.dialogs, asksForName ? QStringList(u"Save"_s) : QStringList());
    EXPECT_EQ(document.source.files.keys(),
              row.savedTo.isEmpty() ? QStringList() : QStringList(row.savedTo));
}

INSTANTIATE_TEST_SUITE_P(
    Documents,
    CloseProtocol,
    testing::Values(
        Close{"Unmodified", false, false, Answer::Cancel, {}, false, true},
        Close{"UnmodifiedUntitled", false, true, Answer::Cancel, {}, false, true},
        Close{"Cancel", true, false, Answer::Cancel, {}, false, false},
        Close{"CancelUntitled", true, true, Answer::Cancel, u"/x/new.html"_s, false, false},
        Close{"No", true, false, Answer::No, {}, false, true},
        Close{"NoUntitled", true, true, Answer::No, u"/x/new.html"_s, false, true},
        Close{"Yes", true, false, Answer::Yes, {}, false, true, u"/x/page.html"_s},
        Close{"YesUntitled", true, true, Answer::Yes, u"/x/n.html"_s, false, true, u"/x/n.html"_s},
        Close{"YesUnread",
              true,
              false,
              Answer::Yes,
              u"/x/n.html"_s,
              false,
              true,
              u"/x/n.html"_s,
              true},
        Close{"YesUntitledWithoutName", true, true, Answer::Yes, {}, false, false},
        Close{"YesButSavingFails", true, false, Answer::Yes, {}, true, false},
        Close{"YesUntitledButSavingFails", true, true, Answer::Yes, u"/x/n.html"_s, true, false}),
    [](const auto &info) { return std::string(info.param.row); });

} // namespace
