#include "app/frmOptions.h"
#include "support/ColourButton.h"
#include "support/MessageBoxes.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr int FinishedTime = 2000; // ms
}

void frmOptions::BuildStartup(Form &form)
{
    form.Note(u"When Brenix starts, i want it to:"_s);
    form.Options({{u"Option1", u"Show the \"Open Dialog\""_s, 1},
                  {u"Option2", u"Open the last edited document"_s, 2},
                  {u"Option3", u"Start a new HTML document"_s, 3},
                  {u"Option4", u"Start a new simple HTML document"_s, 4},
                  {u"Option5", u"Start a blank document"_s, 5},
                  {u"Option6", u"Do nothing"_s, 6}},
                 m_options.startup);
}

void frmOptions::BuildColors(Form &form)
{
    ColourSet &set = m_options.colours;
    form.Note(u"Click to change color"_s);
    ColourButton *background = form.Colour(u"Color1", u"&Background:"_s, set.background);
    ColourButton *tag = form.Colour(u"Color2", u"&Tags:"_s, set.tag);
    ColourButton *comment = form.Colour(u"Color3", u"&Comments:"_s, set.comment);
    ColourButton *table = form.Colour(u"Color4", u"Table and &Java Keywords:"_s, set.table);
    ColourButton *special = form.Colour(u"Color5", u"&Special text:"_s, set.special);

    auto *presets = new QComboBox;
    presets->setObjectName(u"Combo1"_s);
    presets->setAccessibleName(u"Preset"_s);
    presets->addItems(ColourPresetNames());
    presets->setPlaceholderText(u"Choose a preset"_s);
    presets->setCurrentIndex(-1);
    form.Add(presets);
    QObject::connect(presets, &QComboBox::textActivated, this, [=](const QString &name) {
        if (const std::optional<ColourSet> chosen = ColourPreset(name)) {
            background->SetColour(chosen->background);
            tag->SetColour(chosen->tag);
            comment->SetColour(chosen->comment);
            table->SetColour(chosen->table);
            special->SetColour(chosen->special);
        }
    });
}

void frmOptions::BuildFont(Form &form)
{
    const QList<Form *> columns = form.Columns({3, 1}, 1);
    m_fonts = columns[0]->List(u"List1", u"&Font:"_s, {}, m_options.fontName);
    QStringList sizes;
    for (int size = LeastFontSize; size <= MostFontSize; ++size)
        sizes += QString::number(size);
    columns[1]->List(u"List2", u"&Size:"_s, sizes, m_fontSize);
}

void frmOptions::BuildSyntaxLanguage(Form &form)
{
    form.Note(u"Which syntax language do you want to use?"_s);
    form.Options({{u"Option7", u"&HTML"_s, 1},
                  {u"Option8", u"&VisualBasic"_s, 2},
                  {u"Option9", u"&Java"_s, 3},
                  {u"Option10", u"&None"_s, 4}},
                 m_options.syntax);
    form.Check(u"Check1",
               u"Do you want Brenix to correct the case to keywords in VisualBasic?"_s,
               m_options.giveCorrectCase);
    form.Number(u"LargeFile",
                u"Color &pages up to (characters):"_s,
                0,
                MostLargeFile,
                m_options.largeFile)
        ->setGroupSeparatorShown(true);
}

void frmOptions::BuildIntegratedBrowser(Form &form)
{
    form.Check(u"Check3",
               u"Do you want Brenix to refresh your browser automatically, so you don't have to "
               "click F5?"_s,
               m_options.refresh);
    form.Number(u"Text1",
                u"How often do you want Brenix to refresh the browser in \"Split View\"?"_s,
                0,
                MostDuration,
                m_options.refreshNumber)
        ->setSuffix(u" ms"_s);
    form.Text(
        u"Text13", u"If you have a local host, then type it in below:"_s, m_options.localHost);
}

void frmOptions::BuildBrowserlist(Form &form)
{
    // clang-format off
    static constexpr struct { const char16_t *name; const char16_t *path; } Boxes[] = {
        {u"Text4", u"Text5"}, {u"Text6", u"Text7"}, {u"Text8", u"Text9"}, {u"Text10", u"Text11"},
    };
    // clang-format on
    int number = 1;
    for (ExternalBrowser &browser : m_options.browsers) {
        const auto &boxes = Boxes[number - 1];
        form.Text(boxes.name, u"Browser &%1:"_s.arg(number), browser.name);
        form.Text(boxes.path, u"Path of browser %1:"_s.arg(number), browser.path);
        ++number;
    }
    m_search = form.Button(u"FButton17", u"Search all browsers"_s, [this] { Search(); });
    m_searchDone.setObjectName(u"Timer2"_s);
    m_searchDone.setSingleShot(true);
    m_searchDone.setInterval(FinishedTime);
    connect(&m_searchDone, &QTimer::timeout, m_search, [this] {
        m_search->setText(u"Search all browsers"_s);
    });
}

void frmOptions::BuildColorPicker(Form &form)
{
    form.Note(u"Wich type of colorpicker do you want to use by default?"_s);
    form.Options({{u"Option16", u"&Quick color picker"_s, 1},
                  {u"Option17", u"&Color dialog of Brenix"_s, 2},
                  {u"Option18", u"Color dialog of the &system"_s, 3}},
                 m_options.colourPicker);
}

void frmOptions::BuildReset(Form &form)
{
    form.Note(u"Reset settings?"_s);
    form.Button(u"Command1", u"&Reset"_s, [this] { Reset(); });
    form.Note(u"Delete the list of addresses that you have typed into dialogs?"_s);
    form.Button(u"Command2", u"&Delete filelist"_s, [] {
        if (DeleteFileList())
            MsgBox(u"File successfully deleted"_s, Buttons::Ok, Icon::Information);
        else
            MsgBox(u"Can't find the filelist..."_s, Buttons::Ok, Icon::Information);
    });
    form.Note(u"Clear the list of recent files?"_s);
    form.Button(u"Command3", u"&Clear recent files"_s, [this] {
        ClearRecentFiles();
        if (RecentCleared)
            RecentCleared();
    });
}

} // namespace brenix
