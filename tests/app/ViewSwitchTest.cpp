#include "app/ViewSwitch.h"

#include "app/TakeDesign.h"
#include "support/SettingsStore.h"
#include "tests/support/FreshHome.h"
#include "tests/support/MemoryDocument.h"
#include "tests/support/ScriptedBoxes.h"

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAreArray;

namespace {

const QString EmptyAddress = u"navigate about:You have to write an address in the address field"_s;

struct Switch
{
    const char *row;
    QString status;
    QString steps; // divided by "|"
    QString mode; // what is stored; "old" when nothing is
    QString address = u"typed"_s; // in the address box afterwards
    QString load = u"0"_s;
    bool local = true;
    bool browser = true;
    QString caption = u"/x/page.html"_s;
};

class ViewSwitch : public testing::TestWithParam<Switch>
{
};

TEST_P(ViewSwitch, Steps)
{
    const Switch &row = GetParam();
    const FreshHome home;
    SaveSetting(u"Settings", u"Mode", u"old"_s);
    SaveSetting(u"Settings", u"LocalHost", row.caption.endsWith(u'/') ? u""_s : u"http://h/"_s);
    MemoryDocument document;
    document.hasBrowser = row.browser;
    document.bars.isLocal = row.local;
    document.bars.address = u"typed"_s;
    document.source.SetText(u"0123456789"_s);
    document.source.SetSelStart(7);
    document.Caption = row.caption;
    document.Load = row.load;
    document.Status.OnAssign([&](const QString &) { RunViewSwitch(document, document.bars); });

    document.Status = row.status;
    EXPECT_THAT(document.log, ElementsAreArray(row.steps.split(u'|')));
    EXPECT_EQ(GetSetting(u"Settings", u"Mode"), row.mode);
    EXPECT_EQ(document.bars.address, row.address);
    EXPECT_EQ(document.Load(), u"0"_s);
    EXPECT_EQ(document.KeyDone, row.steps.endsWith(u"arm 1"));
    EXPECT_EQ(document.source.Text(), u"0123456789"_s);
    EXPECT_EQ(document.source.SelStart(), 7);
}

INSTANTIATE_TEST_SUITE_P(
    Views,
    ViewSwitch,
    testing::Values(
        // clang-format off
        Switch{.row = "FirstSplitMovesNothing", .status = u"Split"_s, .steps = u"layout|lists|bars Split"_s, .mode = u"Split"_s, .load = u"1"_s},
        Switch{.row = "FirstPreviewMovesNothing", .status = u"Preview"_s, .steps = u"layout|lists|bars Preview|online"_s, .mode = u"old"_s, .address = u"http://h/page.html"_s, .load = u"1"_s},
        Switch{.row = "Html", .status = u"HTML"_s, .steps = u"layout|lists|bars HTML"_s, .mode = u"HTML"_s},
        Switch{.row = "Split", .status = u"Split"_s, .steps = u"layout|lists|bars Split"_s, .mode = u"Split"_s},
        Switch{.row = "LocalPreview", .status = u"Preview"_s, .steps = u"layout|lists|bars Preview|online|write|arm 1"_s, .mode = u"old"_s, .address = u"http://h/page.html"_s},
        Switch{.row = "LocalPreviewWithoutEngine", .status = u"Preview"_s, .steps = u"layout|lists|bars Preview|write|arm 1"_s, .mode = u"old"_s, .address = u"http://h/page.html"_s, .browser = false},
        Switch{.row = "ServerPreview", .status = u"Preview"_s, .steps = u"layout|lists|bars Preview|online|navigate http://h/page.html"_s, .mode = u"old"_s, .address = u"http://h/page.html"_s, .local = false},
        Switch{.row = "ServerPreviewWithoutAddress", .status = u"Preview"_s, .steps = u"layout|lists|bars Preview|online|"_s + EmptyAddress, .mode = u"old"_s, .address = {}, .local = false, .caption = u"/x/"_s},
        Switch{.row = "ServerPreviewWithoutEngine", .status = u"Preview"_s, .steps = u"layout|lists|bars Preview"_s, .mode = u"old"_s, .address = u"http://h/page.html"_s, .local = false, .browser = false},
        Switch{.row = "PassingValueOnlyShows", .status = u"PreviewW"_s, .steps = u"layout|lists|bars PreviewW"_s, .mode = u"old"_s}),
    // clang-format on
    [](const auto &info) { return std::string(info.param.row); });

TEST(ViewSwitchRuns, AtEveryAssignment)
{
    const FreshHome home;
    MemoryDocument document;
    document.Caption = u"/x/page.html"_s;
    document.Status.OnAssign([&](const QString &) { RunViewSwitch(document, document.bars); });
    for (int i = 0; i < 3; ++i)
        document.Status = u"Preview"_s;
    EXPECT_EQ(document.log.count(u"layout"_s), 3);
    EXPECT_EQ(document.log.count(u"write"_s), 2) << "the first assignment moves nothing";
}

TEST(ViewSwitchRuns, CaretComesBackFromTheDesignView)
{
    const FreshHome home;
    MemoryDocument document;
    document.source.SetText(u"0123456789"_s);
    document.Load = u"0"_s;
    document.Sted = 4;
    document.Des = u"0"_s;
    document.Status = u"HTML"_s;
    RunViewSwitch(document, document.bars);
    EXPECT_EQ(document.source.SelStart(), 4);
}

TEST(DesignText, IsWhatACommandOnTheSourceWorksOn)
{
    MemoryDocument document;
    document.source.SetText(u"old"_s);
    document.design.html = u"edited"_s;
    EXPECT_TRUE(TakeNewestText(document));
    EXPECT_EQ(document.source.Text(), u"old"_s) << "the design view is no newer";
    document.Des = u"1"_s;
    EXPECT_TRUE(TakeNewestText(document));
    EXPECT_EQ(document.source.Text(), u"edited"_s);
    document.source.SetText(u"rewritten"_s);
    ShowNewText(document);
    EXPECT_EQ(document.design.html, u"rewritten"_s);

    ScriptedBoxes boxes;
    document.design.html.reset(); // the page does not answer
    EXPECT_FALSE(TakeNewestText(document));
    EXPECT_EQ(document.source.Text(), u"rewritten"_s);

    document.Des = u"0"_s;
    document.Status = u"Preview"_s;
    ShowNewText(document);
    EXPECT_TRUE(document.log.last().startsWith(u"arm"));
}

struct DesignCase
{
    const char *row;
    QString source;
    QString to; // the view that is chosen in the design view; empty to stay
    std::optional<QString> designed; // what the design view gives back
    QString text; // of the source afterwards
    QString status;
    QString des;
    int asked = 0;
};

class DesignSwitch : public testing::TestWithParam<DesignCase>
{
};

// The text moves into the design view and back, and is lost nowhere.
TEST_P(DesignSwitch, MovesTheText)
{
    const DesignCase &row = GetParam();
    const FreshHome home;
    ScriptedBoxes boxes;
    boxes.answer = Answer::No;
    MemoryDocument document;
    document.Caption = u"/x/page.html"_s;
    document.Load = u"0"_s;
    document.source.SetText(row.source);
    document.source.isReadOnlyPage = row.source == u"readonly";
    document.designLoads = row.source != u"unloadable";
    document.Status.OnAssign([&](const QString &) { RunViewSwitch(document, document.bars); });

    document.Status = u"HTML"_s;
    document.Status = u"Design"_s;
    if (!row.to.isEmpty()) {
        document.design.html = row.designed;
        document.Status = row.to;
    }
    EXPECT_EQ(document.source.Text(), row.text);
    EXPECT_EQ(document.Status(), row.status);
    EXPECT_EQ(document.Des(), row.des);
    EXPECT_EQ(boxes.asked.size(), row.asked);
    EXPECT_EQ(document.log.count(u"drop"_s), row.to == u"Preview" ? 1 : 0);
    if (row.text != row.source) {
        document.source.Undo();
        EXPECT_EQ(document.source.Text(), row.source) << "undone as a whole";
        document.source.Redo();
        EXPECT_EQ(document.source.Text(), row.text);
    }
}

const QString Marks
    = u"<META content=\"MSHTML 6\" name=X><META NAME=\"GENERATOR\" Content=\"Microsoft DHTML Editing Control\">"_s;

INSTANTIATE_TEST_SUITE_P(
    Ways,
    DesignSwitch,
    testing::Values(
        DesignCase{"Stays", u"<p>"_s, {}, {}, u"<p>"_s, u"Design"_s, u"1"_s},
        DesignCase{"Again", u"<p>"_s, u"Design"_s, u"<b>"_s, u"<p>"_s, u"Design"_s, u"1"_s},
        DesignCase{"BackToHtml", u"<p>"_s, u"HTML"_s, u"<b>"_s, u"<b>"_s, u"HTML"_s, u"0"_s},
        DesignCase{
            "BackCleaned", u"<p>"_s, u"Split"_s, u"<i>"_s + Marks, u"<i>"_s, u"Split"_s, u"0"_s},
        DesignCase{
            "ToPreviewUncleaned", u"<p>"_s, u"Preview"_s, Marks, Marks, u"Preview"_s, u"0"_s},
        DesignCase{"NoAnswer", u"<p>"_s, u"HTML"_s, {}, u"<p>"_s, u"HTML"_s, u"0"_s, 1},
        DesignCase{"Frames", u"<FrameSet>"_s, {}, {}, u"<FrameSet>"_s, u"Split"_s, {}, 1},
        DesignCase{"FloatingFrame", u"<iframe>"_s, {}, {}, u"<iframe>"_s, u"Design"_s, u"1"_s},
        DesignCase{"ReadOnly", u"readonly"_s, {}, {}, u"readonly"_s, u"HTML"_s, {}, 1},
        DesignCase{"NotLoaded", u"unloadable"_s, {}, {}, u"unloadable"_s, u"HTML"_s, {}, 1}),
    [](const auto &info) { return std::string(info.param.row); });

TEST(ServerAddress, IsHostAndFileName)
{
    struct Case
    {
        std::optional<QString> host;
        QString caption;
        QString address;
    };
    const Case cases[] = {
        {{}, u"/x/page.html"_s, u"http://localhost/page.html"_s},
        {u"http://a.b"_s, u"C:\\x\\page.html"_s, u"http://a.bpage.html"_s},
        {u""_s, u"page.html"_s, u"page.html"_s},
    };
    for (const Case &row : cases) {
        const FreshHome home;
        if (row.host)
            SaveSetting(u"Settings", u"LocalHost", *row.host);
        EXPECT_EQ(ServerAddress(row.caption), row.address);
    }
}

} // namespace
