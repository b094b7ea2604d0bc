#include "editor/PrintedSource.h"

#include "editor/LineEnds.h"
#include "editor/PageMirror.h"
#include "editor/PageText.h"
#include "tests/support/PrintQt.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <gtest/gtest.h>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Page
{
    explicit Page(const QString &text)
        : mirror(&view)
    {
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        view.setDefaultTextOption(option);
        mirror.Replace(0, 0, HeldText(text, LineEnd::CrLf));
        mirror.BreakLongBlocks(0, mirror.Rope().Length());
    }
    std::unique_ptr<QTextDocument> Printed(int from, int to) const
    {
        return PrintedSource(view, mirror, from, to);
    }
    std::unique_ptr<QTextDocument> Printed() const { return Printed(0, mirror.Rope().Length()); }

    QTextDocument view;
    PageMirror mirror;
};

TEST(PrintedSource, StretchesOfAPage)
{
    const QString text = u"<p>\nab\n\ncd"_s;
    const std::tuple<const char *, int, int, QString> cases[] = {
        {"all", 0, 10, text},
        {"within a line", 4, 5, u"a"_s},
        {"over lines", 1, 9, u"p>\nab\n\nc"_s},
        {"nothing", 5, 5, {}},
    };
    const Page page(text);
    for (const auto &[row, from, to, printed] : cases)
        EXPECT_EQ(page.Printed(from, to)->toPlainText(), printed) << row;
}

TEST(PrintedSource, LongLinesGoOnInTheNextRow)
{
    const QString line = u"<b>word</b> "_s.repeated(500);
    const Page page(line + u"\nend"_s);
    ASSERT_GT(page.view.blockCount(), 2) << "the view holds it in pieces";
    const auto paper = page.Printed();
    EXPECT_EQ(paper->toPlainText(), line + u"\nend"_s);
    paper->setPageSize({600, 800});
    EXPECT_LE(paper->idealWidth(), 600);
    EXPECT_GT(paper->pageCount(), 1);
}

TEST(PrintedSource, ColoursAreFitForWhitePaper)
{
    const Page page(u"<b>x</b>"_s);
    const auto format = [](const QColor &colour) {
        QTextCharFormat made;
        made.setForeground(colour);
        made.setFontWeight(QFont::Bold);
        return made;
    };
    page.view.begin().layout()->setFormats(
        {{0, 3, format(Qt::darkBlue)}, {4, 4, format(QColor(255, 255, 160))}});
    QStringList pieces;
    const auto paper = page.Printed(1, 8);
    for (auto it = paper->begin().begin(); !it.atEnd(); ++it) {
        const QTextCharFormat printed = it.fragment().charFormat();
        const QColor ink = printed.foreground().color();
        EXPECT_LT(ink.lightnessF(), 0.6);
        pieces.append(it.fragment().text() + (printed.fontWeight() == QFont::Bold ? u"!"_s : u""_s)
                      + (ink == QColor(Qt::darkBlue) ? u"*"_s : u""_s));
    }
    EXPECT_EQ(pieces, QStringList({u"b>!*"_s, u"x"_s, u"</b>!"_s}));
}

} // namespace
