#include "app/frmOptions.h"

#include "app/frmDrive.h"
#include "editor/LargeFile.h"
#include "support/AuthorFile.h"
#include "support/ColourButton.h"
#include "support/Help.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"
#include "tests/support/FreshHome.h"
#include "tests/support/ScriptedBoxes.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QTreeWidget>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class frmOptionsTest : public testing::Test
{
protected:
    ~frmOptionsTest() override { SetLargeFile(m_largeFile); }

    const FreshHome m_home;
    ScriptedBoxes m_boxes;
    const int m_largeFile = LargeFile();
};

void ShowPage(frmOptions &dialog, const QString &caption)
{
    auto *tree = dialog.findChild<QTreeWidget *>(u"TreeView"_s);
    tree->setCurrentItem(tree->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive).value(0));
}

template <typename Control> Control &Find(const QWidget &dialog, const QString &name)
{
    auto *control = dialog.findChild<Control *>(name);
    if (!control) {
        ADD_FAILURE() << "no control " << qPrintable(name);
        std::abort();
    }
    return *control;
}

void Click(const QWidget &dialog, const QString &name)
{
    Find<QAbstractButton>(dialog, name).click();
}

/// As a user would set it: a button is pressed, anything else takes the text.
void Set(const QWidget &dialog, const QString &name, const QString &text)
{
    auto &control = Find<QWidget>(dialog, name);
    if (auto *colour = qobject_cast<ColourButton *>(&control)) {
        Scripted().chooseColour = [&text](quint32) { return std::optional(text.toUInt()); };
        colour->click();
    } else if (auto *button = qobject_cast<QAbstractButton *>(&control)) {
        button->click();
    } else if (auto *number = qobject_cast<QSpinBox *>(&control)) {
        number->setValue(text.toInt());
    } else if (auto *list = qobject_cast<QListWidget *>(&control)) {
        list->setCurrentItem(list->findItems(text, Qt::MatchExactly).value(0));
    } else {
        Find<QLineEdit>(dialog, name).setText(text);
    }
}

QString Words(const QWidget &dialog)
{
    return Find<QPlainTextEdit>(dialog, u"Words"_s).toPlainText();
}

struct Control
{
    QString name;
    QString section;
    QString key;
    QString value;
};

// clang-format off
const QList<Control> Controls{
    {u"Option1"_s,   u"Settings"_s, u"Startup"_s,           u"1"_s},
    {u"Option2"_s,   u"Settings"_s, u"Startup"_s,           u"2"_s},
    {u"Option4"_s,   u"Settings"_s, u"Startup"_s,           u"4"_s},
    {u"Option5"_s,   u"Settings"_s, u"Startup"_s,           u"5"_s},
    {u"Option6"_s,   u"Settings"_s, u"Startup"_s,           u"6"_s},
    {u"Color1"_s,    u"Colors"_s,   u"Background"_s,        u"1"_s},
    {u"Color2"_s,    u"Colors"_s,   u"Tag"_s,               u"2"_s},
    {u"Color3"_s,    u"Colors"_s,   u"Comment"_s,           u"3"_s},
    {u"Color4"_s,    u"Colors"_s,   u"Table"_s,             u"4"_s},
    {u"Color5"_s,    u"Colors"_s,   u"Special"_s,           u"5"_s},
    {u"List2"_s,     u"Editor"_s,   u"Fontsize"_s,          u"17"_s},
    {u"Option8"_s,   u"Language"_s, u"Syntax"_s,            u"2"_s},
    {u"Option9"_s,   u"Language"_s, u"Syntax"_s,            u"3"_s},
    {u"Option10"_s,  u"Language"_s, u"Syntax"_s,            u"4"_s},
    {u"Check1"_s,    u"Language"_s, u"GiveCorrectCase"_s,   u"0"_s},
    {u"LargeFile"_s, u"Settings"_s, u"LargeFile"_s,         u"300000"_s},
    {u"Check3"_s,    u"Auto"_s,     u"Refresh"_s,           u"0"_s},
    {u"Text1"_s,     u"Auto"_s,     u"RefreshNumber"_s,     u"12"_s},
    {u"Text13"_s,    u"Settings"_s, u"LocalHost"_s,         u"http://x/"_s},
    {u"Text4"_s,     u"Browser1"_s, u"Name"_s,              u"A"_s},
    {u"Text5"_s,     u"Browser1"_s, u"Path"_s,              u"/a"_s},
    {u"Text6"_s,     u"Browser2"_s, u"Name"_s,              u""_s},
    {u"Text7"_s,     u"Browser2"_s, u"Path"_s,              u"/b"_s},
    {u"Text8"_s,     u"Browser3"_s, u"Name"_s,              u"C"_s},
    {u"Text9"_s,     u"Browser3"_s, u"Path"_s,              u"/c"_s},
    {u"Text10"_s,    u"Browser4"_s, u"Name"_s,              u"D"_s},
    {u"Text11"_s,    u"Browser4"_s, u"Path"_s,              u"/d"_s},
    {u"Option17"_s,  u"Settings"_s, u"Color"_s,             u"2"_s},
    {u"Option18"_s,  u"Settings"_s, u"Color"_s,             u"3"_s},
    {u"Check4"_s,    u"Auto"_s,     u"Closetag"_s,          u"0"_s},
    {u"Option11"_s,  u"Auto"_s,     u"ClosetagVersion"_s,   u"1"_s},
    {u"Check5"_s,    u"Auto"_s,     u"Tag"_s,               u"0"_s},
    {u"Text2"_s,     u"Auto"_s,     u"TagDuration"_s,       u"13"_s},
    {u"Check6"_s,    u"Auto"_s,     u"Attribute"_s,         u"0"_s},
    {u"Text3"_s,     u"Auto"_s,     u"AttributeDuration"_s, u"14"_s},
    {u"Check11"_s,   u"Settings"_s, u"DoValue"_s,           u"0"_s},
    {u"Text12"_s,    u"Settings"_s, u"Value"_s,             u"15"_s},
    {u"Check7"_s,    u"Auto"_s,     u"TagInsertGT"_s,       u"1"_s},
    {u"Check8"_s,    u"Editor"_s,   u"WordWrap"_s,          u"1"_s},
    {u"Check9"_s,    u"Auto"_s,     u"Save"_s,              u"1"_s},
    {u"Check10"_s,   u"Editor"_s,   u"TagCase"_s,           u"0"_s},
};
// clang-format on

TEST_F(frmOptionsTest, EveryControlReachesItsKey)
{
    for (const Control &row : Controls) {
        SCOPED_TRACE(qPrintable(row.name));
        const FreshHome home;
        int applied = 0;
        frmOptions dialog;
        dialog.Applied = [&applied](const Options &) { ++applied; };
        Set(dialog, row.name, row.value);
        EXPECT_EQ(GetSetting(row.section, row.key, u"none"_s), u"none"_s);
        Click(dialog, u"cmdOk"_s);
        EXPECT_EQ(applied, 1);
        EXPECT_EQ(GetSetting(row.section, row.key), row.value);
        // The next dialog shows it, and stores it again.
        frmOptions next;
        SaveSetting(row.section, row.key, u"overwritten"_s);
        Click(next, u"cmdOk"_s);
        EXPECT_EQ(GetSetting(row.section, row.key), row.value);
    }
}

TEST_F(frmOptionsTest, CancelWritesNothing)
{
    frmOptions dialog;
    dialog.Applied = [](const Options &) { FAIL(); };
    for (const Control &row : Controls)
        Set(dialog, row.name, row.value);
    Find<QPlainTextEdit>(dialog, u"Words"_s).setPlainText(u"word"_s);
    Click(dialog, u"cmdCancel"_s);
    for (const Control &row : Controls)
        EXPECT_EQ(GetSetting(row.section, row.key, u"none"_s), u"none"_s) << qPrintable(row.name);
    EXPECT_FALSE(QFile::exists(AppPath(u"Auto.dat")));
    EXPECT_EQ(LargeFile(), m_largeFile);
}

TEST_F(frmOptionsTest, BadSettingsStayUntilOk)
{
    SaveSetting(u"Auto", u"RefreshNumber", u"often"_s);
    {
        frmOptions dialog;
        EXPECT_EQ(Find<QSpinBox>(dialog, u"Text1"_s).value(), 1000);
        Click(dialog, u"cmdCancel"_s);
    }
    EXPECT_EQ(GetSetting(u"Auto", u"RefreshNumber"), u"often"_s);
    frmOptions dialog;
    Click(dialog, u"cmdOk"_s);
    EXPECT_EQ(GetSetting(u"Auto", u"RefreshNumber"), u"1000"_s);
}

TEST_F(frmOptionsTest, PresetsFillOnlyTheBoxes)
{
    frmOptions dialog;
    auto &presets = Find<QComboBox>(dialog, u"Combo1"_s);
    emit presets.textActivated(u"Visual Studio.net"_s);
    const quint32 colours[] = {0xFFFFFF, 0x80, 0, 0x80, 0xFF};
    for (int box = 1; box <= 5; ++box)
        EXPECT_EQ(Find<ColourButton>(dialog, u"Color%1"_s.arg(box)).Colour(), colours[box - 1]);
    EXPECT_EQ(GetSetting(u"Colors", u"Tag", u"none"_s), u"none"_s);
    Click(dialog, u"cmdOk"_s);
    EXPECT_EQ(GetSetting(u"Colors", u"Tag"), u"128"_s);
}

TEST_F(frmOptionsTest, ResetAsksAndKeepsWhatItDoesNotCover)
{
    SaveSetting(u"Settings", u"Startup", u"6"_s);
    frmOptions dialog;
    Set(dialog, u"Text12"_s, u"77"_s);
    Set(dialog, u"Option2"_s, {});
    Find<QPlainTextEdit>(dialog, u"Words"_s).setPlainText(u"word"_s);

    m_boxes.answer = Answer::Cancel;
    Click(dialog, u"Command1"_s);
    EXPECT_EQ(m_boxes.asked, QStringList{u"Are you sure?"_s});
    EXPECT_EQ(GetSetting(u"Settings", u"Startup"), u"6"_s);
    EXPECT_TRUE(Find<QAbstractButton>(dialog, u"Option2"_s).isChecked());

    m_boxes.answer = Answer::Ok;
    Click(dialog, u"Command1"_s);
    EXPECT_EQ(m_boxes.asked.constLast(), u"Reset complete!"_s);
    EXPECT_EQ(GetSetting(u"Settings", u"Startup"), u"3"_s);
    EXPECT_TRUE(Find<QAbstractButton>(dialog, u"Option3"_s).isChecked());
    EXPECT_EQ(Find<QLineEdit>(dialog, u"Text13"_s).text(), u"http://localhost"_s);
    EXPECT_EQ(Find<QSpinBox>(dialog, u"Text12"_s).value(), 77);
    EXPECT_EQ(Words(dialog), u"word"_s);
    Click(dialog, u"cmdOk"_s);
    EXPECT_EQ(GetSetting(u"Editor", u"FontName"), u"Courier New"_s);
}

TEST_F(frmOptionsTest, FontsAreListedWhenTheirPageIsShown)
{
    SaveSetting(u"Editor", u"FontName", u"No Such Font"_s);
    frmOptions dialog;
    auto &fonts = Find<QListWidget>(dialog, u"List1"_s);
    EXPECT_EQ(fonts.count(), 0);
    ShowPage(dialog, u"Font"_s);
    ASSERT_GT(fonts.count(), 0);
    EXPECT_EQ(fonts.currentItem()->text(), u"No Such Font"_s);

    // The font of the reset values may not be here either.
    Click(dialog, u"Command1"_s);
    ShowPage(dialog, u"Startup"_s);
    ShowPage(dialog, u"Font"_s);
    EXPECT_EQ(fonts.currentItem()->text(), u"Courier New"_s);
    fonts.setCurrentRow(fonts.count() - 1);
    ShowPage(dialog, u"Startup"_s);
    ShowPage(dialog, u"Font"_s);
    const QString chosen = fonts.item(fonts.count() - 1)->text();
    Click(dialog, u"cmdOk"_s);
    EXPECT_EQ(GetSetting(u"Editor", u"FontName"), chosen);
}

TEST_F(frmOptionsTest, WordsAreKeptLineByLine)
{
    ASSERT_EQ(WriteAuthorFile(AppPath(u"Auto.dat"), "a\xC2\xA0z\r\n\r\nb\r\n"), QString());
    frmOptions dialog;
    Click(dialog, u"cmdOk"_s);
    EXPECT_EQ(ReadAuthorFile(AppPath(u"Auto.dat")).bytes, "a\xC2\xA0z\r\n\r\nb\r\n");
    EXPECT_TRUE(m_boxes.asked.isEmpty());
}

TEST_F(frmOptionsTest, PreviewsFollowTheirOptions)
{
    frmOptions dialog;
    dialog.show();
    auto &timer = Find<QTimer>(dialog, u"Timer3"_s);
    auto &typed = Find<QLabel>(dialog, u"Label3"_s);
    EXPECT_FALSE(timer.isActive());
    ShowPage(dialog, u"Insert closing tag"_s);
    EXPECT_TRUE(timer.isActive());
    const QStringList start{
        u"_"_s, u"<_"_s, u"<H_"_s, u"<HT_"_s, u"<HTM_"_s, u"<HTML_"_s, u"<HTML>_"_s};
    for (const bool insertsEndTag : {false, true}) {
        Click(dialog, insertsEndTag ? u"Option11"_s : u"Option12"_s);
        const QStringList states = insertsEndTag ? start + QStringList{u"<HTML>_</HTML>"_s} : start;
        for (const QString &state : states) {
            EXPECT_EQ(typed.text(), state);
            QMetaObject::invokeMethod(&timer, "timeout");
        }
        EXPECT_EQ(typed.text(), u"_"_s);
        ShowPage(dialog, u"Startup"_s);
        EXPECT_FALSE(timer.isActive());
        ShowPage(dialog, u"Insert closing tag"_s);
    }
    const auto &sample = Find<QLabel>(dialog, u"Label2"_s);
    EXPECT_EQ(sample.text(), u"<html>"_s);
    Click(dialog, u"Check10"_s);
    EXPECT_EQ(sample.text(), u"<HTML>"_s);
    dialog.close();
    EXPECT_FALSE(timer.isActive());
}

TEST_F(frmOptionsTest, SearchFillsTheListOfBrowsers)
{
    frmOptions dialog;
    auto &button = Find<QPushButton>(dialog, u"FButton17"_s);
    Set(dialog, u"Text4"_s, u"Mine"_s);
    Set(dialog, u"Text5"_s, u"/mine"_s);
    dialog.Finder = {.find = [](const BrowserProgram &program) -> std::optional<QString> {
                         return program.title == u"Netscape" ? u"/netscape"_s : QString();
                     },
                     .installed = [] { return QList<ExternalBrowser>(); }};
    button.click();
    EXPECT_EQ(Find<QLineEdit>(dialog, u"Text5"_s).text(), u"/mine"_s);
    EXPECT_EQ(Find<QLineEdit>(dialog, u"Text6"_s).text(), u"Netscape 6"_s);
    EXPECT_EQ(Find<QLineEdit>(dialog, u"Text7"_s).text(), u"/netscape"_s);
    EXPECT_EQ(m_boxes.asked.size(), 3);
    EXPECT_EQ(button.text(), u"Finished!"_s);
    auto &timer = Find<QTimer>(dialog, u"Timer2"_s);
    EXPECT_TRUE(timer.isActive());
    QMetaObject::invokeMethod(&timer, "timeout");
    EXPECT_EQ(button.text(), u"Search all browsers"_s);
    EXPECT_EQ(GetSetting(u"Browser2", u"Path"), QString());
}

TEST_F(frmOptionsTest, ButtonsThatActAtOnce)
{
    bool isCleared = false;
    frmOptions dialog;
    dialog.RecentCleared = [&isCleared] { isCleared = true; };
    SaveSetting(u"Recent", u"Recent1", u"/a.html"_s);
    Click(dialog, u"Command3"_s);
    EXPECT_TRUE(isCleared);
    EXPECT_EQ(GetSetting(u"Recent", u"Recent1", u"none"_s), QString());

    QString topic;
    SetHelpHandler([&topic](HelpPlace, const QString &keyword) { topic = keyword; });
    Click(dialog, u"Command4"_s);
    SetHelpHandler({});
    EXPECT_EQ(topic, u"OPTIONS"_s);

    ASSERT_EQ(WriteAuthorFile(AppPath(u"files.dat"), "x"), QString());
    Click(dialog, u"Command2"_s);
    Click(dialog, u"Command2"_s);
    EXPECT_EQ(m_boxes.asked,
              (QStringList{u"File successfully deleted"_s, u"Can't find the filelist..."_s}));
}

TEST_F(frmOptionsTest, TreeLeadsToEveryPage)
{
    frmOptions dialog;
    dialog.show();
    QStringList captions;
    auto &tree = Find<QTreeWidget>(dialog, u"TreeView"_s);
    for (QTreeWidgetItemIterator item(&tree); *item; ++item)
        captions += (*item)->text(0);
    EXPECT_EQ(captions.join(u'|'),
              u"General|Startup|Colors|Font|Syntax Language|Integrated Browser|Browserlist|Color "
              "Picker|Reset Settings|Automatic Features|Insert closing tag|Autocomplete|Word "
              "Wrap|AutoSave|Tag Case|Design View|Design"_s);
    const QList<std::pair<QString, QString>> pages{{u"General"_s, u"Option1"_s},
                                                   {u"Color Picker"_s, u"Option16"_s},
                                                   {u"Automatic Features"_s, u"Check4"_s},
                                                   {u"Tag Case"_s, u"Check10"_s}};
    for (const auto &[caption, control] : pages) {
        ShowPage(dialog, caption);
        EXPECT_TRUE(Find<QWidget>(dialog, control).isVisible()) << qPrintable(caption);
    }
}

TEST(frmDrive, GivesTheChosenRoot)
{
    frmDrive dialog({u"Opera", u"", u"Opera", u"opera.exe"});
    const auto &prompt = *dialog.findChild<QLabel *>();
    EXPECT_EQ(prompt.text(),
              u"Brenix need to know which drive Opera lies on in order to find the path. Please "
              "select it from the dropdown list below."_s);
    EXPECT_FALSE(Find<QComboBox>(dialog, u"Drive1"_s).currentText().isEmpty());
    Click(dialog, u"Command1"_s);
    EXPECT_EQ(dialog.Root(), Find<QComboBox>(dialog, u"Drive1"_s).currentText());
}

} // namespace
