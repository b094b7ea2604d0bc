#include "app/BrowserSearch.h"

#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int NoSlot = -1;

    // clang-format off
    constexpr BrowserProgram Programs[] = {
        {u"Internet Explorer", u"",                                 u"Internet Explorer", u"iexplore.exe"},
        {u"Netscape",          u" Only version 6 can be found.",    u"Netscape 6",        u"netscp6.exe"},
        {u"Opera",             u"",                                 u"Opera",             u"opera.exe"},
        {u"Mosaic",            u"",                                 u"Mosaic",            u"mosaic.exe"},
    };
    // clang-format on
    constexpr int LastProgram = int(std::size(Programs)) - 1;

    int FirstFreeSlot(const BrowserSlots &browsers, int count)
    {
        for (int slot = 0; slot < count; ++slot) {
            if (browsers[std::size_t(slot)].path.isEmpty())
                return slot;
        }
        return NoSlot;
    }

    int SlotFor(int program, const BrowserSlots &browsers)
    {
        switch (program) {
        case 0:
            return 0;
        case 1:
            return browsers[0].path.isEmpty() ? 0 : 1;
        case 2:
            return FirstFreeSlot(browsers, 3);
        default:
            return FirstFreeSlot(browsers, int(browsers.size()));
        }
    }

    void TakeInstalled(BrowserSlots &browsers, const QList<ExternalBrowser> &installed)
    {
        for (const ExternalBrowser &browser : installed) {
            const bool isThere = std::any_of(
                browsers.begin(), browsers.end(), [&browser](const ExternalBrowser &other) {
                    return other.path == browser.path;
                });
            const int slot = FirstFreeSlot(browsers, int(browsers.size()));
            if (!isThere && slot != NoSlot)
                browsers[std::size_t(slot)] = browser;
        }
    }

} // namespace

BrowserSlots FreeBrowserSlots()
{
    BrowserSlots browsers;
    browsers.fill({u"No browser"_s, {}});
    return browsers;
}

BrowserFinder PathFinder()
{
    return {.find = [](const BrowserProgram &program) -> std::optional<QString> {
                return QStandardPaths::findExecutable(program.file.toString());
            },
            .installed =
                [] {
                    return InstalledBrowsers(
                        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation));
                },
            .tellsEach = false};
}

BrowserFinder DriveFinder(std::function<QString(const BrowserProgram &program)> askDrive)
{
    const auto find =
        [askDrive = std::move(askDrive)](const BrowserProgram &program) -> std::optional<QString> {
        const QString root = askDrive(program);
        if (root.isEmpty())
            return std::nullopt;
        return SearchTreeForFile(root, program.file);
    };
    return {.find = find, .installed = [] { return QList<ExternalBrowser>(); }};
}

void SearchBrowsers(BrowserSlots &browsers, const BrowserFinder &finder, const SearchVoice &voice)
{
    QStringList failures;
    bool isAnyFound = false;
    for (int program = 0; program <= LastProgram; ++program) {
        const BrowserProgram &wanted = Programs[program];
        const QStringView what = program == LastProgram ? u"other browsers" : wanted.title;
        voice.status(u"Searching for %1..."_s.arg(what));
        const int slot = SlotFor(program, browsers);
        const std::optional<QString> path = slot == NoSlot ? std::nullopt : finder.find(wanted);
        if (!path)
            continue;
        if (path->isEmpty()) {
            failures += u"Can't find path to %1"_s.arg(wanted.title);
            if (finder.tellsEach)
                voice.tell(failures.constLast());
            continue;
        }
        isAnyFound = true;
        browsers[std::size_t(slot)] = {wanted.slotName.toString(), *path};
    }
    const QList<ExternalBrowser> installed = finder.installed();
    TakeInstalled(browsers, installed);
    if (!finder.tellsEach && !isAnyFound && installed.isEmpty() && !failures.isEmpty())
        voice.tell(failures.join(u'\n'));
    voice.status(u"Finished!"_s);
}

QString SearchTreeForFile(const QString &root, QStringView file)
{
    QDirIterator files(
        root, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (files.fileName().compare(file, Qt::CaseInsensitive) == 0)
            return QDir::toNativeSeparators(path);
    }
    return {};
}

} // namespace brenix
