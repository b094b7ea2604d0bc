#include "app/DesignTools.h"
#include "app/frmBackground.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "editor/CodeHighlight.h"
#include "insert/BodyBackground.h"
#include "insert/TableGrid.h"
#include "insert/frmHyperlink.h"
#include "insert/frmImage.h"
#include "insert/frmTable.h"
#include "support/AuthorFile.h"
#include "support/DesignView.h"
#include "support/MessageBoxes.h"
#include "support/Paths.h"
#include "support/UntitledPages.h"
#include "tags/ChooseLink.h"
#include "tags/EditTag.h"
#include "tags/EndTag.h"
#include "tags/InsertMarkup.h"
#include "tags/SelectTag.h"
#include "tags/frmEditTag.h"
#include "tags/frmTag.h"
#include "tags/frmTagDesigner.h"

#include <QClipboard>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct Style
    {
        const char16_t *name;
        const char16_t *caption;
        const char16_t *markup;
        const char16_t *designStyle; // the block style of the design view; empty where it has none
    };
    constexpr Style Styles[] = {
        {u"mnuAdress", u"Address", u"<ADDRESS></ADDRESS>", u"Address"},
        {u"mnuCode", u"Code", u"<CODE></CODE>", u""},
        {u"mnuPreformat", u"Preformat", u"<PRE></PRE>", u"Formatted"},
        {u"h1", u"Heading 1", u"<H1></H1>", u"Heading 1"},
        {u"h2", u"Heading 2", u"<H2></H2>", u"Heading 2"},
        {u"h3", u"Heading 3", u"<H3></H3>", u"Heading 3"},
        {u"h4", u"Heading 4", u"<H4></H4>", u"Heading 4"},
        {u"h5", u"Heading 5", u"<H5></H5>", u"Heading 5"},
        {u"h6", u"Heading 6", u"<H6></H6>", u"Heading 6"},
        {u"mnuNormal", u"Normal", u"<P></P>", u"Normal"},
    };

    // Beside the page: the picture's own name, or that with a number where another picture has it.
    QString PlaceOfCopy(const QString &folder, const QString &path, const QByteArray &picture)
    {
        const QFileInfo file(path);
        QString place = folder + file.fileName();
        for (int number = 2; QFile::exists(place) && ReadAuthorFile(place).bytes != picture;
             ++number)
            place
                = folder + file.completeBaseName() + QString::number(number) + u'.' + file.suffix();
        return place;
    }

    // A picture of the gallery lies with the program, where no reader of the page finds it.
    QString OwnCopy(const DocumentModel &page, const QString &path)
    {
        if (IsUntitled(page.Caption()) || FolderOf(path) != FolderOf(AppPath(u"Backgrounds/x")))
            return path;
        const QByteArray picture = ReadAuthorFile(path).bytes;
        const QString copy = PlaceOfCopy(page.Folder(), path, picture);
        if (QFile::exists(copy))
            return copy;
        const Answer answer = MsgBox(u"Do you want to copy '"_s + FileNameOf(path)
                                         + u"' to the folder of the page?"_s,
                                     Buttons::YesNo,
                                     Icon::Question);
        if (answer != Answer::Yes)
            return path;
        const QString error = WriteAuthorFile(copy, picture);
        if (error.isEmpty())
            return copy;
        MsgBox(u"Can't save '"_s + copy + u"'\n\n"_s + error, Buttons::Ok, Icon::Critical);
        return path;
    }

    // The selection inside the tags of a style.
    void ApplyStyle(DocumentModel &page, const Style &style)
    {
        if (page.Status() == u"Design" && *style.designStyle != u'\0')
            page.Design()->ExecCommand(Decmd::SetBlockFmt, QString::fromUtf16(style.designStyle));
        else
            InsertMarkup(page, QString::fromUtf16(style.markup));
    }

} // namespace

void frmMain::AddInsertCommands(MainMenu::Commands &commands)
{
    const auto open = [this](auto show) {
        return [this, show] { ForActive([&](frmDocument &page) { show(page); }); };
    };
    commands[u"mnuEditTag"_s] = open([this](frmDocument &page) { EditTag(page); });
    commands[u"mnuStartTag"_s] = open([this](frmDocument &page) { frmTag(page, this).exec(); });
    commands[u"mnuEndTag"_s] = open([](frmDocument &page) {
        const SourceView &source = page.rtfText();
        if (const auto endTag = EndTagAt(source.Text(), source.SelStart()))
            InsertMarkup(page, *endTag);
    });
    commands[u"mnuInsertHyperlink"_s] = open(
        [this](frmDocument &page) { frmHyperlink(page, frmHyperlink::Mode::Insert, this).exec(); });
    commands[u"mnuInsertImage"_s]
        = open([this](frmDocument &page) { frmImage(page, frmImage::Mode::Insert, this).exec(); });
    commands[u"mnuTagDesigner"_s]
        = open([this](frmDocument &page) { frmTagDesigner(page, this).exec(); });
    commands[u"mnuBackground"_s] = [this] { ChooseBackground(); };
    commands[u"mnuPasteHTML"_s] = [this] {
        ForActive([](frmDocument &page) {
            const QString markup = QGuiApplication::clipboard()->text();
            if (!markup.isEmpty())
                InsertMarkup(page, markup);
        });
    };
    commands[u"mnuSelectTag"_s]
        = [this] { ForActive([](frmDocument &page) { SelectTagAtCaret(page.rtfText()); }); };
}

// The dialog that fits the tag at the caret, or why there is none.
void frmMain::EditTag(frmDocument &page)
{
    SourceView &source = page.rtfText();
    if (source.IsReadOnlyPage())
        return;
    SelectTagAtCaret(source);
    // A selection of the author's that is no tag stays as it is.
    const QString tag = source.SelText();
    if (tag.indexOf(u'>') != tag.size() - 1)
        return;
    switch (EditTagTargetOf(tag)) {
    case EditTagTarget::Nothing:
        return;
    case EditTagTarget::CommentMessage:
        MsgBox(u"Cannot edit comment tag"_s, Buttons::Ok, Icon::Information);
        return;
    case EditTagTarget::EndTagMessage:
        MsgBox(u"Cannot edit end tag"_s, Buttons::Ok, Icon::Information);
        return;
    case EditTagTarget::Hyperlink:
        frmHyperlink(page, frmHyperlink::Mode::Edit, this).exec();
        return;
    case EditTagTarget::Image:
        frmImage(page, frmImage::Mode::Edit, this).exec();
        return;
    default:
        frmEditTag(page, this).exec();
    }
}

QMenu *frmMain::BuildStyleMenu()
{
    auto *menu = new QMenu(u"Style"_s, this);
    menu->setObjectName(u"mnuStyle"_s);
    connect(
        menu,
        &QMenu::aboutToShow,
        this,
        [this, menu] { FillStyleMenu(*menu); },
        Qt::SingleShotConnection);
    return menu;
}

void frmMain::FillStyleMenu(QMenu &menu)
{
    for (const Style &style : Styles) {
        QAction *item = menu.addAction(QString::fromUtf16(style.caption));
        item->setObjectName(QString::fromUtf16(style.name));
        connect(item, &QAction::triggered, this, [this, &style] {
            ForActive([&](frmDocument &page) { ApplyStyle(page, style); });
        });
    }
}

// Filled when it is first opened: there may be hundreds of fonts.
void frmMain::FillFontMenu()
{
    QMenu *menu = m_menu->MenuOf(u"mnuFont"_s);
    if (menu->findChild<QAction *>(u"mnuFontName"_s))
        return;
    for (const QString &font : QFontDatabase::families()) {
        QAction *item = menu->addAction(QString(font).replace(u'&', u"&&"_s));
        item->setObjectName(u"mnuFontName"_s);
        connect(item, &QAction::triggered, this, [this, font] {
            ForActive([&](frmDocument &page) { WrapInFont(page, font); });
        });
    }
}

void frmMain::WrapInFont(frmDocument &page, const QString &font)
{
    if (page.Status() == u"Design") {
        page.Design()->ExecCommand(Decmd::SetFontName, font);
        return;
    }
    SourceView &source = page.rtfText();
    if (source.IsReadOnlyPage())
        return;
    const QString text = source.SelText();
    if (!text.isEmpty()) {
        source.AddUndo();
        source.SetSelText({});
    }
    const QString face = QString(font).replace(u'"', u"&quot;"_s);
    InsertMarkup(page, u"<FONT face=\""_s + face + u"\">"_s + text + u"</FONT>"_s);
}

void frmMain::ChooseBackground()
{
    frmDocument *page = ActiveForm();
    if (!page || page->rtfText().IsReadOnlyPage())
        return;
    frmBackground gallery(
        [page](const QString &path) {
            const QString address = LinkTo(*page, OwnCopy(*page, path));
            // The design view has no say in the body's tag.
            page->WithNewestText([&] {
                SetBodyBackground(page->rtfText(), address);
                page->Modyfied = u"1"_s;
            });
        },
        this);
    gallery.exec();
}

void frmMain::PickTable(const QPoint &place)
{
    auto *grid = new frmTable(this);
    connect(grid, &frmTable::Chosen, this, [this](int rows, int columns) {
        ForActive([&](frmDocument &page) {
            const bool isDesign = page.Status() == u"Design";
            const QString selection = isDesign ? QString() : page.rtfText().SelText();
            InsertMarkup(page, GridTable(rows, columns, selection));
        });
    });
    grid->move(place);
    grid->show();
}

} // namespace brenix
