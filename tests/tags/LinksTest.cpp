#include "support/Paths.h"
#include "tags/HyperlinkMarkup.h"
#include "tags/ImageMarkup.h"
#include "tags/LinkFiles.h"
#include "tests/support/FreshHome.h"
#include "tests/support/WithFolder.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class LinkFiles : public testing::Test, protected WithFolder
{
protected:
    const FreshHome home;
};

TEST_F(LinkFiles, ReadsRecentAddresses)
{
    struct Case
    {
        const char *row;
        QByteArray file;
        QStringList rows;
    };
    const Case cases[] = {
        {"no lines", "", {}},
        {"line ends", "a\r\nb\nc\rd", {u"a"_s, u"b"_s, u"c"_s, u"d"_s}},
        {"commas and quotes", "a,b\r\n\"c\"\r\n", {u"a,b"_s, u"\"c\""_s}},
        {"the same again", "a\r\na\r\nb\r\na\r\n", {u"a"_s, u"b"_s, u"a"_s}},
        {"empty lines", "\r\na\r\n\r\n", {u"a"_s}},
        {"letters of a code page", "\x9E.htm\r\n", {u"ž.htm"_s}},
        {"no addresses", QByteArray("a\0b\nc\n", 6) + QByteArray(5000, 'x'), {u"c"_s}},
    };
    for (const Case &row : cases) {
        QFile file(AppPath(u"Files.dat"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(row.file);
        file.close();
        EXPECT_EQ(ReadRecentAddresses(), row.rows) << row.row;
    }
}

TEST_F(LinkFiles, KeepsTheLastOfManyAddresses)
{
    EXPECT_EQ(ReadRecentAddresses(), QStringList());
    QStringList rows;
    for (int i = 0; i < 10'005; ++i)
        rows.append(QString::number(i));
    EXPECT_EQ(WriteRecentAddresses(rows), QString());
    EXPECT_EQ(ReadRecentAddresses(), rows.mid(5));
    EXPECT_EQ(WriteRecentAddresses({u"ž"_s, u"b"_s}), QString());
    EXPECT_EQ(Read(AppPath(u"Files.dat")), QByteArray("\xC5\xBE\r\nb\r\n"));
}

TEST_F(LinkFiles, SaysWhenAddressesCannotBeWritten)
{
    ASSERT_TRUE(QDir().mkpath(AppPath(u"Files.dat")));
    EXPECT_EQ(ReadRecentAddresses(), QStringList());
    EXPECT_NE(WriteRecentAddresses({u"a"_s}), QString());
}

TEST_F(LinkFiles, PartsMailFromAddresses)
{
    const RecentLinks links
        = SplitRecentAddresses({u"a.htm"_s, u"MAILTO:x@y"_s, u"mailto: "_s, u"b.htm"_s});
    EXPECT_EQ(links.addresses, QStringList({u"a.htm"_s, u"b.htm"_s}));
    EXPECT_EQ(links.mail, QStringList({u"x@y"_s, u" "_s}));
    EXPECT_EQ(JoinRecentAddresses(links, u"#top"_s),
              QStringList({u"a.htm"_s, u"b.htm"_s, u"mailto:x@y"_s, u"#top"_s}));
}

TEST_F(LinkFiles, ReadsShortcuts)
{
    const QString shortcut = Write(u"a.url"_s, "[InternetShortcut]\r\nURL=http://x.org/?a=b\r\n");
    EXPECT_EQ(ShortcutLine(shortcut), u"URL=http://x.org/?a=b"_s);
    EXPECT_EQ(ShortcutLine(Write(u"b.url"_s, "one line")), QString());
    EXPECT_EQ(ShortcutLine(folder.filePath(u"none.url"_s)), std::nullopt);

    EXPECT_EQ(ShortcutAddress(u"URL=http://x.org/?a=b"_s), u"http://x.org/?a=b"_s);
    EXPECT_EQ(ShortcutAddress(u"nothing"_s), QString());
    EXPECT_EQ(DesignerShortcutAddress(u"URL=http://x.org/?a=b"_s), u"x.org/?a=b"_s);
    EXPECT_EQ(DesignerShortcutAddress(u"URL=x.org"_s), u"x.org"_s);
    EXPECT_EQ(DesignerShortcutAddress({}), QString());
}

TEST_F(LinkFiles, FindsThePictureOfAnAddress)
{
    const QString plain = Write(u"50%20.gif"_s, "x");
    const QString blank = Write(u"a b.gif"_s, "x");
    const QString start = folder.path() + QDir::separator();
    EXPECT_EQ(ImageFile(u"50%20.gif"_s, folder.path()), plain);
    EXPECT_EQ(ImageFile(u"a%20b.gif"_s, start), blank);
    EXPECT_EQ(ImageFile(u"x\\..\\a%20b.gif"_s, start), start + u"x/../a b.gif"_s);
    EXPECT_EQ(ImageFile(u"FILE://"_s + start + u"a%20b.gif"_s, {}), blank);
    EXPECT_EQ(ImageFile(u"none.gif"_s, folder.path()), start + u"none.gif"_s);
}

TEST(HyperlinkMarkup, LinksToAllKinds)
{
    Hyperlink link{.address = u"a.htm"_s, .anchor = u"top"_s, .mail = u"x@y"_s, .text = u"here"_s};
    EXPECT_EQ(HyperlinkMarkup(link), u"<a href=\"a.htm\">here</a>"_s);
    EXPECT_EQ(HyperlinkStartTag(link), u"<a href=\"a.htm\">"_s);
    link.kind = LinkKind::Inside;
    EXPECT_EQ(HyperlinkStartTag(link), u"<a href=\"#top\">"_s);
    link.kind = LinkKind::Mail;
    EXPECT_EQ(HyperlinkStartTag(link), u"<a href=\"mailto:x@y\">"_s);
    EXPECT_EQ(WithScheme(u"www.x"_s), u"http://www.x"_s);
    EXPECT_EQ(WithScheme(u"www"_s), u"www"_s);
    EXPECT_EQ(WithScheme(u"http://www.x"_s), u"http://www.x"_s);
    EXPECT_EQ(WebSiteOf(u"example"_s), u"http://www.example.com"_s);
}

TEST(HyperlinkMarkup, ReadsTheAddressInLowerCase)
{
    EXPECT_EQ(ReadHyperlink(u"<A TARGET=\"_top\" HREF=\"X.htm\">"_s).address, u"x.htm"_s);
    const Hyperlink mail = ReadHyperlink(u"<a href=\"MailTo:A@b\">"_s);
    EXPECT_EQ(mail.mail, u"a@b"_s);
    EXPECT_EQ(mail.address, u"mailto:a@b"_s);
}

TEST(HyperlinkMarkup, FindsAnchors)
{
    const QHash<QString, QStringList> pages{
        {u"<a name=\"b\"><A NAME = \"A\"><a id=\"x\">"_s, {u"b"_s, u"A"_s}},
        {u"<b name=\"x\"><a name=\"y\">"_s, {u"y"_s}},
        {u"<a><b name=\"x\">"_s, {}},
        {u"<a title='0123456' name=\"x\">"_s, {}}, // farther than 20 characters
        {u"<a title='012' name=\"x\">"_s, {u"x"_s}},
        {u"<a name=x href=\"y\">"_s, {u"y"_s}}, // the first quote counts
        {u"<a name=\"name\"><a href=\"y\">"_s, {u"name"_s, u"><a href="_s}}, // the word as a value
        {u"name <a href=\"x\">"_s, {u"x"_s}},
        {u"<a name=\"x"_s, {}},
        {u"<a name"_s, {}},
        {u"name\"\""_s, {}},
        {{}, {}},
    };
    for (auto row = pages.begin(); row != pages.end(); ++row)
        EXPECT_EQ(AnchorsOf(row.key()), row.value()) << row.key().toStdString();
}

TEST(ImageMarkup, WritesWhatIsFilledIn)
{
    Image image;
    image.source = u"a.gif"_s;
    EXPECT_EQ(ImageMarkup(image), u"<img src=\"a.gif\" alt=\"\" border=\"\">"_s);
    image = {u"a.gif"_s, u"a \"b\""_s, u"1"_s, u"10"_s, u"20"_s, u"Left"_s, u"x.htm"_s, {}, {}};
    const QString tag = u"<img src=\"a.gif\" alt=\"a &quot;b&quot;\" border=\"1\" height=\"10\" "
                        "width=\"20\" align=\"Left\">"_s;
    EXPECT_EQ(ImageTag(image), tag);
    EXPECT_EQ(ImageMarkup(image), u"<a href=\"x.htm\">"_s + tag + u"</a>"_s);
    EXPECT_EQ(GeneratedAlternative(image), u"Image: a.gif (20x10)"_s);
}

TEST(ImageMarkup, ReadsLowerCaseNamesAlone)
{
    const Image image = ReadImage(u"<IMG src=\"A.gif\" ALT=\"x\" width=\"20\" height=\"10\" "
                                  "border=\"1\" align=\"LEFT\">"_s);
    EXPECT_EQ(ImageTag(image),
              u"<img src=\"A.gif\" alt=\"\" border=\"1\" height=\"10\" width=\"20\" "
              "align=\"Left\">"_s);
    EXPECT_EQ(image.ownHeight, u"10"_s);
    EXPECT_EQ(image.ownWidth, u"453"_s);
    EXPECT_EQ(ReadImage(u"<img>"_s).ownWidth, QString());
}

} // namespace
