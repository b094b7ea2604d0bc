#include "app/Options.h"

#include "app/RecentFiles.h"
#include "editor/LargeFile.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"
#include "support/TextCodec.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    /// Which numbers mean on.
    enum class Flag { One, NotZero };

    /// Calls `visit` with every key and its field, in the order of the pages.
    template <typename AnyOptions, typename Visitor>
    void VisitKeys(AnyOptions &options, const Visitor &visit)
    {
        visit(u"Settings", u"Startup", options.startup, 1, 6);
        visit(u"Colors", u"Background", options.colours.background);
        visit(u"Colors", u"Tag", options.colours.tag);
        visit(u"Colors", u"Comment", options.colours.comment);
        visit(u"Colors", u"Table", options.colours.table);
        visit(u"Colors", u"Special", options.colours.special);
        visit(u"Editor", u"FontName", options.fontName);
        visit(u"Editor", u"FontSize", options.fontSize, LeastFontSize, MostFontSize);
        visit(u"Language", u"Syntax", options.syntax, 1, 4);
        visit(u"Language", u"GiveCorrectCase", options.giveCorrectCase, Flag::One);
        visit(u"Settings", u"LargeFile", options.largeFile, 0, MostLargeFile);
        visit(u"Auto", u"Refresh", options.refresh, Flag::One);
        visit(u"Auto", u"RefreshNumber", options.refreshNumber, 0, MostDuration);
        visit(u"Settings", u"LocalHost", options.localHost);
        for (std::size_t slot = 0; slot < options.browsers.size(); ++slot) {
            const QString section = u"Browser"_s + QString::number(slot + 1);
            visit(section, u"Name", options.browsers[slot].name);
            visit(section, u"Path", options.browsers[slot].path);
        }
        visit(u"Settings", u"Color", options.colourPicker, 1, 3);
        visit(u"Auto", u"Closetag", options.closeTag, Flag::One);
        visit(u"Auto", u"ClosetagVersion", options.closeTagVersion, 1, 2);
        visit(u"Auto", u"Tag", options.tag, Flag::One);
        visit(u"Auto", u"TagDuration", options.tagDuration, 0, MostDuration);
        visit(u"Auto", u"Attribute", options.attribute, Flag::One);
        visit(u"Auto", u"AttributeDuration", options.attributeDuration, 0, MostDuration);
        visit(u"Settings", u"DoValue", options.value, Flag::One);
        visit(u"Settings", u"Value", options.valueDuration, 0, MostDuration);
        visit(u"Auto", u"TagInsertGT", options.tagInsertGT, Flag::One);
        visit(u"Editor", u"WordWrap", options.wordWrap, Flag::NotZero);
        visit(u"Auto", u"Save", options.autoSave, Flag::NotZero);
        visit(u"Editor", u"TagCase", options.lowerCaseTags, Flag::One);
    }

    /// Leaves a field alone when what is stored makes no sense for it.
    struct KeyReader
    {
        void operator()(QStringView section, QStringView key, QString &field) const
        {
            field = GetSetting(section, key, field);
        }
        void operator()(QStringView section, QStringView key, int &field, int least, int most) const
        {
            const int number = GetNumberSetting(section, key, field).value_or(field);
            if (number >= least && number <= most)
                field = number;
        }
        void operator()(QStringView section, QStringView key, quint32 &colour) const
        {
            int number = int(colour);
            (*this)(section, key, number, 0, 0xFFFFFF);
            colour = quint32(number);
        }
        void operator()(QStringView section, QStringView key, bool &field, Flag flag) const
        {
            const std::optional<int> number = GetNumberSetting(section, key, field ? 1 : 0);
            if (IsSettingOn(section, key, field) || (number && *number && flag == Flag::NotZero))
                field = true;
            else if (number == 0
                     || GetSetting(section, key).compare(u"False", Qt::CaseInsensitive) == 0)
                field = false;
        }
    };

    struct KeyWriter
    {
        /// What Reset leaves alone.
        static bool IsKept(QStringView section, QStringView key)
        {
            return section == u"Settings"
                && (key == u"Color" || key == u"DoValue" || key == u"Value" || key == u"LargeFile");
        }

        void operator()(QStringView section, QStringView key, const QString &text) const
        {
            if (!isReset || !IsKept(section, key))
                SaveSetting(section, key, text);
        }
        void operator()(QStringView section, QStringView key, int number, int, int) const
        {
            (*this)(section, key, QString::number(number));
        }
        void operator()(QStringView section, QStringView key, quint32 colour) const
        {
            (*this)(section, key, QString::number(colour));
        }
        void operator()(QStringView section, QStringView key, bool isOn, Flag) const
        {
            (*this)(section, key, isOn ? u"1"_s : u"0"_s);
        }

        bool isReset = false;
    };

    QString WordsPath()
    {
        return AppPath(u"Auto.dat");
    }

    QStringList ReadWords()
    {
        QString text = DecodePage(ReadAuthorFile(WordsPath()).bytes, {}).text;
        text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        if (text.endsWith(u'\n'))
            text.chop(1);
        return text.isEmpty() ? QStringList() : text.split(u'\n');
    }

    QString WriteWords(const QStringList &words)
    {
        QByteArray bytes;
        for (const QString &word : words)
            bytes += word.toUtf8() + "\r\n";
        // A file that could not be read is not replaced by the little that was shown of it.
        const QString path = WordsPath();
        const QString error = QFile::exists(path) ? ReadAuthorFile(path).error : QString();
        return error.isEmpty() ? WriteAuthorFile(path, bytes) : error;
    }

    struct Preset
    {
        QStringView name;
        ColourSet colours;
    };
    // clang-format off
    constexpr Preset Presets[] = {
        //                      background  tag       comment   table     special
        {u"Visual Basic",      {0xFFFFFF,   0x8000,   0x800000, 0x0,      0x0}},
        {u"Hot Dog",           {0xFFFFFF,   0xFF0000, 0x80,     0xFF0000, 0x0}},
        {u"HoTMetaL PRO",      {0xFFFFFF,   0xFF,     0x0,      0xFF,     0x0}},
        {u"GoLive",            {0xFFFFFF,   0x0,      0x80,     0x0,      0x0}},
        {u"Visual Studio.net", {0xFFFFFF,   0x80,     0x0,      0x80,     0xFF}},
        {u"FrontPage",         {0xFFFFFF,   0x0,      0x80,     0x0,      0x0}},
        {u"Dreamweaver",       {0xFFFFFF,   0x0,      0x80,     0x0,      0x0}},
        {u"Brenix HTML",       {0xFFFFFF,   0x800000, 0x8000,   0x8080,   0x404040}},
    };
    // clang-format on

} // namespace

Options ReadOptions()
{
    Options options;
    VisitKeys(options, KeyReader());
    options.words = ReadWords();
    return options;
}

QString WriteOptions(const Options &options)
{
    const QString error = WriteWords(options.words);
    VisitKeys(options, KeyWriter());
    SetLargeFile(options.largeFile);
    return error;
}

Options ResetOptions(const Options &shown)
{
    Options reset;
    reset.localHost = u"http://localhost"_s;
    VisitKeys(reset, KeyWriter{.isReset = true});
    reset.colourPicker = shown.colourPicker;
    reset.value = shown.value;
    reset.valueDuration = shown.valueDuration;
    reset.largeFile = shown.largeFile;
    reset.words = shown.words;
    return reset;
}

QStringList ColourPresetNames()
{
    QStringList names;
    for (const Preset &preset : Presets)
        names += preset.name.toString();
    return names;
}

std::optional<ColourSet> ColourPreset(QStringView name)
{
    const auto *found = std::find_if(std::begin(Presets),
                                     std::end(Presets),
                                     [name](const Preset &preset) { return preset.name == name; });
    return found == std::end(Presets) ? std::nullopt : std::optional(found->colours);
}

void ClearRecentFiles()
{
    for (int number = 1; number <= RecentCount; ++number)
        SaveSetting(u"Recent", u"Recent"_s + QString::number(number), {});
}

bool DeleteFileList()
{
    return QFile::remove(AppPath(u"files.dat"));
}

} // namespace brenix
