#include "tests/app/MainWindowFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QToolBar>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class CaretStatus : public MainWindowFixture
{
protected:
    CaretStatus()
    {
        Start();
        window->OpenPath(Write(u"page.html"_s, ""));
        Active().Status = u"HTML"_s;
        Settle();
    }

    /// Shows a page of this text alone, with the text between "[" and "]" selected.
    void Select(QString marked)
    {
        const int start = int(marked.indexOf(u'['));
        const int end = int(marked.indexOf(u']'));
        Active().StartWith(marked.remove(u'[').remove(u']'), start);
        Active().Source().SetSelLength(end - start - 1);
    }
    QWidget &Part(const QString &name)
    {
        return *Active().findChild<QWidget *>(name, Qt::FindDirectChildrenOnly);
    }
    /// The names of those that are shown.
    QString Shown()
    {
        QString shown;
        for (const QString &name : {u"Label1"_s, u"Picture3"_s, u"Picture2"_s})
            shown += Part(name).isVisible() ? name : QString();
        return shown;
    }
    void WritePicture(const QString &name, const QSize &size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(folder.filePath(name)));
    }
};

TEST_F(CaretStatus, NotesComeAndGo)
{
    WritePicture(u"photo.jpg"_s, {200, 100});
    WritePicture(u"two words.png"_s, {20, 10});
    Write(u"damaged.gif"_s, "GIF89a but no more");
    QDir(folder.path()).mkdir(u"folder.jpg"_s);
    WritePicture(u"small.bmp"_s, {8, 8});
    QByteArray huge = Read(folder.filePath(u"small.bmp"_s));
    huge.replace(18, 8, QByteArray::fromHex("3075000030750000")); // says it is 30000 x 30000
    Write(u"huge.bmp"_s, huge);
    const struct
    {
        const char *name;
        QString text;
        QString shown;
    } rows[] = {
        {"colour", u"a [#FF0000] b"_s, u"Label1"_s},
        {"no colour", u"a [#FF000]0 b"_s, u""_s},
        {"entity", u"[&eacute;]"_s, u"Picture2"_s},
        {"picture", u"<img src=[photo.jpg]>"_s, u"Picture3"_s},
        {"picture by its link", u"[two%20words.png]"_s, u"Picture3"_s},
        {"damaged picture", u"[damaged.gif]"_s, u""_s},
        {"small picture", u"[small.bmp]"_s, u"Picture3"_s},
        {"picture too large to wait for", u"[huge.bmp]"_s, u""_s},
        {"missing picture", u"[missing.gif]"_s, u""_s},
        {"picture that is a folder", u"[folder.jpg]"_s, u""_s},
        {"number", u"[&#233;]"_s, u"Picture2"_s},
        {"nothing selected", u"#FF[]0000"_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        Select(row.text);
        EXPECT_EQ(Shown(), row.shown);
        EXPECT_EQ(window->focusWidget(), &Active().Source());
    }
}

TEST_F(CaretStatus, NotesTellWhatIsSelected)
{
    WritePicture(u"photo.jpg"_s, {200, 100});
    WritePicture(u"high.bmp"_s, {10, 4000});
    WritePicture(u"small.png"_s, {20, 10});
    Select(u"[#12ABef]"_s);
    EXPECT_EQ(Part(u"Label1"_s).palette().color(QPalette::Window), QColor(0x12, 0xAB, 0xEF));
    Select(u"[&#60;]"_s);
    EXPECT_EQ(Find<QLabel>(u"Letters"_s).text(), u"Numbered entitie = '<'"_s);
    const std::pair<QString, QSize> pictures[]
        = {{u"photo.jpg"_s, {73, 36}}, {u"high.bmp"_s, {1, 73}}, {u"small.png"_s, {20, 10}}};
    for (const auto &[name, size] : pictures) {
        Select(u'[' + name + u']');
        EXPECT_EQ(Find<QLabel>(u"Image1"_s).size(), size);
        EXPECT_EQ(Part(u"Picture3"_s).size(), size + QSize(2, 2));
    }
}

TEST_F(CaretStatus, NotesStayBesideTheCaret)
{
    WritePicture(u"photo.jpg"_s, {200, 200});
    CodeHighlight &source = Active().Source();
    const QString lines = QString(u"\r\n"_s).repeated(200);
    for (const QString &selected : {u"[#FF0000]"_s, u"[photo.jpg]"_s, u"[&eacute;]"_s}) {
        SCOPED_TRACE(selected.toStdString());
        for (const QString &before : {QString(), lines, QString(400, u'x')}) {
            Select(before + selected + lines);
            source.ensureCursorVisible();
            QWidget &note = Part(Shown());
            const QRect caret
                = source.cursorRect().translated(source.viewport()->mapTo(&Active(), QPoint(0, 0)));
            EXPECT_TRUE(source.geometry().contains(note.geometry()));
            EXPECT_FALSE(note.geometry().intersects(caret)) << "the line can be read";
            EXPECT_LE(std::abs(note.geometry().center().y() - caret.center().y()), 100);
            const bool isEntity = selected.contains(u';');
            const int side = isEntity ? note.x() : note.x() + note.width();
            EXPECT_TRUE(!before.isEmpty() || side == caret.x() + 31);
        }
        Select(lines + selected + lines);
        source.verticalScrollBar()->setValue(0);
        EXPECT_EQ(Shown(), QString()) << "scrolled out of sight";
        source.ensureCursorVisible();
        EXPECT_NE(Shown(), QString());
        Active().Status = u"Preview"_s;
        EXPECT_EQ(Shown(), QString());
        Active().Status = u"Split"_s;
        source.ensureCursorVisible();
        EXPECT_NE(Shown(), QString());
    }
}

TEST_F(CaretStatus, SelectionCommandsAreEnabledWhileTheyCanDoSomething)
{
    const struct
    {
        const char *name;
        QString text;
        QString clipboard;
    } rows[] = {
        {"nothing", u"a[]b"_s, u""_s},
        {"a selection", u"a[b]"_s, u""_s},
        {"a text to paste", u"a[]b"_s, u"x"_s},
        {"both", u"[ab]"_s, u"x"_s},
        {"neither again", u"ab[]"_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        Select(row.text);
        QGuiApplication::clipboard()->clear();
        if (!row.clipboard.isEmpty())
            QGuiApplication::clipboard()->setText(row.clipboard);
        const bool selected = Active().Source().SelLength() != 0;
        for (const QString &name : {u"mnuEditCopy"_s, u"mnuEditCut"_s, u"mnuDelete"_s})
            EXPECT_EQ(Find<QAction>(name).isEnabled(), selected) << name.toStdString();
        for (const QString &name : {u"mnuCase"_s, u"mnuFormat"_s})
            EXPECT_EQ(Find<QMenu>(name).menuAction()->isEnabled(), selected) << name.toStdString();
        for (const int button : {8, 9})
            EXPECT_EQ(Find<QToolBar>(u"Toolbar1"_s).actions()[button - 1]->isEnabled(), selected);
        EXPECT_EQ(Find<QAction>(u"mnuEditPaste"_s).isEnabled(), !row.clipboard.isEmpty());
    }
    Select(u"a[b]"_s);
    window->LoadNewDoc();
    Settle();
    EXPECT_FALSE(Find<QAction>(u"mnuEditCut"_s).isEnabled()) << "the selection of another page";
}

} // namespace
