#include "checks/Form30.h"
#include "checks/WebLinks.h"
#include "checks/frmCheckLinks.h"
#include "checks/frmGlobalSearch.h"
#include "checks/frmOverView.h"
#include "support/MessageBoxes.h"
#include "tests/support/MemoryDocument.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/WaitFor.h"
#include "tests/support/WithFolder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QTreeWidget>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class FolderWindows : public testing::Test, protected WithFolder
{
protected:
    template <typename Control> static Control &Find(const QWidget &window, const QString &name)
    {
        auto *control = window.findChild<Control *>(name);
        if (!control) {
            ADD_FAILURE() << "no control " << qPrintable(name);
            std::abort();
        }
        return *control;
    }
    static void Click(const QWidget &window, const QString &name)
    {
        Find<QAbstractButton>(window, name).click();
    }
    static QString Shown(const QWidget &window, const QString &name)
    {
        return Find<QLabel>(window, name).text();
    }
    void UsePage(const QString &text)
    {
        m_page.Caption = Write(u"page.html"_s, text.toUtf8());
        m_page.source.SetText(text);
    }

    MemoryDocument m_page;
    ScriptedBoxes m_boxes;
};

TEST_F(FolderWindows, GlobalReplace)
{
    const QByteArray rest(200, '-');
    const QString file = Write(u"a.html"_s, "one" + rest + "\ntwo");
    frmGlobalSearch window({});
    auto &find = Find<QLineEdit>(window, u"txtContaining"_s);
    const auto &start = Find<QAbstractButton>(window, u"cmdStart"_s);
    EXPECT_FALSE(start.isEnabled());
    find.setText(u"ONE"_s);
    EXPECT_TRUE(start.isEnabled());
    Find<QLineEdit>(window, u"txtREplace"_s).setText(u"1"_s);
    Scripted().chooseFolder = [this](const QString &) { return folder.path(); };
    Click(window, u"Image1"_s);
    EXPECT_EQ(Find<QLineEdit>(window, u"txtFolder"_s).text(), folder.path());
    Find<QComboBox>(window, u"Combo1"_s).setCurrentText(u"*.html"_s);

    // What happens while the message is shown.
    bool wasEnabled = true;
    Scripted().msgBox = [&](const QString &text, Buttons, Icon icon) {
        EXPECT_EQ(text, u"ONE replaced in 2 files "_s);
        EXPECT_EQ(icon, Icon::Information);
        wasEnabled = start.isEnabled();
        return Answer::Ok;
    };
    Click(window, u"cmdStart"_s);
    EXPECT_FALSE(wasEnabled);
    EXPECT_TRUE(start.isEnabled());
    EXPECT_EQ(Read(file), "1" + rest + "\r\ntwo\r\n");
    const auto &report = Find<QListWidget>(window, u"List1"_s);
    EXPECT_EQ(report.item(report.count() - 1)->text(), u"Text in 2 files"_s);
    EXPECT_TRUE(report.isHidden());
    Click(window, u"Image3"_s);
    EXPECT_FALSE(report.isHidden());
    window.show();
    QCoreApplication::processEvents();
    const int shown = report.viewport()->width() + report.horizontalScrollBar()->maximum();
    EXPECT_GT(shown, report.fontMetrics().horizontalAdvance(report.item(2)->text()));
    Click(window, u"Image4"_s);
    EXPECT_TRUE(report.isHidden());
    find.clear();
    EXPECT_FALSE(start.isEnabled());
}

/// Answers with the number that the path tells, "/200" or, for the short question, "/get405".
class LocalServer : public QTcpServer
{
public:
    LocalServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                ++questions;
                Answer(socket);
            });
        });
    }
    QString Address(const QString &path) const
    {
        return u"http://127.0.0.1:%1%2"_s.arg(serverPort()).arg(path);
    }
    int questions = 0;

private:
    static void Answer(QTcpSocket *socket)
    {
        const QList<QByteArray> words = socket->readAll().split(' ');
        const bool refuses = words[0] == "HEAD" && words[1].startsWith("/get");
        socket->write("HTTP/1.1 " + (refuses ? "405" : words[1].right(3))
                      + " X\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        socket->disconnectFromHost();
    }
};

TEST_F(FolderWindows, CheckLinks)
{
    LocalServer server;
    QString text;
    for (const QString &link : {u"page.html"_s,
                                u"none.html"_s,
                                server.Address(u"/200"_s),
                                server.Address(u"/404"_s),
                                server.Address(u"/get200"_s),
                                u"http://["_s,
                                u"#top"_s})
        text += u"<a href=\""_s + link + u"\">"_s;
    UsePage(text);
    frmCheckLinks window(m_page, nullptr, [] { return std::make_unique<WebLinks>(); });
    window.show();
    const auto &list = Find<QTreeWidget>(window, u"LI"_s);
    const auto statuses = [&list] {
        QStringList all;
        for (int i = 0; i < list.topLevelItemCount(); ++i)
            all += list.topLevelItem(i)->text(0);
        return all;
    };
    ASSERT_TRUE(WaitFor([&] { return list.topLevelItemCount() == 7; }));
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_EQ(statuses().join(u' '), u"OK! Broken URL URL URL URL Inside"_s);
    EXPECT_FALSE(list.topLevelItem(0)->font(1).bold());
    EXPECT_TRUE(list.topLevelItem(1)->font(1).bold());
    EXPECT_EQ(list.topLevelItem(1)->foreground(1).color(), QColor(Qt::red));
    EXPECT_EQ(server.questions, 0);

    Click(window, u"Command2"_s);
    ASSERT_TRUE(WaitFor([&] { return !statuses().contains(u"URL"_s); }));
    EXPECT_EQ(statuses().join(u' '), u"OK! Broken OK! Broken OK! Broken Inside"_s);
    EXPECT_EQ(server.questions, 5);
}

TEST_F(FolderWindows, ClosingEndsTheWalk)
{
    constexpr int links = 300'000;
    UsePage(u"href=\"#\" "_s.repeated(links));
    frmCheckLinks window(m_page);
    window.show();
    const auto &list = Find<QTreeWidget>(window, u"LI"_s);
    // Comes inside the walk, since that lets the events run.
    QTimer closer;
    closer.callOnTimeout(&window, [&] {
        if (list.topLevelItemCount() > 0)
            window.close();
    });
    closer.start(0);
    ASSERT_TRUE(WaitFor([&] { return window.isHidden(); }));
    EXPECT_LT(list.topLevelItemCount(), links);
}

TEST_F(FolderWindows, Estimate)
{
    Write(u"a.gif"_s, QByteArray(864000, 'x'));
    UsePage(u"<img src=\"a.gif\">"_s);
    Form30 window(m_page);
    window.show();
    const auto &files = Find<QListWidget>(window, u"List1"_s);
    ASSERT_TRUE(WaitFor([&] { return files.count() == 6; }));
    EXPECT_EQ(Shown(window, u"Label31"_s), u"0 kb"_s);
    EXPECT_EQ(Shown(window, u"Label32"_s), u"1"_s);
    EXPECT_EQ(Shown(window, u"TotalFil1"_s), u"864000"_s);
    EXPECT_EQ(Shown(window, u"Label39"_s), u"1 min."_s);
    EXPECT_EQ(Shown(window, u"Label37"_s), u"15 sec."_s);
    EXPECT_EQ(Shown(window, u"Label38"_s), u"13 sec."_s);
    EXPECT_EQ(Find<QLabel>(window, u"Label38"_s).toolTip(), u"13.5 sec."_s);
    Find<QComboBox>(window, u"Combo1"_s).setCurrentText(u"28.8 k"_s);
    EXPECT_EQ(Shown(window, u"Label39"_s), u"30 sec."_s);
    const auto &progress = Find<QProgressBar>(window, u"ProgressBar1"_s);
    EXPECT_EQ(progress.value(), progress.maximum());
}

TEST_F(FolderWindows, Overview)
{
    UsePage(u"<p>"_s);
    m_page.browser.elements = {{u"HTML"_s, -1, {}}, {u"BODY"_s, 0, {}}, {u"P"_s, 1, {}}};
    const frmOverView window(m_page, nullptr, [this](QWidget *) { return &m_page.browser; });
    EXPECT_EQ(m_page.log, QStringList{u"navigate file://"_s + m_page.Caption()});
    auto &tree = Find<QTreeWidget>(window, u"tvwView"_s);
    const auto &status = Find<QStatusBar>(window, u"statBar"_s);
    EXPECT_EQ(tree.topLevelItemCount(), 0);
    m_page.browser.NavigateComplete({});
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    QTreeWidgetItem *paragraph = tree.topLevelItem(0)->child(0)->child(0);
    EXPECT_EQ(paragraph->text(0), u"P"_s);
    tree.setCurrentItem(paragraph);
    EXPECT_EQ(status.currentMessage(), u"<p>"_s);

    // A page that goes: nothing to show, and nothing to be clicked.
    m_page.browser.elements.clear();
    m_page.browser.NavigateComplete({});
    EXPECT_EQ(tree.topLevelItemCount(), 0);
    EXPECT_EQ(status.currentMessage(), QString());
}

/// As the web view has, its widget has no size of its own.
struct ShownBrowser : MemoryBrowser
{
    using MemoryBrowser::MemoryBrowser;
    QWidget *Widget() override { return widget; }
    QWidget *widget = nullptr;
};

TEST_F(FolderWindows, OverviewGivesThePageMostOfTheRoom)
{
    UsePage(u"<p>"_s);
    ShownBrowser browser(m_page.log);
    frmOverView window(m_page, nullptr, [&browser](QWidget *parent) {
        browser.widget = new QWidget(parent);
        return &browser;
    });
    window.show();
    QCoreApplication::processEvents();
    EXPECT_GT(browser.widget->width(), Find<QTreeWidget>(window, u"tvwView"_s).width());
}

TEST_F(FolderWindows, OverviewNeedsAFile)
{
    m_page.Caption = folder.filePath(u"Document1.html"_s);
    const frmOverView unsaved(m_page, nullptr, [this](QWidget *) { return &m_page.browser; });
    EXPECT_EQ(m_page.log, QStringList());
    const frmOverView withoutEngine(m_page, nullptr, [](QWidget *) { return nullptr; });
    EXPECT_NE(withoutEngine.findChild<QLabel *>(), nullptr);
}

} // namespace
