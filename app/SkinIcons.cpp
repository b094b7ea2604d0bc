#include "app/SkinIcons.h"

#include "support/Paths.h"
#include "support/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace brenix {

QIcon SkinIcon(QStringView name)
{
    const QString skin = GetSetting(u"Settings", u"Skin", u"Default"_s);
    return QIcon(AppPath(u"Skins/%1/%2.ico"_s.arg(skin, name)));
}

QIcon ProgramIcon(QStringView name)
{
    return QIcon(AppPath(u"Icons/%1.ico"_s.arg(name)));
}

} // namespace brenix
