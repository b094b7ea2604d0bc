#include "app/SkinIcons.h"

#include "app/LazyIcon.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // Looking into a dozen files at once would hold up the window.
    QIcon FileIcon(const QString &path)
    {
        return LazyIcon([path] { return QIcon(path); });
    }

} // namespace

QIcon SkinIcon(QStringView name)
{
    const QString skin = GetSetting(u"Settings", u"Skin", u"Default"_s);
    return FileIcon(AppPath(u"Skins/%1/%2.ico"_s.arg(skin, name)));
}

QIcon ProgramIcon(QStringView name)
{
    return FileIcon(AppPath(u"Icons/%1.ico"_s.arg(name)));
}

} // namespace brenix
