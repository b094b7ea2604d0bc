#include "checks/Compressor.h"

#include "checks/InPlace.h"
#include "checks/Pulse.h"
#include "support/TextSearch.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace brenix {

namespace {

    struct Simpler
    {
        QStringView find;
        QStringView with;
    };
    constexpr Simpler SimplerTags[] = {
        {u"<strong", u"<b"},
        {u"</strong>", u"</b>"},
        {u"<em", u"<i"},
        {u"<strike", u"<s"},
        {u"</strike", u"</s"},
        {u"</em>", u"</i>"},
    };

    // In the order in which they go: what is left of one may be joined to another.
    constexpr QStringView UnusedTags[] = {
        u"<b></b>",
        u"<i></i>",
        u"<blockquote></blockquote>",
        u"<u></u>",
        u"<ol></ol>",
        u"<p></p>",
        u"<pre></pre>",
        u"<html></html>",
        u"<title></title>",
        u"<s></s>",
        u"<strike></strike>",
        u"<nobr></nobr>",
    };
    constexpr QStringView UnnecessaryTags[] = {
        u"</base>",
        u"</br>",
        u"</img>",
    };

    /// How often the passes over the blanks run.
    constexpr int Rounds = 3;

    qsizetype Halved(qsizetype blanks)
    {
        return (blanks + 1) / 2;
    }

    /// The blanks between two other characters.
    struct Blanks
    {
        qsizetype count;
        char16_t left;
        char16_t right;
        int endTagFrom = Rounds; ///< the round from which "</" stands before them
        int goneIn = Rounds; ///< the round that removed the last of them

        void Reduce()
        {
            const int besideTags
                = (left == u'<') + (left == u'>') + (right == u'<') + (right == u'>');
            for (int round = 0; round < Rounds; ++round) {
                const qsizetype removed = besideTags + (round >= endTagFrom);
                count = std::max(qsizetype(0), Halved(count) - removed);
                if (count == 0)
                    goneIn = std::min(goneIn, round);
            }
        }
    };

    class Compressor
    {
    public:
        Compressor(const QString &text, const CompressProgress &progress)
            : m_text(text)
            , m_length(text.size())
            , m_pulse([this, &progress] { return !progress || progress(m_length); })
        {
        }

        QString Text() const { return m_text; }

        // Each gives false when it was stopped.
        bool ReplaceSigns(bool lineBreaks, bool simplify);
        bool ReduceBlanks();
        bool HalveBlanks();
        bool Delete(const std::vector<QStringView> &markups);

    private:
        struct Span
        {
            qsizetype start;
            qsizetype end;
        };

        std::vector<Span> Surroundings(const std::vector<QStringView> &markups);
        bool Delete(QString &text, QStringView markup);
        bool Step(const InPlace &page)
        {
            m_length = page.Length();
            return m_pulse.Step();
        }
        bool Finish(InPlace &page)
        {
            page.Finish();
            m_length = m_text.size();
            return m_pulse.Ask();
        }

        QString m_text;
        qsizetype m_length;
        Pulse m_pulse;
    };

    // Most tags differ in their second character.
    bool Begins(QStringView rest, QStringView markup)
    {
        return rest.size() >= markup.size() && FoldUnit(rest[1]) == markup[1]
            && StartsWithoutCase(rest, markup);
    }

    void ReplaceTag(InPlace &page)
    {
        const QStringView rest = page.Rest();
        const auto simpler
            = std::find_if(std::begin(SimplerTags), std::end(SimplerTags), [&](const Simpler &tag) {
                  return Begins(rest, tag.find);
              });
        if (simpler == std::end(SimplerTags))
            return page.Keep();
        page.Skip(simpler->find.size());
        page.Put(simpler->with);
    }

    bool Compressor::ReplaceSigns(bool lineBreaks, bool simplify)
    {
        InPlace page(m_text);
        while (!page.AtEnd()) {
            const char16_t unit = page.Next();
            if (unit == u'\t') {
                page.Skip(1);
                page.Put(u' ');
            } else if (lineBreaks && (unit == u'\r' || unit == u'\n')) {
                page.Skip(page.Rest().startsWith(u"\r\n") ? 2 : 1);
                page.Put(u' ');
            } else if (simplify && unit == u'<') {
                if (!Step(page))
                    return false;
                ReplaceTag(page);
            } else {
                page.Keep();
            }
        }
        return Finish(page);
    }

    bool Compressor::ReduceBlanks()
    {
        InPlace page(m_text);
        // Where a "/" came to stand behind a "<" with blanks between, and the round that did it.
        qsizetype joinedAt = -1;
        int joinedIn = 0;
        while (!page.AtEnd()) {
            if (page.Next() != u' ') {
                page.Keep();
                continue;
            }
            if (!Step(page))
                return false;
            Blanks blanks{.count = page.SkipRun(u' '), .left = page.Last(), .right = page.Next()};
            if (blanks.left == u'/' && page.Last(2) == u'<')
                blanks.endTagFrom = page.Written() - 1 == joinedAt ? joinedIn : 0;
            blanks.Reduce();
            page.Put(u' ', blanks.count);
            joinedAt = page.Written();
            joinedIn = blanks.goneIn;
        }
        return Finish(page);
    }

    bool Compressor::HalveBlanks()
    {
        InPlace page(m_text);
        while (!page.AtEnd()) {
            if (page.Next() != u' ') {
                page.Keep();
                continue;
            }
            if (!Step(page))
                return false;
            page.Put(u' ', Halved(page.SkipRun(u' ')));
        }
        return Finish(page);
    }

    // Most pages have few places where something is to be deleted. What a deletion joins may be
    // deleted in turn, but no deletion changes more than its own length round about. So the
    // deletions run, one after the other, over the surroundings of these places alone.
    bool Compressor::Delete(const std::vector<QStringView> &markups)
    {
        const std::vector<Span> spans = Surroundings(markups);
        InPlace page(m_text);
        qsizetype read = 0;
        for (const Span &span : spans) {
            page.Keep(span.start - read);
            QString piece = page.Rest().first(span.end - span.start).toString();
            for (const QStringView markup : markups) {
                if (!Delete(piece, markup))
                    return false;
            }
            page.Skip(span.end - span.start);
            page.Put(piece);
            read = span.end;
        }
        page.Keep(page.Rest().size());
        return Finish(page);
    }

    std::vector<Compressor::Span> Compressor::Surroundings(const std::vector<QStringView> &markups)
    {
        const qsizetype reach = std::accumulate(
            markups.begin(), markups.end(), qsizetype(0), [](qsizetype sum, QStringView markup) {
                return sum + markup.size();
            });
        std::vector<Span> spans;
        const QStringView text(m_text);
        for (qsizetype tag = text.indexOf(u'<'); tag >= 0 && m_pulse.Step();
             tag = text.indexOf(u'<', tag + 1)) {
            const QStringView rest = text.sliced(tag);
            if (std::none_of(markups.begin(), markups.end(), [rest](QStringView markup) {
                    return Begins(rest, markup);
                }))
                continue;
            const Span span{std::max(qsizetype(0), tag - reach),
                            std::min(text.size(), tag + 2 * reach)};
            if (spans.empty() || spans.back().end < span.start)
                spans.push_back(span);
            else
                spans.back().end = span.end;
        }
        return spans;
    }

    bool Compressor::Delete(QString &text, QStringView markup)
    {
        InPlace piece(text);
        for (qsizetype tag = piece.Rest().indexOf(u'<'); tag >= 0;
             tag = piece.Rest().indexOf(u'<')) {
            if (!m_pulse.Step())
                return false;
            piece.Keep(tag);
            if (Begins(piece.Rest(), markup))
                piece.Skip(markup.size());
            else
                piece.Keep();
        }
        piece.Keep(piece.Rest().size());
        piece.Finish();
        return true;
    }

} // namespace

QString Compress(const QString &text,
                 const CompressOptions &options,
                 const CompressProgress &progress)
{
    Compressor work(text, progress);
    const bool done = work.ReplaceSigns(options.lineBreaks, options.simplify)
        && (!options.spaces || work.ReduceBlanks())
        && (!options.unused || work.Delete({std::begin(UnusedTags), std::end(UnusedTags)}))
        && (!options.unnecessary
            || work.Delete({std::begin(UnnecessaryTags), std::end(UnnecessaryTags)}))
        && (!options.spaces || work.HalveBlanks());
    return done ? work.Text() : text;
}

std::optional<int> SizePercent(qsizetype length, qsizetype originalLength)
{
    if (originalLength == 0)
        return std::nullopt;
    // In its default mode, nearbyint has halves go to the even number.
    return int(std::nearbyint(100.0 * double(length) / double(originalLength)));
}

} // namespace brenix
