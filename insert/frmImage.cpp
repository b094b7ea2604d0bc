#include "insert/frmImage.h"

#include "insert/PictureViewer.h"
#include "support/DocumentModel.h"
#include "support/Help.h"
#include "support/Pictures.h"
#include "support/SourceView.h"
#include "tags/ChooseLink.h"
#include "tags/EditTag.h"
#include "tags/InsertMarkup.h"
#include "tags/LinkFiles.h"
#include "tags/RecentBox.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // The missing semicolons are these filters' own.
    constexpr char16_t PictureFilter[]
        = u"All Files (*.*)|*.*|Picture files|*.ico;*.bmp*.wmf;*.emf*.dib;*.2bm;*.jpg;*.jpeg;*.gif|"
          u"Internet picture files|*.jpg;*.jpeg;*.gif";
    constexpr char16_t LinkFilter[]
        = u"All Files (*.*)|*.*|Web pages|*.html;*.htm;*.asp;|Picture files|"
          u"*.ico;*.bmp*.wmf;*.emf*.dib;*.2bm;*.jpg;*.jpeg;*.gif|Internet picture files|"
          u"*.jpg;*.jpeg;*.gif";
    constexpr int ThickestBorder = 16;

    QStringList Borders()
    {
        QStringList borders;
        for (int width = 1; width <= ThickestBorder; ++width)
            borders.append(QString::number(width));
        return borders;
    }

} // namespace

frmImage::frmImage(DocumentModel &page, Mode mode, QWidget *parent)
    : FormDialog(u"frmImage", u"Insert Image"_s, parent)
    , m_page(page)
    , m_mode(mode)
{
    if (mode == Mode::Edit)
        m_image = ReadImage(page.rtfText().SelText());
    BuildSource();
    BuildSizes();
    BuildLink();
    AddButtons({.ok = u"Command1", .cancel = u"Command2", .help = u"Command6"},
               [] { ShowHelp(u"IMAGE"_s); });
    m_source->setFocus();
}

void frmImage::BuildSource()
{
    m_source = Rows().Combo(u"Text1", u"&Image:"_s, ReadRecentAddresses(), m_image.source);
    m_source->setMinimumContentsLength(40);
    Rows().ButtonBeside(u"Command3", u"&Browse..."_s, [this] { ChoosePicture(); });
    Rows().ButtonBeside(u"ActiveButton2", u"&Get size"_s, [this] { ReadSize(); });
    Rows().ButtonBeside(u"Command4", u"&View"_s, [this] { ViewPicture(); });
    m_alternative = Rows().Text(u"Text2", u"Alternative &text"_s, m_image.alternative);
    Rows().ButtonBeside(u"Command5", u"&Auto generate"_s, [this] { GenerateAlternative(); });
}

void frmImage::BuildSizes()
{
    m_width = Rows().Text(u"Text3", u"&Width"_s, m_image.width);
    m_height = Rows().Text(u"Text4", u"H&eight"_s, m_image.height);
    Rows().WhenChanged([this] { MarkSizes(); });
    MarkSizes();
    Rows().Combo(u"Combo1", u"Bo&rder"_s, Borders(), m_image.border);
    Rows().Choice(u"Combo2",
                  u"Image Align&ment"_s,
                  {u"(None)"_s, u"Left"_s, u"Right"_s, u"Top"_s, u"Middle"_s, u"Bottom"_s},
                  m_image.alignment);
}

void frmImage::BuildLink()
{
    QComboBox *link = Rows().Combo(u"Combo3", u"&Link to:"_s, ReadRecentAddresses(), m_image.link);
    QPushButton *choose
        = Rows().ChooserBeside(u"FButton1", u"Brow&se..."_s, [this](const QString &) {
              return ChooseLink(
                  m_page, {.title = u"Link to file"_s, .filter = QString::fromUtf16(LinkFilter)});
          });
    link->setEnabled(m_mode == Mode::Insert);
    choose->setEnabled(m_mode == Mode::Insert);
}

void frmImage::ChoosePicture()
{
    const QString picture
        = ChooseLink(m_page, {.title = u"Open"_s, .filter = QString::fromUtf16(PictureFilter)});
    if (picture.isEmpty())
        return;
    m_source->setEditText(picture);
    ReadSize();
}

QString frmImage::PictureFile() const
{
    return ImageFile(m_image.source, m_page.Folder());
}

void frmImage::ReadSize()
{
    const QSize size = MeasurePicture(PictureFile());
    if (size.isEmpty()) {
        MsgBox(u"Unable to calculate width and height for the file: "_s + PictureFile(),
               Buttons::Ok,
               Icon::Information);
        return;
    }
    m_image.ownWidth = QString::number(size.width());
    m_image.ownHeight = QString::number(size.height());
    m_width->setText(m_image.ownWidth);
    m_height->setText(m_image.ownHeight);
    MarkSizes();
}

void frmImage::ViewPicture()
{
    PictureViewer(PictureFile(), this).exec();
}

void frmImage::GenerateAlternative()
{
    m_alternative->setText(GeneratedAlternative(m_image));
}

// A size that is not the picture's own stands out.
void frmImage::MarkSizes()
{
    const auto mark = [](QLineEdit *box, const QString &own) {
        QFont font = box->font();
        font.setBold(box->text() != own);
        box->setFont(font);
    };
    mark(m_width, m_image.ownWidth);
    mark(m_height, m_image.ownHeight);
}

bool frmImage::Accepted()
{
    QStringList recent;
    for (int i = 0; i < m_source->count(); ++i)
        recent.append(m_source->itemText(i));
    StoreRecentAddresses(recent);
    if (m_mode == Mode::Insert)
        InsertMarkup(m_page, ImageMarkup(m_image));
    else
        ReplaceTag(m_page.rtfText(), ImageTag(m_image));
    return true;
}

} // namespace brenix
