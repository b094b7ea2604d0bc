#include "support/DesignView.h"
#include "support/PreviewCopies.h"
#include "support/WebModule.h"
#include "tests/support/PrintQt.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using namespace brenix;
using testing::HasSubstr;

namespace {

class WebDesign : public testing::Test
{
protected:
    void SetUp() override
    {
        WebModule *module = LoadWebModule();
        ASSERT_TRUE(module) << WebModuleError().toStdString();
        m_window.resize(600, 400);
        m_window.show();
        m_window.activateWindow();
        m_design = module->CreateDesignView(&m_window);
        m_engine = qobject_cast<QWebEngineView *>(m_design->Widget());
        ASSERT_TRUE(m_engine);
        m_layout.addWidget(m_engine);
        m_design->Edited = [this] { ++m_edits; };
        m_design->LinkHovered = [this](const QString &address) { m_links.append(address); };
    }

    QString Write(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) >= 0);
        return path;
    }
    bool Load(const QString &html)
    {
        return m_design->LoadDocument(Write(u"page_.html_"_s, html.toUtf8()));
    }
    bool LoadBody(const QString &body)
    {
        return Load(u"<html><head></head><body>%1</body></html>"_s.arg(body));
    }
    /// Edits the page and waits until the view has heard what it is now.
    void EditAndKeep()
    {
        Select(u"a"_s);
        m_design->PasteHTML(u"<% kept %>"_s);
        const auto isKept = [&] { return Run(u"brenix.isKept === true"_s).toBool(); };
        Run(u"{ const page = brenix.page; brenix.page = () => { brenix.isKept = true; return page(); }; }"_s);
        ASSERT_TRUE(WaitFor(isKept));
    }
    QString Text() { return m_design->DocumentHTML().value_or(u"no answer"_s); }
    QString Body()
    {
        QString text = Text();
        text.remove(0, text.indexOf(u"<body>"_s) + 6);
        return text.first(text.indexOf(u"</body>"_s));
    }

    QVariant Run(const QString &script)
    {
        const auto answer = std::make_shared<std::optional<QVariant>>();
        m_engine->page()->runJavaScript(script,
                                        QWebEngineScript::ApplicationWorld,
                                        [answer](const QVariant &value) { *answer = value; });
        EXPECT_TRUE(WaitFor([&] { return answer->has_value(); })) << script.toStdString();
        return answer->value_or(QVariant());
    }
    // From the beginning of the first text to the end of the second; "|" alone: the caret behind
    // it.
    void Select(const QString &from, const QString &to = {})
    {
        const auto place = [](const QString &text) {
            return u"(() => { const nodes = document.createTreeWalker(document.body, 4);"
                   "for (let node; (node = nodes.nextNode());) if (node.data.includes('%1'))"
                   "return [node, node.data.indexOf('%1')]; })()"_s.arg(text);
        };
        const QString &last = to.isEmpty() ? from : to;
        Run(u"{ const [a, i] = %1, [b, j] = %2;"
            "getSelection().setBaseAndExtent(a, i, b, j + %3); }"_s.arg(place(from), place(last))
                .arg(last.size()));
    }
    void SendKey(int key, const QString &text, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget *target = m_engine->focusProxy();
        QKeyEvent shortcut(QEvent::ShortcutOverride, key, modifiers, text);
        QApplication::sendEvent(target, &shortcut);
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QApplication::sendEvent(target, &event);
        }
    }
    void SendMouse(QEvent::Type type, QPointF point)
    {
        QWidget *target = m_engine->focusProxy();
        const bool isMove = type == QEvent::MouseMove;
        const auto button = isMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, point, target->mapToGlobal(point), button, button, {});
        QApplication::sendEvent(target, &event);
    }

    QTemporaryDir m_folder;
    QWidget m_window;
    QVBoxLayout m_layout{&m_window};
    QPointer<QWebEngineView> m_engine;
    DesignView *m_design = nullptr;
    int m_edits = 0;
    QStringList m_links;
};

struct Page
{
    const char *row;
    QString page;
    QString edited; // when one letter has been typed at "@"
};

class RoundTrip : public WebDesign, public testing::WithParamInterface<Page>
{
};

TEST_P(RoundTrip, PageComesBack)
{
    const QString &page = GetParam().page;
    ASSERT_TRUE(Load(page));
    QString crlf = page;
    crlf.replace(u"\r\n"_s, u"\n"_s).replace(u"\n"_s, u"\r\n"_s);
    EXPECT_EQ(Text(), crlf);
    m_design->SetShowBorders(true);
    m_design->SetShowDetails(true);
    EXPECT_FALSE(m_design->IsDirty());

    Select(u"@"_s);
    m_design->PasteHTML(u"X"_s);
    EXPECT_TRUE(m_design->IsDirty());
    QString edited = GetParam().edited;
    edited.replace(u"\r\n"_s, u"\n"_s).replace(u"\n"_s, u"\r\n"_s);
    EXPECT_EQ(Text(), edited);

    m_design->ExecCommand(Decmd::Undo);
    EXPECT_FALSE(m_design->IsDirty());
    EXPECT_EQ(Text(), crlf);
}

INSTANTIATE_TEST_SUITE_P(
    Pages,
    RoundTrip,
    testing::Values(
        Page{"wholePage",
             uR"(<?xml version="1.0"?>
<!-- before -->
<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN">
<html lang=en>
<head>
<title>A &amp; B</title>
<script>document.title = 'run'; if (1 < 2 && 3) document.write('<p>written');</script>
<noscript><img src=pixel></noscript>
<style>p > b { color: red }</style>
</head>
<!-- between -->
<body onload="document.title = 'run'">
<p>@ &copy; &nbsp; &lt; é 😀 <!-- in --> end</p>
</body>
<!-- after -->
</html>
<!-- behind --> <p>lost?
)"_s,
             uR"(<?xml version="1.0"?>
<!-- before -->
<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN">
<html lang="en">
<head>
<title>A &amp; B</title>
<script>document.title = 'run'; if (1 < 2 && 3) document.write('<p>written');</script>
<noscript><img src=pixel></noscript>
<style>p > b { color: red }</style>
</head>
<!-- between -->
<body onload="document.title = 'run'">
<p>X © &nbsp; &lt; é 😀 <!-- in --> end</p>
</body>
<!-- after -->
</html>
<!-- behind --> <p>lost?
)"_s},
        Page{"serverCode",
             u"<?php session_start(); ?>\n<!DOCTYPE html>\n<html><head><title><?= $t ?></title>"
             "</head><body class=\"<?= \"a\" ?>\"><p>@<?php echo '<b>'; ?></p>"
             "<table><? foreach ($r as $x) { ?><tr <% a %>><td><%= b %></td></tr><? } ?></table>"
             "<select><option <?php if (1) echo 'selected' ?>>1</option></select>"
             "<<?= $tag ?>>x</<?= $tag ?>></body></html>\n<?php close(); ?>"_s,
             u"<?php session_start(); ?>\n<!DOCTYPE html>\n<html><head><title><?= $t ?></title>"
             "</head><body class=\"<?= \"a\" ?>\"><p>X<?php echo '<b>'; ?></p>"
             "<table><? foreach ($r as $x) { ?><tbody><tr <% a %>><td><%= b %></td></tr><? } "
             "?></tbody></table>"
             "<select><option <?php if (1) echo 'selected' ?>>1</option></select>"
             "<<?= $tag ?>>x</<?= $tag ?>></body></html>\n<?php close(); ?>"_s},
        Page{
            "spelling",
            u"<HTML><BODY BGCOLOR=#ffffff><P ALIGN='left' nowrap>@<BR/>a<LI>b<IMG SRC=x.gif></BODY></HTML>"_s,
            u"<html><head></head><body bgcolor=\"#ffffff\"><p align=\"left\" nowrap=\"\">X<br>a</p><li>b<img src=\"x.gif\"></li></body></html>"_s},
        Page{"fragment", u"<p>@"_s, u"<html><head></head><body><p>X</p></body></html>"_s},
        Page{
            "linesInPre",
            u"<html><head></head><body><p>@</p><pre>\n\na\n</pre><textarea>\n\nb</textarea></body></html>"_s,
            u"<html><head></head><body><p>X</p><pre>\n\na\n</pre><textarea>\n\nb</textarea></body></html>"_s},
        Page{
            "relativeAddresses",
            u"<html><head><base href=\"sub/\"></head><body><p>@<a href=\"a.html#b\">c</a><img src=\"a b.png\"></p></body></html>"_s,
            u"<html><head><base href=\"sub/\"></head><body><p>X<a href=\"a.html#b\">c</a><img src=\"a b.png\"></p></body></html>"_s}),
    [](const auto &info) { return std::string(info.param.row); });

struct Command
{
    const char *row;
    QString body;
    QString from;
    QString to;
    int command;
    QString value;
    QString result;
};

class EditCommand : public WebDesign, public testing::WithParamInterface<Command>
{
};

TEST_P(EditCommand, ChangesThePageAndIsTakenBack)
{
    const Command &row = GetParam();
    ASSERT_TRUE(LoadBody(row.body));
    Select(row.from, row.to);
    if (row.command)
        m_design->ExecCommand(row.command, row.value);
    else
        m_design->PasteHTML(row.value);
    EXPECT_EQ(Body(), row.result);
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(m_design->QueryStatus(Decmd::Undo), Decmdf::Enabled);
        m_design->ExecCommand(Decmd::Undo);
        EXPECT_EQ(Body(), row.body);
        EXPECT_EQ(m_design->QueryStatus(Decmd::Undo), Decmdf::Disabled);
        m_design->ExecCommand(Decmd::Redo);
        EXPECT_EQ(Body(), row.result);
        EXPECT_EQ(m_design->QueryStatus(Decmd::Redo), Decmdf::Disabled);
    }
    EXPECT_TRUE(WaitFor([this] { return m_edits > 0; }));
}

constexpr int pasteHtml = 0;

INSTANTIATE_TEST_SUITE_P(
    Commands,
    EditCommand,
    testing::Values(
        // clang-format off
        Command{"bold", u"<p>a b c</p>"_s, u"b"_s, {}, Decmd::Bold, {}, u"<p>a <b>b</b> c</p>"_s},
        Command{"italic", u"<p>a b c</p>"_s, u"b"_s, {}, Decmd::Italic, {}, u"<p>a <i>b</i> c</p>"_s},
        Command{"underline", u"<p>a b c</p>"_s, u"b"_s, {}, Decmd::Underline, {}, u"<p>a <u>b</u> c</p>"_s},
        Command{"font", u"<p>a b c</p>"_s, u"b"_s, {}, Decmd::SetFontName, u"Arial"_s, u"<p>a <font face=\"Arial\">b</font> c</p>"_s},
        Command{"size", u"<p>a b c</p>"_s, u"b"_s, {}, Decmd::SetFontSize, u"5"_s, u"<p>a <font size=\"5\">b</font> c</p>"_s},
        Command{"colour", u"<p>a b c</p>"_s, u"b"_s, {}, Decmd::SetForeColor, u"#FF8000"_s, u"<p>a <font color=\"#ff8000\">b</font> c</p>"_s},
        Command{"removeFormat", u"<p>a <b><font size=\"5\">b</font></b> c</p>"_s, u"b"_s, {}, Decmd::RemoveFormat, {}, u"<p>a b c</p>"_s},
        Command{"centre", u"<p>a</p>"_s, u"a"_s, {}, Decmd::JustifyCenter, {}, u"<p style=\"text-align: center;\">a</p>"_s},
        Command{"indent", u"<p>a</p>"_s, u"a"_s, {}, Decmd::Indent, {}, u"<blockquote style=\"margin: 0 0 0 40px; border: none; padding: 0px;\"><p>a</p></blockquote>"_s},
        Command{"outdent", u"<blockquote><p>a</p></blockquote>"_s, u"a"_s, {}, Decmd::Outdent, {}, u"<p>a</p>"_s},
        Command{"delete", u"<p>abc</p>"_s, u"b"_s, {}, Decmd::Delete, {}, u"<p>ac</p>"_s},
        Command{"heading", u"<p>a</p><p>b</p>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Heading 2"_s, u"<h2>a</h2><p>b</p>"_s},
        Command{"formatted", u"<p>a</p>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Formatted"_s, u"<pre>a</pre>"_s},
        Command{"normal", u"<h1>a</h1>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Normal"_s, u"<p>a</p>"_s},
        Command{"bulleted", u"<p>a</p><p>b</p>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Bulleted List"_s, u"<ul><li>a</li></ul><p>b</p>"_s},
        Command{"bulletedSeveral", u"<p>a</p><p>b</p><p>c</p>"_s, u"a"_s, u"b"_s, Decmd::UnorderList, {}, u"<ul><li>a</li><li>b</li></ul><p>c</p>"_s},
        Command{"numberedFromHeading", u"<h1>a</h1>"_s, u"a"_s, {}, Decmd::OrderList, {}, u"<ol><li>a</li></ol>"_s},
        Command{"bulletedLineOfParagraph", u"<p>a<br>b<br>c</p>"_s, u"b"_s, {}, Decmd::UnorderList, {}, u"<p>a<br></p><ul><li>b</li></ul><p>c</p>"_s},
        Command{"directory", u"<p>a</p>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Directory List"_s, u"<dir><li>a</li></dir>"_s},
        Command{"otherList", u"<ul><li>a</li><li>b</li></ul>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Numbered List"_s, u"<ol><li>a</li><li>b</li></ol>"_s},
        Command{"noList", u"<ul><li>a</li><li>b</li></ul>"_s, u"a"_s, {}, Decmd::UnorderList, {}, u"<p>a</p><ul><li>b</li></ul>"_s},
        Command{"headingFromMenuList", u"<menu><li>a</li></menu>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Heading 1"_s, u"<h1>a</h1>"_s},
        Command{"definitionTerm", u"<p>a</p>"_s, u"a"_s, {}, Decmd::SetBlockFmt, u"Definition Term"_s, u"<dl><dt>a</dt></dl>"_s},
        Command{"definitionBehindTerm", u"<dl><dt>a</dt></dl><p>b</p>"_s, u"b"_s, {}, Decmd::SetBlockFmt, u"Definition"_s, u"<dl><dt>a</dt><dd>b</dd></dl>"_s},
        Command{"normalFromDefinition", u"<dl><dt>a</dt><dd>b</dd><dt>c</dt></dl>"_s, u"b"_s, {}, Decmd::SetBlockFmt, u"Normal"_s, u"<dl><dt>a</dt></dl><p>b</p><dl><dt>c</dt></dl>"_s},
        Command{"row", u"<table><tbody><tr id=\"r\"><td width=\"5\">a</td><th>b</th></tr></tbody></table>"_s, u"a"_s, {}, Decmd::InsertRow, {},
                u"<table><tbody><tr id=\"r\"><td width=\"5\">a</td><th>b</th></tr><tr><td width=\"5\"><br></td><th><br></th></tr></tbody></table>"_s},
        Command{"rowThroughSpan", u"<table><tbody><tr><td rowspan=\"2\">a</td><td>b</td></tr><tr><td>c</td></tr></tbody></table>"_s, u"b"_s, {}, Decmd::InsertRow, {},
                u"<table><tbody><tr><td rowspan=\"3\">a</td><td>b</td></tr><tr><td><br></td></tr><tr><td>c</td></tr></tbody></table>"_s},
        Command{"column", u"<table><tbody><tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td></tr></tbody></table>"_s, u"c"_s, {}, Decmd::InsertCol, {},
                u"<table><tbody><tr><td>a</td><td><br></td><td>b</td></tr><tr><td>c</td><td><br></td><td>d</td></tr></tbody></table>"_s},
        Command{"columnThroughSpan", u"<table><tbody><tr><td colspan=\"2\">a</td></tr><tr><td>c</td><td>d</td></tr></tbody></table>"_s, u"c"_s, {}, Decmd::InsertCol, {},
                u"<table><tbody><tr><td colspan=\"3\">a</td></tr><tr><td>c</td><td><br></td><td>d</td></tr></tbody></table>"_s},
        Command{"columnBesideTallCell", u"<table><tbody><tr><td rowspan=\"2\">a</td><td>b</td></tr><tr><td>c</td></tr></tbody></table>"_s, u"a"_s, {}, Decmd::InsertCol, {},
                u"<table><tbody><tr><td rowspan=\"2\">a</td><td rowspan=\"2\"><br></td><td>b</td></tr><tr><td>c</td></tr></tbody></table>"_s},
        Command{"pasteInline", u"<p>ab cd</p>"_s, u"b c"_s, {}, pasteHtml, u"<!-- x --><font color=\"red\">y&nbsp;</font><script>z()</script>"_s, u"<p>a<!-- x --><font color=\"red\">y&nbsp;</font><script>z()</script>d</p>"_s},
        Command{"pasteServerCode", u"<p>abc</p>"_s, u"b"_s, {}, pasteHtml, u"<b <?= x ?>><% y %></b>"_s, u"<p>a<b <?= x ?>><% y %></b>c</p>"_s},
        Command{"pasteBlock", u"<p class=\"k\">ab c</p>"_s, u"b"_s, {}, pasteHtml, u"<table border=\"1\"><tbody><tr><td>x</td></tr></tbody></table>"_s, u"<p class=\"k\">a</p><table border=\"1\"><tbody><tr><td>x</td></tr></tbody></table><p class=\"k\"> c</p>"_s},
        Command{"pasteBlockForAll", u"<div><p>a</p></div>"_s, u"a"_s, {}, pasteHtml, u"<h1>x</h1>"_s, u"<div><h1>x</h1></div>"_s},
        Command{"pasteOverBlocks", u"<p>ab</p><p>cd</p>"_s, u"b"_s, u"c"_s, pasteHtml, u"x"_s, u"<p>axd</p>"_s} // clang-format on
        ),
    [](const auto &info) { return std::string(info.param.row); });

TEST_F(WebDesign, StatusFollowsTheSelection)
{
    ASSERT_TRUE(LoadBody(u"<h2>one</h2><p><b>two</b> <font face=\"Courier New, Arial\" size=\"5\" "
                         "color=\"#0080ff\">three</font></p><ul><li>four</li></ul>"
                         "<table><tbody><tr><td>five</td></tr></tbody></table>"_s));
    struct Case
    {
        QString text;
        QString block;
        int bold;
        int list;
        int row;
        QString tag;
    };
    using namespace Decmdf;
    const Case cases[] = {
        {u"one"_s, u"Heading 2"_s, Latched, Enabled, Disabled, u"H2"_s},
        {u"two"_s, u"Normal"_s, Latched, Enabled, Disabled, u"B"_s},
        {u"three"_s, u"Normal"_s, Enabled, Enabled, Disabled, u"FONT"_s},
        {u"four"_s, u"Bulleted List"_s, Enabled, Latched, Disabled, u"LI"_s},
        {u"five"_s, u"Normal"_s, Enabled, Enabled, Enabled, u"TD"_s},
    };
    int displays = 0;
    m_design->DisplayChanged = [&] { ++displays; };
    for (const Case &row : cases) {
        displays = 0;
        Select(row.text);
        ASSERT_TRUE(WaitFor([&] { return displays > 0 && m_design->ActiveElement() == row.tag; }))
            << row.tag.toStdString();
        EXPECT_EQ(m_design->ExecCommand(Decmd::GetBlockFmt), row.block);
        EXPECT_EQ(m_design->QueryStatus(Decmd::Bold), row.bold) << row.tag.toStdString();
        EXPECT_EQ(m_design->QueryStatus(Decmd::UnorderList), row.list);
        EXPECT_EQ(m_design->QueryStatus(Decmd::InsertRow), row.row);
        if (row.tag == u"FONT"_s) {
            EXPECT_EQ(m_design->ExecCommand(Decmd::GetFontName), u"Courier New"_s);
            EXPECT_EQ(m_design->ExecCommand(Decmd::GetFontSize), u"5"_s);
            EXPECT_EQ(m_design->ExecCommand(Decmd::GetForeColor), u"#0080FF"_s);
        }
    }
    EXPECT_EQ(m_design->QueryStatus(4711), NotSupported);
    EXPECT_EQ(m_edits, 0);
}

TEST_F(WebDesign, KeysTypeAndAreTakenBackAsOneStep)
{
    ASSERT_TRUE(LoadBody(u"<p>a b</p>"_s));
    m_design->SetFocus();
    Select(u"a"_s);
    Run(u"getSelection().collapseToEnd()"_s);
    for (const QString &letter : {u"x"_s, u"y"_s, u"z"_s})
        SendKey(letter[0].toUpper().unicode(), letter);
    ASSERT_TRUE(WaitFor([&] { return Body() == u"<p>axyz b</p>"_s; })) << Body().toStdString();
    EXPECT_GT(m_edits, 0);
    SendKey(Qt::Key_Return, u"\r"_s);
    ASSERT_TRUE(WaitFor([&] { return Body() == u"<p>axyz</p><p>&nbsp;b</p>"_s; }))
        << Body().toStdString();
    SendKey(Qt::Key_Z, u"\x1A"_s, Qt::ControlModifier);
    EXPECT_EQ(Body(), u"<p>axyz b</p>"_s);
    SendKey(Qt::Key_Z, u"\x1A"_s, Qt::ControlModifier);
    EXPECT_EQ(Body(), u"<p>a b</p>"_s);
    EXPECT_FALSE(m_design->IsDirty());
}

TEST_F(WebDesign, FirstKeyGoesToTheBeginningOfThePage)
{
    QLineEdit edit;
    m_layout.addWidget(&edit);
    edit.setFocus();
    ASSERT_TRUE(WaitFor([&] { return edit.hasFocus(); }));
    ASSERT_TRUE(LoadBody(u"\n<!-- c -->\n<h1>a</h1><p>b</p>"_s));
    EXPECT_TRUE(WaitFor([&] { return Run(u"document.readyState"_s) == u"complete"_s; }));
    EXPECT_TRUE(edit.hasFocus());
    m_design->SetFocus();
    SendKey(Qt::Key_X, u"x"_s);
    EXPECT_TRUE(WaitFor([&] { return Body() == u"\r\n<!-- c -->\r\n<h1>xa</h1><p>b</p>"_s; }))
        << Body().toStdString();
}

TEST_F(WebDesign, ClipboardKeepsEveryCharacter)
{
    const QString body = u"<p>a <b>&nbsp;b\u2028 &nbsp;</b><!-- c --><% d %>e</p><p>-</p>"_s;
    ASSERT_TRUE(LoadBody(body));
    Select(u"a "_s, u"e"_s);
    m_design->ExecCommand(Decmd::Cut);
    const QString markup = u"a <b>&nbsp;b\u2028 &nbsp;</b><!-- c --><% d %>e"_s;
    EXPECT_EQ(QApplication::clipboard()->mimeData()->html(), markup);
    EXPECT_EQ(QApplication::clipboard()->text(), u"a \u00A0b\u2028 \u00A0e"_s);
    EXPECT_FALSE(Body().contains(u"<b>"_s));
    Select(u"-"_s);
    m_design->ExecCommand(Decmd::Paste);
    EXPECT_THAT(Body().toStdString(), HasSubstr("<p>" + markup.toStdString() + "</p>"));

    // from other programs
    struct Case
    {
        const char *row;
        QString html;
        QString text;
        QString body;
    };
    for (
        const Case &row : {
            Case{"text", {}, u"x\u00A0 y <&\nz"_s, u"<p>x&nbsp; y &lt;&amp;<br>z</p>"_s},
            Case{
                "markup",
                u"<html><head><style>p{}</style></head><body><!--StartFragment--><i onclick=a()>x</i><script>y</script><!--EndFragment--></body></html>"_s,
                u"x"_s,
                u"<p><i>x</i></p>"_s},
        }) {
        auto *data = new QMimeData;
        data->setText(row.text);
        if (!row.html.isEmpty())
            data->setHtml(row.html);
        QApplication::clipboard()->setMimeData(data);
        ASSERT_TRUE(LoadBody(u"<p>-</p>"_s));
        Select(u"-"_s);
        m_design->ExecCommand(Decmd::Paste);
        EXPECT_EQ(Body(), row.body) << row.row;
    }
}

TEST_F(WebDesign, FilesOfTheFolderAreShownAndNoOthers)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(u"site %41#/img"_s));
    const QByteArray sheet = "p { color: rgb(1, 2, 3) } b { color: rgb(4, 5, 6) }";
    Write(u"outside.css"_s, sheet);
    Write(u"site %41#/s.css"_s, "p { color: rgb(1, 2, 3) }");
    QImage(7, 5, QImage::Format_RGB32).save(m_folder.filePath(u"site %41#/img/a b.png"_s));
    ASSERT_TRUE(m_design->LoadDocument(
        Write(u"site %41#/page_.html_"_s,
              "<meta charset=windows-1250><title>\x9Atudy</title><link rel=stylesheet href=s.css>"
              "<link rel=stylesheet href='../outside.css'><p>x<b>y</b><img src='img/a b.png'>")));
    EXPECT_EQ(m_design->DocumentTitle(), u"študy"_s);
    EXPECT_TRUE(WaitFor([&] { return Run(u"document.images[0].naturalWidth"_s) == 7; }));
    EXPECT_TRUE(WaitFor([&] { return Run(u"document.readyState"_s) == u"complete"_s; }));
    const QString colour = u"getComputedStyle(document.querySelector('%1')).color"_s;
    EXPECT_EQ(Run(colour.arg(u"p"_s)), u"rgb(1, 2, 3)"_s);
    EXPECT_EQ(Run(colour.arg(u"b"_s)), u"rgb(1, 2, 3)"_s);
}

TEST_F(WebDesign, LargePageIsShownAndSavedInItsEncoding)
{
    const QByteArray page = "<html><head></head><body><p>@\x9A</p>"
        + ("<p>" + QByteArray("text ").repeated(60) + "</p>\n").repeated(12'000) + "</body></html>";
    ASSERT_TRUE(m_design->LoadDocument(Write(u"page_.html_"_s, page)));
    Select(u"@"_s);
    m_design->PasteHTML(u"\u4E00"_s);
    const QString copy = ClaimPreviewCopy(m_folder.filePath(u"page_.html"_s));
    ASSERT_TRUE(m_design->SaveDocument(copy));
    QFile file(copy);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray expected = page;
    EXPECT_EQ(file.readAll(), expected.replace("@", "&#19968;").replace("\n", "\r\n"));
}

TEST_F(WebDesign, FileThatCannotBeReadShowsNothing)
{
    ASSERT_TRUE(LoadBody(u"<p>old</p>"_s));
    EXPECT_FALSE(m_design->LoadDocument(m_folder.filePath(u"missing.html_"_s)));
    EXPECT_EQ(m_design->DocumentHTML(), std::nullopt);
    EXPECT_FALSE(m_design->IsDirty());
    EXPECT_TRUE(WaitFor([&] {
        return Run(u"document.documentElement.outerHTML"_s)
            == u"<html><head></head><body></body></html>"_s;
    }));
    EXPECT_TRUE(LoadBody(u"<p>new</p>"_s));
    EXPECT_EQ(Body(), u"<p>new</p>"_s);
}

TEST_F(WebDesign, LinksAreNamedButNotFollowed)
{
    Write(u"other.html"_s, "<p>other");
    ASSERT_TRUE(LoadBody(
        u"<meta http-equiv=refresh content='0;url=other.html'>"
        "<a style='position:fixed;left:0;top:0;font-size:60px' href='other.html#x'>link</a>"_s));
    const QUrl shown = m_engine->url();
    EXPECT_TRUE(WaitFor([&] {
        SendMouse(QEvent::MouseMove, {40, 30});
        return !m_links.isEmpty();
    }));
    EXPECT_EQ(m_links.value(0), u"file://%1/other.html#x"_s.arg(m_folder.path()));
    SendMouse(QEvent::MouseButtonPress, {40, 30});
    SendMouse(QEvent::MouseButtonRelease, {40, 30});
    EXPECT_TRUE(WaitFor([&] { return m_design->ActiveElement() == u"A"; }));
    SendMouse(QEvent::MouseMove, {300, 300});
    EXPECT_TRUE(WaitFor([&] { return m_links.size() == 2; }));
    EXPECT_EQ(m_links.last(), QString());
    EXPECT_EQ(m_engine->url(), shown);
    EXPECT_EQ(Run(u"document.querySelectorAll('a').length"_s).toInt(), 1);
}

TEST_F(WebDesign, MarksAreSeenAndNotPartOfThePage)
{
    const QString body = u"<table><tbody><tr><td>x</td></tr></tbody></table><p>a<!-- c --><br>b</p>"
                         "<table border=\"1\"><tbody><tr><td>y</td></tr></tbody></table>"_s;
    ASSERT_TRUE(LoadBody(body));
    const QString outlines = u"[...document.querySelectorAll('td')].map("
                             "cell => getComputedStyle(cell).outlineStyle).join()"_s;
    const QString marks = u"(getComputedStyle(document.documentElement, '::after').backgroundImage"
                          ".match(/url/g) || []).length"_s;
    for (const bool shown : {true, false, true}) {
        m_design->SetShowBorders(shown);
        m_design->SetShowDetails(shown);
        EXPECT_EQ(Run(outlines), shown ? u"dotted,none"_s : u"none,none"_s);
        EXPECT_EQ(Run(marks).toInt(), shown ? 2 : 0);
    }
    m_design->ExecCommand(Decmd::SelectAll);
    m_design->ExecCommand(Decmd::Bold);
    for (const QString &part : {u"outline"_s, u"after"_s, u"svg"_s, u"contenteditable"_s})
        EXPECT_FALSE(Text().contains(part)) << part.toStdString();
    ASSERT_TRUE(LoadBody(body));
    EXPECT_EQ(Run(marks).toInt(), 2) << "the next page is shown the same way";
}

TEST_F(WebDesign, ShortcutsOfTheProgramAreReached)
{
    ASSERT_TRUE(LoadBody(u"<p>a</p>"_s));
    m_design->SetFocus();
    ASSERT_TRUE(WaitFor([&] { return m_engine->focusProxy()->hasFocus(); }));
    const QKeySequence keys[] = {QKeySequence(u"Ctrl+S"_s),
                                 QKeySequence(u"Ctrl+B"_s),
                                 QKeySequence(u"Ctrl+C"_s),
                                 QKeySequence(u"Ctrl+Z"_s),
                                 QKeySequence(u"F5"_s),
                                 QKeySequence(u"F6"_s),
                                 QKeySequence(u"F9"_s)};
    for (const QKeySequence &sequence : keys) {
        const auto combination = sequence[0];
        QKeyEvent event(
            QEvent::ShortcutOverride, combination.key(), combination.keyboardModifiers());
        event.ignore();
        QApplication::sendEvent(m_engine->focusProxy(), &event);
        // one that is accepted goes to the page instead of the menus
        EXPECT_FALSE(event.isAccepted()) << sequence.toString().toStdString();
    }
}

TEST_F(WebDesign, DeadRendererLosesNothing)
{
    ASSERT_TRUE(LoadBody(u"<p>a</p>"_s));
    EditAndKeep();
    const auto pid = static_cast<pid_t>(m_engine->page()->renderProcessPid());
    ASSERT_EQ(kill(pid, SIGKILL), 0);
    ASSERT_TRUE(WaitFor([&] { return Body() == u"<p><% kept %></p>"_s; }));
    EXPECT_TRUE(m_design->IsDirty());
}

class SilentPage : public WebDesign
{
protected:
    void SetUp() override
    {
        WebDesign::SetUp();
        ASSERT_TRUE(LoadBody(u"<p>a</p>"_s));
        m_pid = static_cast<pid_t>(m_engine->page()->renderProcessPid());
        ASSERT_EQ(kill(m_pid, SIGSTOP), 0);
    }
    void TearDown() override { kill(m_pid, SIGCONT); }

    pid_t m_pid = 0;
};

TEST_F(SilentPage, IsWaitedForInVainButNotForEver)
{
    EXPECT_EQ(m_design->DocumentHTML(), std::nullopt);
    EXPECT_FALSE(m_design->IsDirty());
    EXPECT_EQ(m_design->ExecCommand(Decmd::Bold), QString());
    kill(m_pid, SIGCONT);
    EXPECT_TRUE(WaitFor([&] { return m_design->DocumentHTML().has_value(); }));
}

TEST_F(SilentPage, EditsAreNotLostWithIt)
{
    kill(m_pid, SIGCONT);
    EditAndKeep();
    kill(m_pid, SIGSTOP);
    EXPECT_THAT(Text().toStdString(), HasSubstr("<p><% kept %></p>"));
}

TEST_F(SilentPage, ViewMayGoMeanwhile)
{
    QTimer::singleShot(0, &m_window, [this] { delete m_engine; });
    EXPECT_EQ(m_design->DocumentHTML(), std::nullopt);
    EXPECT_TRUE(m_engine.isNull());
}

} // namespace
