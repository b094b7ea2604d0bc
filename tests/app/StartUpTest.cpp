#include "app/LanguageFile.h"
#include "app/RecentFiles.h"
#include "app/StandardPages.h"
#include "app/frmTip.h"
#include "editor/LargeFile.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "support/UntitledPages.h"
#include "tests/app/MainWindowFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QToolBar>

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAreArray;

namespace {

class StartUp : public MainWindowFixture
{
};

// Keeps every text of the splash that was drawn.
class SplashReader : public QObject
{
public:
    SplashReader() { qApp->installEventFilter(this); }
    QStringList texts;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *splash = qobject_cast<QWidget *>(object);
        if (event->type() != QEvent::UpdateRequest || !splash
            || splash->objectName() != u"frmSplash")
            return false;
        const QString text = splash->findChild<QLabel *>(u"Label1"_s)->text();
        if (!text.isEmpty() && (texts.isEmpty() || texts.last() != text))
            texts.append(text);
        return false;
    }
};

TEST_F(StartUp, StepsInTheirOrder)
{
    const QString page = Write(u"page.html"_s, "text");
    struct Case
    {
        const char *row;
        QString tempDir;
        QStringList arguments;
    };
    const Case cases[] = {{"plain", {}, {}},
                          {"own directory for unsaved pages", folder.path(), {}},
                          {"a file", {}, {page}}};
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        Set(u"Settings/TemporaryDirectory", row.tempDir);
        SplashReader splash;
        Start(row.arguments);

        QStringList expected{u"Reading Language..."_s,
                             u"Reading version..."_s,
                             u"Building toolbars..."_s,
                             u"Checking directories..."_s,
                             u"Finding temporary directory..."_s};
        if (!row.tempDir.isEmpty())
            expected += u"Setting temporary directory to "_s + row.tempDir;
        expected += {u"Loading recentfiles list..."_s,
                     u"Getting Templates information..."_s,
                     u"Loading browserlist..."_s,
                     u"Loading and sorting fonts..."_s,
                     u"Preparing user interface..."_s,
                     u"Loading taglist..."_s,
                     u"Loading TidyTools presets..."_s,
                     u"Loading styles..."_s,
                     u"Finished!"_s};
        expected += row.arguments.isEmpty() ? u"Loading startup files..."_s
                                            : u"Loading "_s + page + u"..."_s;
        expected += u"Loading tips..."_s;
        EXPECT_THAT(splash.texts, ElementsAreArray(expected));
        Stop();
    }
}

TEST_F(StartUp, StoresAndFills)
{
    QCoreApplication::setApplicationVersion(u"2.1.30"_s);
    Start();
    QCoreApplication::setApplicationVersion({});
    const std::pair<QString, QString> stored[] = {{u"Settings/Version Major"_s, u"2"_s},
                                                  {u"Settings/Version Minor"_s, u"1"_s},
                                                  {u"Settings/Version Build"_s, u"30"_s},
                                                  {u"Settings/Version"_s, u"2.1.30"_s},
                                                  {u"Settings/Dir"_s, AppDirectory()},
                                                  {u"Settings/TemporaryDirectory"_s, {}},
                                                  {u"Settings/LargeFile"_s, u"20000"_s}};
    for (const auto &[key, value] : stored)
        EXPECT_EQ(Get(key), value) << key.toStdString();
    EXPECT_EQ(TempDir(), AppPath(u"Temp"));
    for (const QString &name : {u"Macro"_s, u"Templates"_s, u"Temp"_s})
        EXPECT_TRUE(QDir(AppPath(name)).exists()) << name.toStdString();

    struct Box
    {
        QString name;
        int count;
        QString first;
        QString last;
    };
    EXPECT_EQ(window->Dialect(), u"All HTML"_s);
    const Box boxesExpected[] = {{u"Combo1"_s, 9, u"Fit Screen"_s, u"1280x1024"_s}};
    for (const Box &expected : boxesExpected) {
        const auto &box = Find<QComboBox>(expected.name);
        EXPECT_EQ(box.count(), expected.count) << expected.name.toStdString();
        EXPECT_EQ(box.currentText(), expected.first);
        EXPECT_EQ(box.itemText(box.count() - 1), expected.last);
    }
}

TEST_F(StartUp, LargeFileIsReadOrStored)
{
    const std::tuple<QString, int, QString> cases[]
        = {{u""_s, 20000, u"20000"_s}, {u"500"_s, 500, u"500"_s}, {u"-7"_s, 20000, u"-7"_s}};
    for (const auto &[setting, limit, stored] : cases) {
        Set(u"Settings/LargeFile", setting);
        Start();
        EXPECT_EQ(LargeFile(), limit);
        EXPECT_EQ(Get(u"Settings/LargeFile"), stored);
        Stop();
    }
    SetLargeFile(20000);
}

TEST_F(StartUp, FirstStartMarker)
{
    struct Case
    {
        QString before;
        QStringList arguments;
        QString after;
    };
    const Case cases[] = {{u"x"_s, {}, u"x"_s},
                          {u"x"_s, {u"-StartFirst"_s}, u"Hei"_s},
                          {u"Hei"_s, {u"-StartFirst"_s}, u"Hei"_s}};
    Set(u"Settings/Startup", u"5");
    for (const Case &row : cases) {
        Set(u"Settings/Coolbar1", row.before);
        Start(row.arguments);
        EXPECT_EQ(Get(u"Settings/Coolbar1"), row.after);
        EXPECT_EQ(Captions(), QStringList(UntitledCaption(1))) << "the switch is no file";
        Stop();
    }
}

TEST_F(StartUp, Choices)
{
    const QString page = Write(u"page.html"_s, "text");
    const QString untitled = QDir::cleanPath(AppPath(u"Temp/Document1.html"));
    struct Case
    {
        const char *row;
        QString startup;
        QString recent;
        QString chosen;
        QStringList captions;
        QString text;
        int caret = 0;
    };
    const QDate today = QDate::currentDate();
    const Case cases[] = {
        {"dialog", u"1"_s, {}, page, {page}, u"text"_s},
        {"dialog cancelled", u"1"_s, {}, {}, {}, {}},
        {"last edited", u"2"_s, page, {}, {page}, u"text"_s},
        {"last edited, none yet", u"2"_s, {}, {}, {untitled}, {}},
        {"HTML", u"3"_s, {}, {}, {untitled}, HtmlPage(today), 192},
        {"simple", u"4"_s, {}, {}, {untitled}, SimpleHtmlPage(today), 83},
        {"blank", u"5"_s, {}, {}, {untitled}, {}},
        {"nothing", u"6"_s, {}, {}, {}, {}},
        {"beyond", u"7"_s, {}, {}, {}, {}},
        {"a text", u"three"_s, {}, {}, {}, {}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        Set(u"Settings/Startup", row.startup);
        Set(u"Recent/Recent1", row.recent);
        boxes.file = row.chosen;
        Start();
        EXPECT_THAT(Captions(), ElementsAreArray(row.captions));
        EXPECT_EQ(boxes.dialogs.size(), row.startup == u"1"_s ? 1 : 0);
        EXPECT_THAT(boxes.asked, testing::IsEmpty());
        if (!row.captions.isEmpty()) {
            EXPECT_EQ(Active().Source().Text(), row.text);
            EXPECT_EQ(Active().Source().SelStart(), row.caret);
            EXPECT_EQ(Active().Modyfied(), u"0"_s);
            EXPECT_EQ(Active().Status(), u"Split"_s);
        }
        Stop();
        boxes.dialogs.clear();
    }
}

TEST_F(StartUp, OpenDialogStandsOverTheMainWindow)
{
    Set(u"Settings/Startup", u"1");
    bool wasVisible = false;
    Scripted().openFileName = [&](const FileDialog &) {
        wasVisible = window->isVisible();
        return QString();
    };
    Start();
    EXPECT_TRUE(wasVisible);
}

TEST_F(StartUp, CommandLineOpensAFile)
{
    const QString page = Write(u"my page.html"_s, "text");
    struct Case
    {
        const char *row;
        QStringList arguments;
        QString caption;
        qsizetype messages;
    };
    const Case cases[] = {
        {"with a blank", {page}, page, 0},
        {"in quotes", {u'"' + page + u'"'}, page, 0},
        {"in two arguments", page.split(u' '), page, 0},
        {"missing", {u"/nowhere/x.html"_s}, u"/nowhere/x.html"_s, 1},
        {"a directory", {folder.path()}, folder.path(), 1},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        Start(row.arguments);
        EXPECT_THAT(Captions(), testing::ElementsAre(row.caption));
        EXPECT_EQ(Active().Source().Text(), row.messages ? QString() : u"text"_s);
        EXPECT_EQ(boxes.asked.size(), row.messages);
        EXPECT_EQ(RecentFile(1), row.caption);
        EXPECT_EQ(window->windowTitle(), u"Brenix - ["_s + row.caption + u"[*]]"_s);
        EXPECT_EQ(Active().Modyfied(), u"0"_s);
        Stop();
        boxes.asked.clear();
    }
}

TEST_F(StartUp, WindowComesBack)
{
    const auto twips = [](int pixels) { return QString::number(pixels * 15); };
    const int title = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
    struct Case
    {
        const char *row;
        QStringList place; // left, top, width, height
        QRect expected; // on a screen of 800x800
    };
    const Case cases[] = {
        {"as stored", {twips(100), twips(50), twips(400), twips(500)}, {100, 50, 400, 500}},
        {"nothing stored", {u""_s, u""_s, u""_s, u""_s}, {0, title, 800, 650}},
        {"texts where numbers belong", {u"a"_s, u"b"_s, u"1e"_s, u"-"_s}, {0, title, 800, 650}},
        {"off the right", {twips(3000), twips(2000), twips(400), twips(500)}, {400, 300, 400, 500}},
        {"off the left", {twips(-1000), twips(-9), twips(400), twips(500)}, {0, title, 400, 500}},
        {"too large", {u"0"_s, u"0"_s, twips(5000), u"2147483647"_s}, {0, title, 800, 800 - title}},
        {"too small", {u"0"_s, u"0"_s, u"0"_s, u"-2147483648"_s}, {0, title, 340, 300}},
    };
    ASSERT_EQ(QGuiApplication::primaryScreen()->availableGeometry(), QRect(0, 0, 800, 800));
    Set(u"Settings/WindowState", u"0");
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        const QString keys[] = {u"MainLeft"_s, u"MainTop"_s, u"MainWidth"_s, u"MainHeight"_s};
        for (int i = 0; i < 4; ++i)
            Set(u"Settings/"_s + keys[i], row.place[i]);
        Start();
        // The platform of the tests keeps a frame of two pixels on the screen.
        EXPECT_EQ(window->pos() + QPoint(2, 2),
                  QPoint(qMax(2, row.expected.left()), qMax(2, row.expected.top())));
        EXPECT_EQ(window->size(), row.expected.size().expandedTo(window->minimumSizeHint()));
        Stop();
    }
}

// Captions of the language file, by line; what it lacks stays as it is.
TEST_F(StartUp, DamagedFilesLeaveAWindow)
{
    QByteArray lines;
    for (int line = 1; line <= 87; ++line)
        lines += "Line " + QByteArray::number(line) + "\n";
    struct Case
    {
        const char *row;
        QByteArray language;
        QByteArray icon;
        QString first;
        QString last;
    };
    const Case cases[] = {
        {"one line", "Datei\n", {}, u"Datei"_s, u"&About "_s},
        {"a line short", lines, "not an icon", u"Line 1"_s, u"&About "_s},
        {"many lines", lines.repeated(115), "\0\0\1\0\xFF\xFF", u"Line 1"_s, u"Line 1"_s},
        {"blank lines", "\n \n", {}, u"&File"_s, u"&About "_s},
        {"no line end", QByteArray(1 << 20, 'x'), {}, QString(200, u'x'), u"&About "_s},
        {"binary", QByteArray("\0\xFF\1\"\n", 5).repeated(999), {}, u"&File"_s, u"&About "_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        ASSERT_EQ(WriteAuthorFile(AppPath(u"language.lng"), row.language), QString());
        QDir().mkpath(AppPath(u"Skins/Torn"));
        ASSERT_EQ(WriteAuthorFile(AppPath(u"Skins/Torn/New.ico"), row.icon), QString());
        Set(u"Settings/Skin", u"Torn");
        Start();
        EXPECT_FALSE(window->grab().isNull());
        EXPECT_EQ(Find<QMenu>(u"mnuFile"_s).title(), row.first);
        EXPECT_EQ(Find<QAction>(u"mnuHelpAbout"_s).text(), row.last);
        Stop();
    }
}

TEST_F(StartUp, ShippedLanguageFilesNameEveryPlace)
{
    const auto fields = [](const QString &name) {
        QFile file(QCoreApplication::applicationDirPath() + u"/../"_s + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        QList<std::pair<QString, QString>> captions;
        ReadLanguage(QString::fromUtf8(file.readAll()),
                     [&captions](const QString &menu, const QString &caption) {
                         captions.append({menu, caption});
                     });
        EXPECT_EQ(captions.size(), 88) << name.toStdString();
        return captions;
    };
    Start();
    const auto caption = [this](const QString &name) {
        const auto *menu = window->findChild<QMenu *>(name);
        return menu ? menu->title() : Find<QAction>(name).text();
    };
    for (const auto &[name, english] : fields(u"language.lng"_s))
        EXPECT_EQ(english, caption(name)) << "what the window says by itself";
    int translated = 0;
    for (const auto &[name, german] : fields(u"Languages/german.lng"_s)) {
        EXPECT_FALSE(german.trimmed().isEmpty()) << name.toStdString();
        translated += german != caption(name);
    }
    EXPECT_GT(translated, 70);
}

TEST_F(StartUp, LanguageFileNamesTheButtonsToo)
{
    ASSERT_EQ(WriteAuthorFile(AppPath(u"language.lng"), "&Datei\n&Neu\n&Oeffnen...\n"), QString());
    Start();
    for (const QString &bar : {u"Toolbar1"_s, u"NoWindows"_s}) {
        const QList<QAction *> buttons = Find<QToolBar>(bar).actions();
        EXPECT_EQ(buttons[0]->toolTip(), u"Neu"_s);
        EXPECT_EQ(buttons[1]->toolTip(), u"Oeffnen"_s);
    }
    EXPECT_EQ(Find<QToolBar>(u"Toolbar1"_s).actions()[2]->toolTip(), u"Save"_s);
}

TEST_F(StartUp, FirstWindowIsMaximisedWithItsToolbox)
{
    Start();
    EXPECT_TRUE(window->isMaximized());
    EXPECT_EQ(window->normalGeometry(), QRect(66, 66, 433, 433));
    EXPECT_TRUE(Find<QWidget>(u"Toolbox"_s).isVisible());
    EXPECT_TRUE(Find<QAction>(u"mnuToolboxs"_s).isChecked());
    EXPECT_FALSE(Find<QWidget>(u"Picture4"_s).isVisible()) << "no tabs at first";
}

TEST_F(StartUp, WindowIsStoredAtTheEnd)
{
    Set(u"Settings/WindowState", u"0");
    Start();
    window->LoadNewDoc();
    window->setGeometry(120, 80, 500, 500);
    Trigger(u"mnuToolboxs"_s);
    Stop();
    const auto check = [](const QString &state) {
        EXPECT_EQ(Get(u"Settings/MainLeft"), u"1800"_s);
        EXPECT_EQ(Get(u"Settings/MainTop"), u"1200"_s);
        EXPECT_EQ(Get(u"Settings/MainWidth"), u"7500"_s);
        EXPECT_EQ(Get(u"Settings/MainHeight"), u"7500"_s);
        EXPECT_EQ(Get(u"Settings/WindowState"), state);
        EXPECT_EQ(Get(u"Settings/ToolBoxView"), u"False"_s);
    };
    check(u"0"_s);
    Start();
    EXPECT_FALSE(Find<QWidget>(u"Toolbox"_s).isVisible());
    window->showMaximized();
    Settle();
    Stop();
    check(u"2"_s);
    Start();
    window->setGeometry(10, 10, 700, 700);
    window->showMinimized();
    Settle();
    Stop();
    check(u"2"_s);
}

TEST_F(StartUp, ToolboxKeepsItsWidth)
{
    Set(u"Settings/WindowState", u"0");
    Set(u"Settings/MainWidth", QString::number(700 * 15));
    Set(u"Settings/ToolBoxWidth", QString::number(250 * 15));
    for (int run = 0; run < 3; ++run) {
        Start();
        EXPECT_NEAR(Find<QWidget>(u"Toolbox"_s).width(), 250, 2);
        Stop();
        EXPECT_NEAR(Get(u"Settings/ToolBoxWidth").toInt(), 250 * 15, 30);
    }
}

TEST_F(StartUp, TipStandsOverTheMainWindow)
{
    Set(u"Options/Show Tips at Startup", u"1");
    QDialog *tip = nullptr;
    bool wasVisible = false;
    QTimer watch;
    watch.callOnTimeout([&] {
        tip = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!tip)
            return;
        wasVisible = window && window->isVisible();
        watch.stop();
        tip->accept();
    });
    watch.start(1);
    Start();
    EXPECT_TRUE(WaitFor([&] { return tip != nullptr; }));
    EXPECT_TRUE(wasVisible);
}

TEST_F(StartUp, TipsFollowOneAnother)
{
    const auto shown
        = [](const frmTip &tip) { return tip.findChild<QLabel *>(u"Label1"_s)->text(); };
    EXPECT_EQ(shown(frmTip()), u"The tip file is missing."_s);
    QFile file(AppPath(u"TIPS.TXT"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("first\r\n\r\nsecond\nthird");
    file.close();
    const std::pair<QString, QString> cases[] = {{u"1"_s, u"first"_s},
                                                 {u"3"_s, u"third"_s},
                                                 {u"4"_s, u"first"_s},
                                                 {u"0"_s, u"first"_s},
                                                 {u"-5"_s, u"first"_s},
                                                 {u"x"_s, u"first"_s}};
    for (const auto &[stored, text] : cases) {
        Set(u"Options/Tip", stored);
        EXPECT_EQ(shown(frmTip()), text) << stored.toStdString();
    }
    EXPECT_EQ(Get(u"Options/Tip"), u"2"_s);
    frmTip tip;
    EXPECT_EQ(shown(tip), u"second"_s);
    tip.findChild<QPushButton *>(u"Command2"_s)->click();
    EXPECT_EQ(shown(tip), u"third"_s);
}

} // namespace
