#include "tags/EndTag.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr QStringView WithoutEndTag[]
        = {u"<br", u"<area", u"<hr", u"<base", u"<meta", u"<col", u"<!", u"<isindex", u"<img"};

    bool HasNoEndTag(QStringView text)
    {
        return std::any_of(std::begin(WithoutEndTag),
                           std::end(WithoutEndTag),
                           [text](QStringView start) { return text.startsWith(start); });
    }

} // namespace

std::optional<QString> EndTagAt(QStringView text, qsizetype caret)
{
    caret = std::min(caret, text.size());
    qsizetype close = -1; // the first ">" at or behind the place that is looked at
    std::optional<QStringView> closed; // the last end tag that was met, without "</" and ">"
    for (qsizetype place = caret - 2; place >= 0; --place) {
        if (text[place] == u'>')
            close = place;
        if (text[place] != u'<' || HasNoEndTag(text.sliced(place)))
            continue;
        if (close < 0)
            close = text.indexOf(u'>', place);
        if (close < 0)
            return std::nullopt;
        const QStringView inside = text.sliced(place + 1, close - place - 1);
        if (inside.startsWith(u'/')) {
            closed = inside.sliced(1);
            continue;
        }
        const qsizetype blank = inside.indexOf(u' ');
        const QStringView name = blank < 0 ? inside : inside.first(blank);
        if (closed != name)
            return u"</"_s + name.toString() + u'>';
    }
    return std::nullopt;
}

} // namespace brenix
