#include "checks/PlainText.h"

#include "checks/InPlace.h"
#include "support/TextSearch.h"

namespace brenix {

bool BlankOut(QString &text, QStringView open, QStringView close, Pulse &pulse)
{
    const TextSearch openSearch(open);
    const TextSearch closeSearch(close);
    InPlace page(text);
    while (true) {
        const qsizetype start = openSearch.FindIn(page.Rest());
        const qsizetype end
            = start < 0 ? -1 : closeSearch.FindIn(page.Rest(), start + openSearch.Length());
        if (end < 0)
            break;
        if (!pulse.Step())
            return false;
        page.Keep(start);
        page.Skip(end + closeSearch.Length() - start);
        page.Put(u' ');
    }
    page.Keep(page.Rest().size());
    page.Finish();
    return pulse.Ask();
}

QString StripTags(const QString &text, const GoOn &goOn)
{
    Pulse pulse(goOn);
    QString result = text;
    if (!BlankOut(result, u"<", u">", pulse))
        return text;
    result = ReplaceAll(result, TextSearch(u"&nbsp;"), u" ");
    return ReplaceAll(result, TextSearch(u"&aring;"), u"å");
}

} // namespace brenix
