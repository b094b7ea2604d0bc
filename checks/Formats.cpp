#include "checks/Formats.h"

#include "checks/InPlace.h"
#include "support/TextSearch.h"

#include <algorithm>

namespace brenix {

namespace {

    /// How one of the formats treats what stands between the tags.
    struct Joining
    {
        bool tabsAreBlanks;
        /// How many blanks are left of those between two other characters.
        qsizetype (*reduced)(qsizetype blanks, char16_t left, char16_t right);
    };

    // The blanks behind a "<" stay for now: they decide what the name of the tag is.
    qsizetype ReducedInHierarchy(qsizetype blanks, char16_t, char16_t right)
    {
        blanks %= 4;
        return blanks > 0 && right == u'>' ? blanks - 1 : blanks;
    }

    qsizetype ReducedInCompact(qsizetype blanks, char16_t left, char16_t right)
    {
        for (const qsizetype many : {5, 4, 3, 2})
            blanks = blanks / many + blanks % many;
        if (left == u'>' && right == u'<' && blanks == 1)
            return 0;
        return std::max(qsizetype(0), blanks - (left == u'<') - (right == u'>'));
    }

    // False when it was stopped.
    bool JoinLines(QString &text, const Joining &joining, Pulse &pulse)
    {
        InPlace page(text);
        while (!page.AtEnd()) {
            qsizetype blanks = 0;
            for (char16_t unit = page.Next(); !page.AtEnd(); unit = page.Next()) {
                if (unit == u' ' || (unit == u'\t' && joining.tabsAreBlanks)) {
                    page.Skip(1);
                    ++blanks;
                } else if (unit == u'\r' && page.Rest().startsWith(u"\r\n")) {
                    page.Skip(2);
                } else {
                    break;
                }
            }
            if (blanks > 0)
                page.Put(u' ', joining.reduced(blanks, page.Last(), page.Next()));
            if (!pulse.Step())
                return false;
            if (!page.AtEnd())
                page.Keep();
            while (!page.AtEnd() && page.Next() > u' ')
                page.Keep();
        }
        page.Finish();
        return pulse.Ask();
    }

    constexpr QStringView NamesWithoutContent[]
        = {u"br", u"hr", u"img", u"meta", u"applet", u"p", u"input", u"area", u"link", u"param"};
    constexpr qsizetype LongestName = 6;

    // `tag` begins with the tag and may go on behind it.
    bool RaisesLevel(QStringView tag)
    {
        QStringView name = tag.sliced(1, std::min(LongestName + 1, tag.size() - 1));
        if (name.startsWith(u'!'))
            return false;
        const auto end = std::find_if(
            name.begin(), name.end(), [](QChar unit) { return unit == u' ' || unit == u'>'; });
        name = name.first(end - name.begin());
        return std::none_of(std::begin(NamesWithoutContent),
                            std::end(NamesWithoutContent),
                            [name](QStringView other) {
                                return name.size() == other.size() && EqualWithoutCase(name, other);
                            });
    }

    // Without the first blank behind the "<".
    void AppendLine(QString &result, qsizetype indentation, QStringView line)
    {
        const QStringView rest = line.sliced(line.size() > 1 && line[1] == u' ' ? 2 : 1);
        const qsizetype start = result.size();
        result.resize(start + 2 + indentation + 1 + rest.size());
        QChar *end = result.data() + start;
        *end++ = u'\r';
        *end++ = u'\n';
        end = std::fill_n(end, indentation, u' ');
        *end++ = u'<';
        std::copy(rest.begin(), rest.end(), end);
    }

    /// Deeply nested tags have more indentation than fits into any text.
    constexpr qsizetype MostIndentation = 64'000'000;

    QString Indented(QStringView text, Pulse &pulse)
    {
        QString result;
        result.reserve(text.size() + text.size() / 2);
        qsizetype tag = text.indexOf(u'<');
        if (tag != 0) {
            result.append(text.first(tag < 0 ? text.size() : tag + 1));
            if (result.endsWith(u"> <"))
                result.remove(result.size() - 2, 1);
        }
        qsizetype level = 0;
        qsizetype indentation = 0;
        while (tag >= 0 && pulse.Step()) {
            const qsizetype next = text.indexOf(u'<', tag + 1);
            const QStringView line = text.sliced(tag, (next < 0 ? text.size() : next) - tag);
            const bool closes = line.size() > 1 && line[1] == u'/';
            if (closes)
                --level;
            if (level >= 0) {
                indentation += level;
                AppendLine(result, indentation <= MostIndentation ? level : 0, line);
            }
            if (!closes && RaisesLevel(text.sliced(tag)))
                ++level;
            tag = next;
        }
        return result;
    }

    bool Hierarchical(QString &text, Pulse &pulse)
    {
        if (!JoinLines(text, {.tabsAreBlanks = false, .reduced = ReducedInHierarchy}, pulse))
            return false;
        text = Indented(text, pulse);
        text.remove(0, 1);
        return pulse.Ask();
    }

    bool Compact(QString &text, Pulse &pulse)
    {
        return JoinLines(text, {.tabsAreBlanks = true, .reduced = ReducedInCompact}, pulse);
    }

    // Where tags touch, there is a break between each two: too many to append them one by one.
    QString WithTagsOnLines(QStringView text, Pulse &pulse)
    {
        const auto touch = [](QChar left, QChar right) { return left == u'>' && right == u'<'; };
        qsizetype breaks = 0;
        for (qsizetype i = 1; i < text.size(); ++i)
            breaks += touch(text[i - 1], text[i]);
        QString result(text.size() + 2 * breaks, Qt::Uninitialized);
        QChar *end = result.data();
        QChar last;
        for (const QChar unit : text) {
            if (touch(last, unit)) {
                if (!pulse.Step())
                    return {};
                *end++ = u'\r';
                *end++ = u'\n';
            }
            *end++ = unit;
            last = unit;
        }
        return result;
    }

    bool Simple(QString &text, Pulse &pulse)
    {
        if (!Compact(text, pulse))
            return false;
        text = WithTagsOnLines(text, pulse);
        return pulse.Ask();
    }

} // namespace

QString FormatMarkup(const QString &text, Format format, const GoOn &goOn)
{
    constexpr bool (*Formats[])(QString & text, Pulse & pulse) = {Hierarchical, Compact, Simple};
    Pulse pulse(goOn);
    QString result = text;
    return Formats[int(format)](result, pulse) ? result : text;
}

} // namespace brenix
