#include "app/frmHelp.h"
#include "support/Help.h"
#include "tests/app/MainWindowFixture.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>
#include <QUrl>

using namespace brenix;

namespace {

class HelpWindow : public MainWindowFixture
{
protected:
    HelpWindow()
    {
        const QString data = QCoreApplication::applicationDirPath() + u"/.."_s;
        qputenv("BRENIX_APPDIR", QDir::cleanPath(data).toLocal8Bit());
        Start();
    }

    frmHelp *Help() { return window->findChild<frmHelp *>(); }
    QTextBrowser &Topic() { return Find<QTextBrowser>(u"Topic"_s); }
    QString File() { return Topic().source().fileName(); }
    void Follow(const QString &link)
    {
        emit Topic().anchorClicked(Topic().source().resolved(QUrl(link)));
    }
};

TEST_F(HelpWindow, ShowsTheTopicOfTheTagAtTheCaret)
{
    struct Case
    {
        const char *name;
        QString text;
        int caret;
        QString file; // empty for a message
    };
    const Case cases[] = {
        {"attributes", u"<TABLE BORDER=1>"_s, 3, u"table.html"_s},
        {"end tag", u"x</table>"_s, 4, u"table.html"_s},
        {"document type", u"<!DOCTYPE html>"_s, 4, u"doctype.html"_s},
        {"tag, not dialog", u"<BODY>"_s, 2, u"body.html"_s},
        {"comment", u"<!-- x -->"_s, 4, {}},
        {"no tag", u"text"_s, 2, {}},
        {"unknown tag", u"<nosuchtag>"_s, 3, {}},
    };
    window->LoadNewDoc();
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        Active().rtfText().SetText(row.text);
        Active().rtfText().SetSelStart(row.caret);
        boxes.asked.clear();
        if (Help())
            Help()->hide();
        Trigger(u"mnuHelpTag"_s);
        EXPECT_EQ(Help()->isVisible(), !row.file.isEmpty());
        if (Help()->isVisible()) {
            EXPECT_EQ(Topic().source().path().section(u'/', -2), u"tags/"_s + row.file);
            EXPECT_EQ(Help()->focusWidget(), &Topic()) << "to be scrolled by keys";
        }
        EXPECT_EQ(boxes.asked,
                  row.file.isEmpty() ? QStringList{u"Keyword not found!"_s} : QStringList());
    }
}

TEST_F(HelpWindow, FollowsLinksToTopicsAlone)
{
    Trigger(u"mnuHelpContents"_s);
    EXPECT_EQ(File(), u"contents.html"_s);
    Follow(u"views.html"_s);
    Follow(u"tags/index.html#html5"_s);
    EXPECT_EQ(Topic().source().fragment(), u"html5"_s);
    Follow(u"../tags/table.html"_s);
    EXPECT_EQ(File(), u"table.html"_s);
    EXPECT_EQ(Find<QTreeWidget>(u"Contents"_s).currentItem()->text(0), u"<table>"_s);
    for (const QString &link :
         {u"https://example.org/x"_s, u"../../TIPS.TXT"_s, u"mailto:a@b.c"_s}) {
        Follow(link);
        EXPECT_EQ(File(), u"table.html"_s);
        EXPECT_TRUE(Help()->statusBar()->currentMessage().startsWith(u"Not opened: "));
    }
    Find<QAction>(u"Back"_s).trigger();
    EXPECT_EQ(File(), u"index.html"_s);
    EXPECT_EQ(Help()->statusBar()->currentMessage(), QString());
    Find<QAction>(u"Home"_s).trigger();
    EXPECT_EQ(File(), u"contents.html"_s);
}

TEST_F(HelpWindow, SearchAndIndexLeadToTopics)
{
    Trigger(u"mnuHelpSearchForHelpOn"_s);
    auto &words = Find<QLineEdit>(u"Words"_s);
    EXPECT_EQ(Help()->focusWidget(), &words);
    words.setText(u"getting started"_s);
    emit words.returnPressed();
    EXPECT_EQ(File(), u"start.html"_s);
    words.setText(u"xyzzy"_s);
    emit words.returnPressed();
    EXPECT_EQ(Find<QListWidget>(u"Hits"_s).count(), 0);
    EXPECT_EQ(File(), u"start.html"_s);

    Trigger(u"mnuHTMLreference"_s);
    EXPECT_EQ(File(), u"index.html"_s);
    Find<QTabWidget>(u"Tabs"_s).setCurrentIndex(2);
    EXPECT_EQ(Help()->focusWidget()->objectName(), u"Filter"_s) << "ready to be typed into";
    auto &index = *Find<QWidget>(u"Keywords"_s).findChild<QTreeWidget *>();
    emit index.itemClicked(index.findItems(u"LargeFile"_s, Qt::MatchExactly).value(0), 0);
    EXPECT_EQ(File(), u"settings.html"_s);
}

TEST_F(HelpWindow, IsUsableBesideAModalDialogAndStays)
{
    QDialog dialog(window.get());
    QTimer::singleShot(0, &dialog, [&] {
        ShowHelp(u"HYPERLINK"_s);
        EXPECT_EQ(Help()->parentWidget(), &dialog);
        ShowHelp(u"IMAGE"_s);
        dialog.accept();
    });
    dialog.exec();
    ASSERT_TRUE(Help());
    EXPECT_EQ(Help()->parentWidget(), window.get());
    EXPECT_TRUE(Help()->isVisible());
    EXPECT_EQ(File(), u"image.html"_s);
}

TEST_F(HelpWindow, KeepsItsTopicInAnotherPaletteAndSize)
{
    ShowHelp(u"OPTIONS"_s);
    const qreal size = Topic().font().pointSizeF();
    Find<QAction>(u"Larger"_s).trigger();
    EXPECT_GT(Topic().font().pointSizeF(), size);
    const QString before = Topic().document()->defaultStyleSheet();
    QPalette dark = Help()->palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    Help()->setPalette(dark);
    EXPECT_NE(Topic().document()->defaultStyleSheet(), before);
    EXPECT_EQ(File(), u"options.html"_s);
    Find<QAction>(u"Normal"_s).trigger();
    EXPECT_EQ(Topic().font().pointSizeF(), size);
}

} // namespace
