#include "app/ExternalBrowser.h"

#include "support/SettingsStore.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace brenix {

ExternalBrowser BrowserAt(int number)
{
    const QString section = u"Browser"_s + QString::number(number);
    return {GetSetting(section, u"Name", u"No browser"_s), GetSetting(section, u"Path")};
}

QString BrowserArgument(const ExternalBrowser &browser, const QString &page)
{
    QString path = page;
    if (browser.name.toLower() == u"opera")
        path.replace(u" "_s, u"%20"_s);
    return u"file://"_s + path;
}

bool StartBrowser(const ExternalBrowser &browser, const QString &page)
{
    return !browser.path.isEmpty()
        && QProcess::startDetached(browser.path, {BrowserArgument(browser, page)});
}

} // namespace brenix
