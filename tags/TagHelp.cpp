#include "tags/TagHelp.h"

using namespace Qt::StringLiterals;

namespace brenix {

QString TagHelpKeyword(const QString &selectedText)
{
    const qsizetype blank = selectedText.indexOf(u' ');
    QString keyword = blank < 0 ? selectedText.chopped(qMin(selectedText.size(), qsizetype(1)))
                                : selectedText.first(blank);
    keyword = keyword.mid(1);
    if (keyword.startsWith(u'\\') || keyword.startsWith(u'/'))
        keyword.remove(0, 1);
    if (keyword.startsWith(u'!'))
        return keyword.contains(u"doctype"_s, Qt::CaseInsensitive) ? u"doctype"_s : QString();
    return keyword.toLower();
}

} // namespace brenix
