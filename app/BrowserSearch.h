#pragma once

#include "app/ExternalBrowser.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>

namespace brenix {

/// The browsers of the browser menu. A slot without a path is free.
using BrowserSlots = std::array<ExternalBrowser, BrowserCount>;
BrowserSlots FreeBrowserSlots();

/// A browser that the search knows by its file name.
struct BrowserProgram
{
    QStringView title; ///< in what the user reads, "Netscape"
    QStringView remark; ///< what the user should know when asked where it lies, often empty
    QStringView slotName; ///< what its slot is called, "Netscape 6"
    QStringView file;
};

/// Where a search looks.
struct BrowserFinder
{
    /// The path of a program: empty when it is not there, nothing when the user does not want to
    /// look for it.
    std::function<std::optional<QString>(const BrowserProgram &program)> find;
    /// All browsers that the system knows; they take the slots that the programs leave free.
    std::function<QList<ExternalBrowser>()> installed;
    /// Whether each program that is not there is told at once. Otherwise nothing is told unless
    /// no browser was found at all.
    bool tellsEach = true;
};

/// Looks on the PATH, and in the installed desktop entries.
BrowserFinder PathFinder();
/// Searches a whole drive for each program. `askDrive` gives its root, empty when cancelled.
BrowserFinder DriveFinder(std::function<QString(const BrowserProgram &program)> askDrive);

/// Fills free slots with the browsers that are found; the first program takes slot 1 in any case,
/// and the second slot 2 unless slot 1 is free. `status` hears what is being done, `tell` what was
/// not found.
struct SearchVoice
{
    std::function<void(const QString &text)> status;
    std::function<void(const QString &text)> tell;
};
void SearchBrowsers(BrowserSlots &browsers, const BrowserFinder &finder, const SearchVoice &voice);

/// The path of the first file of that name, in any case, under a directory; empty when there is
/// none. Symbolic links are not followed.
QString SearchTreeForFile(const QString &root, QStringView file);

/// The web browsers among the desktop entries of some folders. An entry of an earlier folder hides
/// those of the same file name in later ones. Left out are entries that are not shown, that need a
/// terminal, and that start something which is not there.
QList<ExternalBrowser> InstalledBrowsers(const QStringList &folders);

} // namespace brenix
