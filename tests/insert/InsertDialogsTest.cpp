#include "support/Paths.h"
#include "support/Pictures.h"
#include "tags/frmEditTag.h"
#include "tests/app/MainWindowFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QTimer>

#include <sys/stat.h>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// The dialogs as an author works with them: by the keyboard, on a page.
class InsertDialogs : public MainWindowFixture
{
protected:
    void StartWith(const QByteArray &page, int caret, int length = 0)
    {
        Stop();
        Start({Write(u"page.html"_s, page)});
        Active().Status = u"HTML"_s;
        Active().Source().SetSelStart(caret);
        Active().Source().SetSelLength(length);
    }
    /// Runs a command whose dialog gets the keys.
    void Run(const QString &command, const std::function<void(QWidget &dialog)> &keys)
    {
        bool shown = false;
        QTimer::singleShot(0, [&] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                shown = true;
                keys(*dialog);
                if (QApplication::activeModalWidget() == dialog)
                    Press(*dialog, Qt::Key_Escape);
            }
        });
        Trigger(command);
        EXPECT_TRUE(shown);
    }
    static void TypeInto(QWidget &dialog, const QString &text)
    {
        Type(*dialog.focusWidget(), text);
    }
    static void Enter(QWidget &dialog) { Press(*dialog.focusWidget(), Qt::Key_Return); }
    static void Tab(QWidget &dialog, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            Press(*dialog.focusWidget(), Qt::Key_Tab);
    }
    /// Goes to a button and presses it.
    static void Push(QWidget &dialog, const QString &name)
    {
        auto *button = dialog.findChild<QAbstractButton *>(name);
        ASSERT_TRUE(button && button->focusPolicy() & Qt::TabFocus) << qPrintable(name);
        button->setFocus();
        Press(*button, Qt::Key_Space);
    }
    QString Text() { return Active().Source().Text(); }
};

TEST_F(InsertDialogs, Hyperlink)
{
    StartWith("<p>a word</p>", 5, 4);
    Run(u"mnuInsertHyperlink"_s, [](QWidget &dialog) {
        TypeInto(dialog, u"www.example.org"_s);
        Enter(dialog);
    });
    EXPECT_EQ(Text(), u"<p>a <a href=\"http://www.example.org\">word</a></p>"_s);
    EXPECT_EQ(Active().Modyfied(), u"1"_s);

    StartWith("<A HREF=\"Old.htm\" title=\"x\">go</a>", 5);
    Run(u"mnuEditTag"_s, [](QWidget &dialog) {
        EXPECT_EQ(dialog.objectName(), u"frmHyperlink"_s);
        Press(*dialog.focusWidget(), Qt::Key_End);
        TypeInto(dialog, u"l"_s);
        Enter(dialog);
    });
    EXPECT_EQ(Text(), u"<a href=\"old.html\">go</a>"_s);
    EXPECT_EQ(Active().Modyfied(), u"1"_s);
    Trigger(u"mnuEditUndo"_s);
    EXPECT_EQ(Text(), u"<A HREF=\"Old.htm\" title=\"x\">go</a>"_s);

    StartWith("<a name=\"top\">x</a>", 19);
    Run(u"mnuInsertHyperlink"_s, [](QWidget &dialog) {
        auto *kinds = dialog.findChild<QWidget *>(u"TW"_s);
        Press(*kinds, Qt::Key_Down);
        auto *anchors = dialog.findChild<QListWidget *>(u"List1"_s);
        ASSERT_EQ(anchors->count(), 1);
        Press(*anchors, Qt::Key_Down);
        Enter(dialog);
    });
    EXPECT_EQ(Text(), u"<a name=\"top\">x</a><a href=\"#top\"></a>"_s);
    EXPECT_EQ(Read(AppPath(u"Files.dat")).count("example"), 1) << "the recent addresses are kept";

    QDir().remove(AppPath(u"Files.dat"));
    QFile::copy(Write(u"long"_s, QByteArray(4000, 'x')), AppPath(u"Files.dat"));
    for (const QString &command : {u"mnuInsertHyperlink"_s, u"mnuInsertImage"_s})
        Run(command, [](QWidget &dialog) {
            EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
        });
}

TEST_F(InsertDialogs, EditTag)
{
    StartWith("<TD width=\"5\" NoWrap align=\"left\">x", 3);
    Run(u"mnuEditTag"_s, [](QWidget &dialog) {
        EXPECT_EQ(dialog.objectName(), u"frmEditTag"_s);
        Push(dialog, u"Command3"_s);
        TypeInto(dialog, u"id"_s);
        Tab(dialog);
        TypeInto(dialog, u"cell"_s);
        Enter(dialog);
    });
    EXPECT_EQ(Text(), u"<td width=\"5\" NoWrap align=\"left\" id=\"Valuecell\">x"_s);

    const std::pair<QByteArray, QString> messages[]
        = {{"<!-- a -->", u"Cannot edit comment tag"_s}, {"</b>", u"Cannot edit end tag"_s}};
    for (const auto &[page, message] : messages) {
        StartWith(page, 2);
        boxes.asked.clear();
        Trigger(u"mnuEditTag"_s);
        EXPECT_EQ(boxes.asked, QStringList(message));
        EXPECT_EQ(Text(), QString::fromLatin1(page));
    }
    StartWith("<table Border=\"1\">", 3);
    Run(u"mnuEditTag"_s, [](QWidget &dialog) {
        dialog.findChild<QWidget *>(u"Combo1"_s)->setFocus();
        Tab(dialog);
        Enter(dialog);
    });
    EXPECT_EQ(Text(), u"<table Border=\"1\">"_s) << "a name keeps its case";

    const QString noStartTag = u"You must place the cursor inside a starttag (Eg. <BODY>)"_s;
    const std::pair<QByteArray, QString> refusals[]
        = {{"</b>", noStartTag}, {"", noStartTag}, {"<! x>", u"Cannot edit comment tags"_s}};
    for (const auto &[page, message] : refusals) {
        StartWith(page, 0, int(page.size()));
        boxes.asked.clear();
        EXPECT_EQ(frmEditTag(Active()).exec(), QDialog::Rejected);
        EXPECT_EQ(boxes.asked, QStringList(message));
    }

    StartWith("<b>bold</b> text", 0, 11);
    Trigger(u"mnuEditTag"_s);
    EXPECT_EQ(Text(), u"<b>bold</b> text"_s) << "a selection that is no tag";
}

TEST_F(InsertDialogs, Image)
{
    for (const char *format : {"png", "jpg", "bmp", "webp"})
        QImage(12, 7, QImage::Format_RGB32).save(folder.filePath(u"p."_s + QLatin1String(format)));
    Write(u"p.svg"_s, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"12\" height=\"7\"/>");
    Write(u"p.gif"_s,
          QByteArray::fromBase64(
              "R0lGODlhDAAHAPAAAP8AAAAAACH5BAAAAAAALAAAAAAMAAcAAAIIhI+py+0PVQEAOw=="));
    QByteArray huge = Read(folder.filePath(u"p.png"_s));
    huge.replace(16, 8, QByteArray("\0\0\x75\x30\0\0\x75\x30", 8));
    Write(u"huge.png"_s, huge);
    const QByteArray jpeg = Read(folder.filePath(u"p.jpg"_s));
    Write(u"torn.jpg"_s, jpeg.first(jpeg.size() / 2));
    Write(u"cut.jpg"_s, jpeg.chopped(3)); // within the scan
    QImage camera(8000, 4100, QImage::Format_Grayscale8);
    camera.fill(Qt::white);
    camera.save(folder.filePath(u"camera.jpg"_s));
    ASSERT_EQ(mkfifo(qPrintable(folder.filePath(u"pipe.gif"_s)), 0600), 0);

    const std::pair<QString, QString> cases[] = {{u"camera.jpg"_s, u"8000x4100"_s},
                                                 {u"pipe.gif"_s, u"x"_s},
                                                 {u"p.png"_s, u"12x7"_s},
                                                 {u"p.jpg"_s, u"12x7"_s},
                                                 {u"p.bmp"_s, u"12x7"_s},
                                                 {u"p.svg"_s, u"12x7"_s},
                                                 {u"p.gif"_s, u"12x7"_s},
                                                 {u"p.webp"_s, u"12x7"_s},
                                                 {u"huge.png"_s, u"x"_s},
                                                 {u"torn.jpg"_s, u"x"_s},
                                                 {u"cut.jpg"_s, u"x"_s},
                                                 {u"missing.gif"_s, u"x"_s}};
    for (const auto &[name, size] : cases) {
        SCOPED_TRACE(qPrintable(name));
        StartWith("", 0);
        boxes.asked.clear();
        Run(u"mnuInsertImage"_s, [&, name = name, size = size](QWidget &dialog) {
            TypeInto(dialog, name);
            Push(dialog, u"ActiveButton2"_s);
            Push(dialog, u"Command5"_s);
            EXPECT_EQ(dialog.findChild<QLineEdit *>(u"Text2"_s)->text(),
                      u"Image: %1 (%2)"_s.arg(name, size));
            Enter(dialog);
        });
        if (size == u"x")
            EXPECT_EQ(boxes.asked.value(0),
                      u"Unable to calculate width and height for the file: "_s
                          + folder.filePath(name));
        else
            EXPECT_EQ(
                Text(),
                u"<img src=\"%1\" alt=\"image: %1 (%2)\" border=\"\" height=\"%4\" "
                "width=\"%3\">"_s.arg(name, size, size.section(u'x', 0, 0), size.section(u'x', 1)));
    }
    StartWith("<img src=\"p.png\" align=\"absmiddle\">", 3);
    Run(u"mnuEditTag"_s, [](QWidget &dialog) { Enter(dialog); });
    EXPECT_EQ(Text(), u"<img src=\"p.png\" alt=\"\" border=\"\" align=\"Absmiddle\">"_s);
}

TEST_F(InsertDialogs, FilesAndColorsAreChosen)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"sub"_s));
    for (const QString &name : {u"sub/a b.htm"_s, u"x.URL"_s, u"y.url"_s})
        Write(name, "[InternetShortcut]\r\nURL=http://x.org/?a=b\r\n");
    ASSERT_TRUE(QImage(12, 7, QImage::Format_RGB32).save(folder.filePath(u"p.png"_s)));
    struct Case
    {
        QString command;
        QString button;
        QString field;
        QString file; // nothing is chosen when empty
        QString text;
    };
    const Case cases[] = {
        {u"mnuInsertHyperlink"_s,
         u"Command4"_s,
         u"AutoComplete1"_s,
         u"sub/a b.htm"_s,
         u"sub/a%20b.htm"_s},
        {u"mnuInsertHyperlink"_s,
         u"Command4"_s,
         u"AutoComplete1"_s,
         u"x.URL"_s,
         u"http://x.org/?a=b"_s},
        {u"mnuInsertHyperlink"_s, u"Command4"_s, u"AutoComplete1"_s, {}, {}},
        {u"mnuInsertImage"_s, u"Command3"_s, u"Text1"_s, u"p.png"_s, u"p.png"_s},
        {u"mnuInsertImage"_s, u"Command3"_s, u"Text3"_s, u"p.png"_s, u"12"_s},
        {u"mnuInsertImage"_s, u"FButton1"_s, u"Combo3"_s, u"y.url"_s, u"y.url"_s},
        {u"mnuEditTag"_s, u"FButton1"_s, u"Text2"_s, u"sub/a b.htm"_s, u"sub/a%20b.htm"_s},
        {u"mnuEditTag"_s, u"FButton1"_s, u"Text2"_s, {}, u"#00ff00"_s},
        {u"mnuEditTag"_s, u"FButton2"_s, u"Text2"_s, {}, u"#FF8000"_s},
        {u"mnuTagDesigner"_s, u"FButton2"_s, u"Text4"_s, u"y.url"_s, u"x.org/?a=b"_s},
        {u"mnuTagDesigner"_s, u"FButton2"_s, u"Text4"_s, u"x.URL"_s, u"x.URL"_s},
        {u"mnuTagDesigner"_s, u"FButton1"_s, u"Text3"_s, {}, u"#FF8000"_s},
    };
    QList<quint32> colours;
    Scripted().chooseColour = [&](quint32 colour) {
        colours.append(colour);
        return std::optional<quint32>(0x0080FF);
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(qPrintable(row.command + u' ' + row.button + u' ' + row.file));
        StartWith("<td bgcolor=\"#00ff00\">", 3);
        boxes.file = row.file.isEmpty() ? QString() : folder.filePath(row.file);
        Run(row.command, [&](QWidget &dialog) {
            Push(dialog, row.button);
            const auto *field = dialog.findChild<QWidget *>(row.field);
            const auto *combo = qobject_cast<const QComboBox *>(field);
            EXPECT_EQ(combo ? combo->currentText() : field->property("text").toString(), row.text);
        });
    }
    EXPECT_EQ(boxes.proposed, folder.path() + u'/') << "the choosers start beside the page";
    EXPECT_EQ(colours, QList<quint32>({0x00FF00, 0}));
    EXPECT_EQ(boxes.asked, QStringList());

    window->LoadNewDoc();
    boxes.file = folder.filePath(u"sub/a b.htm"_s);
    Run(u"mnuInsertHyperlink"_s, [](QWidget &dialog) {
        Push(dialog, u"Command4"_s);
        Enter(dialog);
    });
    EXPECT_THAT(boxes.asked.value(0).toStdString(),
                testing::StartsWith("You should save your document before using this feature."));
    EXPECT_TRUE(
        Text().contains(u"<a href=\"file://"_s + folder.path().toLower() + u"/sub/a%20b.htm\">"_s));
}

TEST_F(InsertDialogs, TagAndDesigner)
{
    StartWith("word", 0, 4);
    Run(u"mnuStartTag"_s, [](QWidget &dialog) {
        TypeInto(dialog, u"b"_s);
        Push(dialog, u"Check1"_s);
        Enter(dialog);
    });
    EXPECT_EQ(Text(), u"<b>word</b>"_s);
    Active().Source().SetSelStart(7);
    Trigger(u"mnuEndTag"_s);
    EXPECT_EQ(Text(), u"<b>word</b></b>"_s);

    StartWith("", 0);
    Run(u"mnuTagDesigner"_s, [](QWidget &dialog) {
        TypeInto(dialog, u"hr"_s);
        Enter(dialog);
        auto *attributes = dialog.findChild<QListWidget *>(u"List2"_s);
        EXPECT_EQ(attributes->count(), 11);
        auto *colour = dialog.findChild<QLineEdit *>(u"Text3"_s);
        Type(*colour, u"#fG0 -A"_s);
        EXPECT_EQ(colour->text(), u"#f0A"_s);
        for (const QString &name : {u"noshade"_s, u"width"_s}) {
            attributes->setCurrentItem(attributes->findItems(name, Qt::MatchExactly).value(0));
            dialog.findChild<QLineEdit *>(u"Text1"_s)->setText(u"9"_s);
            const QString insert = name == u"width" ? u"Command5"_s : u"Command6"_s;
            Push(dialog, insert);
        }
        Push(dialog, u"Command1"_s);
    });
    EXPECT_EQ(Text(), u"<hr noshade width=\"9\" >"_s);
}

} // namespace
