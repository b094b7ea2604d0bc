#pragma once

#include "app/BrowserSearch.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace brenix {

/// Colours of the source view, in blue-green-red order.
struct ColourSet
{
    quint32 background = 0xFFFFFF;
    quint32 tag = 0x800000;
    quint32 comment = 0x8000;
    quint32 table = 0x8080;
    quint32 special = 0x808080;

    bool operator==(const ColourSet &) const = default;
};

/// All that the Options dialog edits, page by page, with the values that it shows where nothing is
/// stored. Times are in milliseconds.
struct Options
{
    int startup = 3; ///< 1 open dialog, 2 last page, 3 to 5 a new document, 6 nothing
    ColourSet colours;
    QString fontName = QStringLiteral("Courier New");
    int fontSize = 10;
    int syntax = 1; ///< 1 HTML, 2 Basic, 3 Java, 4 none
    bool giveCorrectCase = true;
    int largeFile = 20000; ///< characters
    bool refresh = true;
    int refreshNumber = 1000;
    QString localHost = QStringLiteral("http://localhost/");
    BrowserSlots browsers = FreeBrowserSlots();
    int colourPicker = 1;
    bool closeTag = true;
    int closeTagVersion = 2; ///< 1 inserts the end tag, 2 offers it in a list
    bool tag = true;
    int tagDuration = 1;
    bool attribute = true;
    int attributeDuration = 1000;
    bool value = true;
    int valueDuration = 500;
    bool tagInsertGT = false;
    QStringList words; ///< the lines of Auto.dat
    bool wordWrap = false;
    bool autoSave = false;
    bool lowerCaseTags = true;
};

constexpr int LeastFontSize = 8;
constexpr int MostFontSize = 20;
constexpr int MostLargeFile = 1'000'000'000; ///< no larger file can be opened
constexpr int MostDuration = 3'600'000;

/// The stored options. A stored text that makes no sense for its option (no number, one out of
/// range) counts as not stored.
Options ReadOptions();

/// Stores Auto.dat and then every key, in the order of the pages; the limit of large pages takes
/// effect at once. Returns the error text when Auto.dat could not be written; the keys are stored
/// even so.
QString WriteOptions(const Options &options);

/// Stores the values of a new installation, except that the local host has no slash at its end.
/// Colour picker, value completion, the limit of large pages and Auto.dat are not touched. Returns
/// the new values, and those not touched as in `shown`.
Options ResetOptions(const Options &shown);

/// Ready-made sets of colours; nothing for a name that is not among them.
QStringList ColourPresetNames();
std::optional<ColourSet> ColourPreset(QStringView name);

/// Forgets all recent files.
void ClearRecentFiles();
/// Removes the list of addresses that were typed into dialogs; false when that failed.
bool DeleteFileList();

} // namespace brenix
