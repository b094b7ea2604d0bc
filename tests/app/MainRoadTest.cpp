#include "support/DesignView.h"
#include "tests/app/MainWindowFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QWebEnginePage>
#include <QWebEngineView>

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// The author's day: open a page, see it, change it, see that, save, close.
class MainRoad : public MainWindowFixture
{
protected:
    QVariant Run(const QString &script)
    {
        const auto *view = window->findChild<QWebEngineView *>();
        if (!view)
            return {};
        const auto answer = std::make_shared<std::optional<QVariant>>();
        view->page()->runJavaScript(script, [answer](const QVariant &value) { *answer = value; });
        EXPECT_TRUE(WaitFor([&] { return answer->has_value(); })) << script.toStdString();
        return answer->value_or(QVariant());
    }
    /// Waits for the first line of the page to be `text`.
    bool Shows(const QString &text)
    {
        return WaitFor([&] { return Run(u"document.querySelector('h1').innerText"_s) == text; });
    }
    /// The files of the page's folder.
    QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files); }
};

TEST_F(MainRoad, OpenSeeChangeSaveClose)
{
    const QByteArray head = "<h1>First</h1>\r\n";
    const QByteArray rest = "<p>caf\xe9</p>\n<div style='height:5000px'></div>";
    const QString path = Write(u"page.html"_s, head + rest);
    Start({path});
    EXPECT_TRUE(Shows(u"First"_s));
    EXPECT_THAT(Files(), ElementsAre(u"page.html"_s, u"page_.html"_s));
    Run(u"scrollTo(0, 2000)"_s);
    EXPECT_TRUE(WaitFor([&] { return Run(u"scrollY"_s).toInt() == 2000; }));

    CodeHighlight &source = Active().Source();
    source.SetSelStart(4);
    Type(source, u"Very "_s);
    EXPECT_TRUE(Shows(u"Very First"_s));
    EXPECT_EQ(Run(u"scrollY"_s).toInt(), 2000);
    EXPECT_EQ(Read(path), head + rest) << "not saved yet";
    Press(source, Qt::Key_Backspace);
    Press(source, Qt::Key_Delete);
    EXPECT_TRUE(Shows(u"Veryirst"_s));

    Trigger(u"mnuFileSave"_s);
    EXPECT_EQ(Read(path), "<h1>Veryirst</h1>\r\n" + rest);
    EXPECT_EQ(Active().Modyfied(), u"0"_s);

    Type(source, u"x"_s);
    boxes.answer = Answer::Cancel;
    Trigger(u"mnuFileClose"_s);
    ASSERT_EQ(Captions(), QStringList(path)) << "Cancel keeps the page";
    EXPECT_TRUE(Shows(u"Veryxirst"_s));
    boxes.answer = Answer::No;
    Trigger(u"mnuFileClose"_s);
    EXPECT_EQ(Captions(), QStringList());
    EXPECT_EQ(Read(path), "<h1>Veryirst</h1>\r\n" + rest);
    EXPECT_THAT(Files(), ElementsAre(u"page.html"_s));
}

TEST_F(MainRoad, ViewsShowTheChangedText)
{
    Start({Write(u"page.html"_s, "<h1>one</h1>")});
    EXPECT_TRUE(Shows(u"one"_s));
    Trigger(u"mnuHtmlMode"_s);
    Active().Source().SetText(u"<h1>two</h1>"_s);
    Trigger(u"mnuPreviewMode"_s);
    EXPECT_TRUE(Shows(u"two"_s));
    Active().Source().SetText(u"<h1>three</h1>"_s);
    Trigger(u"mnuViewRefresh"_s);
    EXPECT_TRUE(Shows(u"three"_s));
    Trigger(u"mnuHtmlMode"_s);
    Active().Source().SetText(u"<h1>four</h1>"_s);
    Trigger(u"mnuSplitMode"_s);
    EXPECT_TRUE(Shows(u"four"_s));

    boxes.file = folder.filePath(u"other.html"_s);
    Trigger(u"mnuFileSaveAs"_s);
    EXPECT_TRUE(
        WaitFor([&] { return Run(u"location.href"_s).toString().endsWith(u"other_.html"_s); }));
    EXPECT_THAT(Files(), ElementsAre(u"other.html"_s, u"other_.html"_s, u"page.html"_s));
}

TEST_F(MainRoad, ExternalBrowserGetsWhatTheViewShows)
{
    const QString program = Write(u"browser"_s, "#!/bin/sh\ncat \"${1#file://}\" > \"$0.shown\"");
    ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    Set(u"Browser1/Path", program);
    Start({Write(u"my page.html"_s, "<h1>one</h1>")});
    const auto isGiven = [&](const QByteArray &text) {
        QFile::remove(program + u".shown"_s);
        Trigger(u"mnuBrowser1"_s);
        return WaitFor([&] { return Read(program + u".shown"_s).contains(text); });
    };
    Trigger(u"mnuHtmlMode"_s);
    Active().Source().SetText(u"<h1>two</h1>"_s);
    EXPECT_TRUE(isGiven("<h1>two</h1>"));
    Trigger(u"mnuDesignMode"_s);
    Active().Design()->PasteHTML(u"<u>x</u>"_s);
    EXPECT_TRUE(isGiven("<u>x</u>"));
    Active().Design()->ExecCommand(Decmd::Undo);
    Trigger(u"mnuHtmlMode"_s);
    EXPECT_TRUE(isGiven("<h1>two</h1>")) << "the edit was undone";
}

TEST_F(MainRoad, CommandsOverTheSourceTakeWhatIsDesigned)
{
    Start({Write(u"page.html"_s, "<h1>one</h1>")});
    Trigger(u"mnuDesignMode"_s);
    Active().Design()->PasteHTML(u"<u>two</u> "_s);
    Trigger(u"mnuStripTags"_s);
    EXPECT_EQ(Active().Status(), u"Design"_s);
    Trigger(u"mnuHtmlMode"_s);
    EXPECT_EQ(Active().Source().Text().simplified(), u"two one"_s);
}

TEST_F(MainRoad, DesignBarsFollowTheActivePage)
{
    Start({Write(u"one.html"_s, "<title>One</title><h1>one</h1>")});
    Trigger(u"mnuDesignMode"_s);
    window->OpenPath(Write(u"two.html"_s, "<title>Two</title><p style='font-family:Nowhere'>two"));
    Trigger(u"mnuDesignMode"_s);
    const auto shows = [this](const QString &title, const QString &tag, const QString &style) {
        const auto panel = [this](const QString &name) {
            return Find<QWidget>(u"Sta"_s).findChild<QLabel *>(name)->text();
        };
        return WaitFor([&] {
            return panel(u"Panel1"_s) == title && panel(u"Panel2"_s) == tag
                && Find<QComboBox>(u"cobFormat"_s).currentText() == style;
        });
    };
    EXPECT_TRUE(shows(u"Two"_s, u"P"_s, u"Normal"_s));
    EXPECT_EQ(Find<QComboBox>(u"Font1"_s).placeholderText(), u"Nowhere"_s);
    Trigger(u"mnuWindowNewWindow"_s);
    EXPECT_TRUE(shows(u"One"_s, u"H1"_s, u"Heading 1"_s));
}

TEST_F(MainRoad, FilesDroppedOnAViewAreOpened)
{
    const QString path = Write(u"page.html"_s, "<h1>one</h1>");
    QStringList opened{path};
    Start(opened);
    EXPECT_TRUE(Shows(u"one"_s));
    const std::pair<QString, QString> views[] = {{u"mnuSplitMode"_s, u"rtfText"_s},
                                                 {u"mnuPreviewMode"_s, u"WebBrowser1"_s},
                                                 {u"mnuDesignMode"_s, u"Design"_s}};
    for (const auto &[command, view] : views) {
        frmDocument *page = Documents()[0];
        Find<QMdiArea>(u"MDIForm"_s)
            .setActiveSubWindow(qobject_cast<QMdiSubWindow *>(page->parentWidget()));
        Trigger(command);
        opened += Write(view, "dropped");
        EXPECT_TRUE(DropFiles(*page->findChild<QWidget *>(view),
                              {QUrl::fromLocalFile(opened.constLast())}));
        Settle();
        EXPECT_EQ(Captions(), opened);
    }
}

TEST_F(MainRoad, AutomaticRefreshCanBeOff)
{
    Set(u"Auto/Refresh", u"0");
    Start({Write(u"page.html"_s, "<h1>one</h1>")});
    EXPECT_TRUE(Shows(u"one"_s));
    Type(Active().Source(), u"x"_s);
    EXPECT_TRUE(WaitFor([&] { return Read(folder.filePath(u"page_.html"_s)).startsWith('x'); }))
        << "the copy is written";
    EXPECT_EQ(Run(u"document.body.innerText"_s).toString().trimmed(), u"one"_s);
    Trigger(u"mnuViewRefresh"_s);
    EXPECT_TRUE(
        WaitFor([&] { return Run(u"document.body.innerText"_s).toString().startsWith(u'x'); }));
}

} // namespace
