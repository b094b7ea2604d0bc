#include "support/UntitledPages.h"

#include "support/Paths.h"
#include "support/SettingsStore.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    QString tempDir;

    QString UntitledStart()
    {
        return TempDir() + QDir::separator() + u"Document"_s;
    }

    // Names are lower-cased where the file system ignores case, so that they compare equal.
    QString OwnTempDir()
    {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
        return AppPath(u"temp").toLower();
#else
        return AppPath(u"Temp");
#endif
    }

} // namespace

QString TempDir()
{
    return tempDir;
}

QString ChooseTempDir()
{
    tempDir = GetSetting(u"Settings", u"TemporaryDirectory");
    if (tempDir.endsWith(u'\\') || tempDir.endsWith(QDir::separator()))
        tempDir.chop(1);
    if (tempDir.isEmpty()) {
        SaveSetting(u"Settings", u"TemporaryDirectory", {});
        tempDir = OwnTempDir();
    }
    return tempDir;
}

QString UntitledCaption(int number)
{
    return UntitledStart() + QString::number(number) + u".html"_s;
}

bool IsUntitled(const QString &caption)
{
    return caption.startsWith(UntitledStart(), Qt::CaseSensitive);
}

} // namespace brenix
