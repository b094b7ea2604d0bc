#include "app/frmDocument.h"
#include "editor/CodeHighlight.h"
#include "support/PreviewCopies.h"
#include "support/SettingsStore.h"
#include "support/UntitledPages.h"
#include "tests/support/FreshHome.h"
#include "tests/support/Input.h"
#include "tests/support/MemoryDocument.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/WaitFor.h"
#include "tests/support/WithFolder.h"

#include <QAction>
#include <QTimerEvent>
#include <QToolBar>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 600;
constexpr int ViewHeight = 372; // that the views share
constexpr int BarThickness = 4;

class DocumentWindow : public testing::Test, protected WithFolder
{
protected:
    DocumentWindow()
    {
        document.resize(Width, ViewHeight + document.ViewBarHeight());
        document.show();
    }

    QWidget &Part(const QString &name) { return *document.findChild<QWidget *>(name); }
    /// After this, whatever was due within the time has been done.
    static void LetPass(int milliseconds)
    {
        bool passed = false;
        QTimer::singleShot(milliseconds, qApp, [&passed] { passed = true; });
        EXPECT_TRUE(WaitFor([&passed] { return passed; }));
    }

private:
    const FreshHome m_home;

protected:
    ScriptedBoxes boxes;
    QStringList log;
    MemoryBars bars{log};
    frmDocument document{bars, folder.filePath(u"page.html"_s)};
};

TEST_F(DocumentWindow, Layouts)
{
    const QRect whole(0, 0, Width, ViewHeight);
    const int middle = ViewHeight / 2 - BarThickness / 2;
    const int behind = middle + BarThickness;
    const int centre = Width / 2 - BarThickness / 2;
    struct Case
    {
        QString status;
        QString orientation;
        QRect source; // empty: hidden
        QRect preview;
        QRect splitH;
        QRect splitV;
    };
    const Case cases[] = {
        {u"HTML"_s, u"0"_s, whole, {}, {}, {}},
        {u"Preview"_s, u"0"_s, {}, whole, {}, {}},
        {u"Split"_s,
         u"0"_s,
         {0, behind, Width, ViewHeight - behind},
         {0, 0, Width, middle},
         {0, middle, Width, BarThickness},
         {}},
        {u"Split"_s,
         u"1"_s,
         {0, 0, centre, ViewHeight},
         {centre + BarThickness, 0, Width - centre - BarThickness, ViewHeight},
         {},
         {centre, 0, BarThickness, ViewHeight}},
        {u"HTML"_s, u"1"_s, whole, {}, {}, {}},
        {u"Preview"_s, u"1"_s, {}, whole, {}, {}},
    };
    const auto shown = [this](const QString &name) {
        return Part(name).isVisible() ? Part(name).geometry() : QRect();
    };
    for (const Case &row : cases) {
        SCOPED_TRACE((row.status + row.orientation).toStdString());
        document.SplitHV = row.orientation;
        document.Status = row.status;
        EXPECT_EQ(shown(u"rtfText"_s), row.source);
        EXPECT_EQ(shown(u"WebBrowser1"_s), row.preview);
        EXPECT_EQ(shown(u"SplitH"_s), row.splitH);
        EXPECT_EQ(shown(u"SplitV"_s), row.splitV);
        for (const QAction *button : Part(u"Toolbar1"_s).actions())
            EXPECT_EQ(button->isChecked(), button->text() == row.status);
    }
}

TEST_F(DocumentWindow, ViewBarSwitches)
{
    QStringList captions;
    for (QAction *button : Part(u"Toolbar1"_s).actions()) {
        captions.append(button->text());
        button->trigger();
        // There is no web engine here, and without one no design view: the program says so and goes
        // back.
        EXPECT_EQ(document.Status(), button->text() == u"Design" ? u"HTML"_s : button->text());
        const QWidget *focused = document.focusWidget();
        EXPECT_TRUE(focused && focused->isVisible()) << "keys go to what can be seen";
    }
    EXPECT_EQ(captions, QStringList({u"Split"_s, u"HTML"_s, u"Preview"_s, u"Design"_s}));
}

TEST_F(DocumentWindow, CaretStaysWhenTheViewChanges)
{
    document.StartWith(u"text"_s, 0);
    document.Des = u"0"_s; // as after the design view
    document.Source().SetSelStart(3);
    for (QAction *button : Part(u"Toolbar1"_s).actions()) {
        button->trigger();
        EXPECT_EQ(document.Source().SelStart(), 3);
    }
}

TEST_F(DocumentWindow, SplitterIsDragged)
{
    const int edge = 40; // as near as a bar comes
    const int shut = 46; // a view smaller than this is dragged shut
    const int lowest = ViewHeight - edge;
    struct Case
    {
        const char *row;
        bool vertical;
        int to;
        int bar;
        QString status;
    };
    const Case cases[] = {
        {"within", false, 150, 150, u"Split"_s},
        {"near the top", false, shut, shut, u"Split"_s},
        {"preview shut", false, shut - 1, shut - 1, u"HTML"_s},
        {"over the top", false, -500, edge, u"HTML"_s},
        {"near the bottom", false, lowest - 10, lowest - 10, u"Split"_s},
        {"source shut", false, lowest - 9, lowest - 9, u"Preview"_s},
        {"under the bottom", false, 5000, lowest, u"Preview"_s},
        {"to the right", true, 400, 400, u"Split"_s},
        {"over the left", true, -500, edge, u"Split"_s},
        {"over the right", true, 5000, Width - edge, u"Split"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        document.SplitHV = row.vertical ? u"1"_s : u"0"_s;
        document.Status = u"Split"_s;
        QWidget &bar = Part(row.vertical ? u"SplitV"_s : u"SplitH"_s);
        const auto along
            = [&](int place) { return row.vertical ? QPoint(place, 5) : QPoint(5, place); };
        const auto position = [&] { return row.vertical ? bar.x() : bar.y(); };

        Mouse(bar, QEvent::MouseButtonPress, {0, 0});
        Mouse(bar, QEvent::MouseMove, bar.mapFromParent(along(row.to)));
        EXPECT_EQ(position(), row.bar);
        const QWidget &before = Part(row.vertical ? u"rtfText"_s : u"WebBrowser1"_s);
        EXPECT_EQ(row.vertical ? before.width() : before.height(), row.bar) << "follows live";
        EXPECT_EQ(document.Status(), u"Split"_s) << "nothing shuts while the button is held";
        Mouse(bar, QEvent::MouseButtonRelease, bar.mapFromParent(along(row.to)));
        EXPECT_EQ(document.Status(), row.status);
    }
}

TEST_F(DocumentWindow, ViewThatWasDraggedShutComesBackInItsHalf)
{
    QWidget &bar = Part(u"SplitH"_s);
    const int middle = bar.y();
    Drag(bar, {5, middle}, {5, 5000});
    ASSERT_EQ(document.Status(), u"Preview"_s);
    document.Status = u"Split"_s;
    EXPECT_EQ(bar.y(), middle);
}

TEST_F(DocumentWindow, ClickOnTheSplitterMovesNothing)
{
    QWidget &bar = Part(u"SplitH"_s);
    const int middle = bar.y();
    Click(bar, {5, 3});
    EXPECT_EQ(bar.y(), middle);
}

TEST_F(DocumentWindow, ChangesOfTheAuthorCount)
{
    struct Case
    {
        const char *row;
        std::function<void(CodeHighlight &)> change;
        bool modified;
    };
    const Case cases[] = {
        {"a letter", [](CodeHighlight &source) { Type(source, u"x"_s); }, true},
        {"Delete", [](CodeHighlight &source) { Press(source, Qt::Key_Delete); }, true},
        {"Enter", [](CodeHighlight &source) { Press(source, Qt::Key_Return); }, true},
        {"a command", [](CodeHighlight &source) { source.SetSelText(u"x"_s); }, true},
        {"a move of the caret", [](CodeHighlight &source) { Press(source, Qt::Key_End); }, false},
        {"a language", [](CodeHighlight &source) { source.SetLanguage(1); }, false},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        document.StartWith(u"text"_s, 0);
        document.Modyfied = u"0"_s;
        row.change(document.Source());
        EXPECT_EQ(document.Modyfied(), row.modified ? u"1"_s : u"0"_s);
        EXPECT_EQ(bars.panel, row.modified ? u"Modified"_s : QString());
        EXPECT_EQ(document.isWindowModified(), row.modified);
    }
}

TEST_F(DocumentWindow, PreviewCopyFollowsTheSource)
{
    const QString path = Write(u"page.html"_s, "old");
    const QString copy = folder.filePath(u"page_.html"_s);
    ASSERT_TRUE(document.OpenFile(path));
    Type(document.Source(), u"new "_s);
    EXPECT_TRUE(WaitFor([&] { return Read(copy) == "new old"; }));
    EXPECT_EQ(document.Banen(), copy);
    EXPECT_EQ(Read(path), "old");

    boxes.file = folder.filePath(u"other.html"_s);
    ASSERT_TRUE(document.SaveAs(u"Save As"_s));
    Type(document.Source(), u"x"_s);
    EXPECT_TRUE(WaitFor([&] { return QFile::exists(folder.filePath(u"other_.html"_s)); }));
    EXPECT_FALSE(QFile::exists(copy)) << "the copy goes with the name";

    boxes.answer = Answer::No;
    EXPECT_TRUE(document.close());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"other_.html"_s)));
}

TEST_F(DocumentWindow, PreviewCopyStaysAwayAfterClosing)
{
    ASSERT_TRUE(document.OpenFile(Write(u"page.html"_s, "old")));
    boxes.answer = Answer::No;
    Type(document.Source(), u"x"_s);
    EXPECT_TRUE(document.close());
    LetPass(200);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"page_.html"_s)));
}

TEST_F(DocumentWindow, PreviewCopyIsNeverWrittenOverAPageOfTheAuthors)
{
    const QString mine = Write(u"page_.html"_s, "mine");
    ASSERT_TRUE(document.OpenFile(Write(u"page.html"_s, "old")));
    Type(document.Source(), u"x"_s);
    EXPECT_TRUE(WaitFor([&] { return QFile::exists(folder.filePath(u"page__.html"_s)); }));
    boxes.answer = Answer::No;
    document.close();
    EXPECT_EQ(Read(mine), "mine");
    EXPECT_FALSE(QFile::exists(folder.filePath(u"page__.html"_s)));
}

TEST_F(DocumentWindow, PageThatIsOpenTwiceIsShownAsEachWindowHasIt)
{
    const QString path = Write(u"page.html"_s, "old");
    const QString copy = folder.filePath(u"page_.html"_s);
    frmDocument other{bars, path};
    for (frmDocument *window : {&document, &other}) {
        ASSERT_TRUE(window->OpenFile(path));
        EXPECT_EQ(window->WriteBrowserCopy(), copy);
    }
    Type(other.Source(), u"x"_s);
    other.WritePreview();
    EXPECT_EQ(Read(copy), "xold");
    document.WritePreview();
    EXPECT_EQ(Read(copy), "old");
}

TEST_F(DocumentWindow, PageWithoutRoomForACopyIsShownAsItWasSaved)
{
    // With one more character the name is too long for the disk.
    const QString path = Write(QString(250, u'x') + u".html"_s, "old");
    ASSERT_TRUE(document.OpenFile(path));
    EXPECT_EQ(document.WriteBrowserCopy(), path);
    QFile::remove(path);
    EXPECT_EQ(document.WriteBrowserCopy(), QString());
}

TEST_F(DocumentWindow, PathWithoutAPointHasNoPreviewCopy)
{
    document.WritePreview();
    document.Caption = u"/nowhere/page"_s;
    document.WritePreview();
    EXPECT_EQ(document.Banen(), QString());
}

TEST_F(DocumentWindow, AutoSave)
{
    struct Case
    {
        const char *row;
        QString setting;
        bool untitled;
        bool givenUp; // the author wants it closed without saving
        bool saved;
    };
    const Case cases[] = {{"off", u"0"_s, false, false, false},
                          {"on", u"1"_s, false, false, true},
                          {"never an unsaved page", u"1"_s, true, false, false},
                          {"while other pages are asked for", u"1"_s, false, true, false}};
    SaveSetting(u"Settings", u"TemporaryDirectory", folder.path());
    ChooseTempDir();
    auto *timer = document.findChild<QTimer *>(u"AutoSave"_s);
    ASSERT_TRUE(timer);
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        const QString path = row.untitled ? UntitledCaption(1) : Write(u"page.html"_s, "old");
        document.OpenFile(path);
        Type(document.Source(), u"x"_s);
        SaveSetting(u"Auto", u"Save", u"1"_s);
        document.Form_Activate();
        ASSERT_EQ(timer->interval(), 60000);
        ASSERT_TRUE(timer->isActive());
        SaveSetting(u"Auto", u"Save", row.setting);
        boxes.answer = Answer::No;
        ASSERT_TRUE(!row.givenUp || document.AgreeToClose());
        QTimerEvent tick(timer->timerId());
        QCoreApplication::sendEvent(timer, &tick);
        EXPECT_EQ(Read(path).startsWith('x'), row.saved);
        EXPECT_EQ(timer->isActive(), row.setting == u"1"_s);
        EXPECT_EQ(document.Modyfied(), u"1"_s) << "still asks when it is closed";
    }
}

TEST_F(DocumentWindow, AutoSaveIsNotPutOffByActivations)
{
    SaveSetting(u"Auto", u"Save", u"1"_s);
    document.Form_Activate();
    const auto *timer = document.findChild<QTimer *>(u"AutoSave"_s);
    LetPass(20);
    const int before = timer->remainingTime();
    document.Form_Activate();
    EXPECT_LE(timer->remainingTime(), before) << "the minute began anew";
}

TEST_F(DocumentWindow, TitleShowsTheNameAsItIs)
{
    document.Caption = u"/x/a[*]b.html"_s;
    document.Modyfied = u"0"_s;
    EXPECT_EQ(document.windowTitle(), u"/x/a[*][*]b.html[*]"_s);
}

TEST_F(DocumentWindow, SourceIsSetUpFromTheSettings)
{
    SaveSetting(u"Language", u"Syntax", u"3"_s);
    SaveSetting(u"Colors", u"Background", u"255"_s);
    SaveSetting(u"Colors", u"Tag", u"1"_s);
    SaveSetting(u"Colors", u"Comment", u"2"_s);
    SaveSetting(u"Colors", u"Special", u"3"_s);
    SaveSetting(u"Colors", u"Table", u"text"_s);
    SaveSetting(u"Editor", u"FontSize", u"17"_s);
    SaveSetting(u"Editor", u"WordWrap", u"1"_s);
    document.ConfigureSource();
    const CodeHighlight &source = document.Source();
    EXPECT_EQ(source.Language(), 2);
    EXPECT_EQ(source.BackColor(), 255u);
    EXPECT_EQ(source.Colours().delimiter, 1u);
    EXPECT_EQ(source.Colours().keyword, 2u);
    EXPECT_EQ(source.Colours().function, 3u);
    EXPECT_EQ(source.Colours().op, 32896u);
    EXPECT_EQ(source.font().pointSize(), 17);
    EXPECT_EQ(source.Margin(), 0);

    for (const QString &size : {u"100000"_s, u"-3"_s}) {
        SaveSetting(u"Editor", u"FontSize", size);
        document.ConfigureSource();
        EXPECT_EQ(source.font().pointSize(), 17) << size.toStdString();
    }
}

} // namespace
