#include "checks/TagEnds.h"

#include "support/TextSearch.h"

#include <cstdint>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct EndTag
    {
        qsizetype start;
        qsizetype next; // the first "<" behind its own; -1 when there is none
    };

    /// Goes from the end of a text to its start and knows the nearest end tag for each tag. An end
    /// tag is known by a number made of what stands from its name to its ">", one unit after the
    /// other from the right, so that texts full of "</" cost no more than others.
    class EndTagSearch
    {
    public:
        explicit EndTagSearch(QStringView text)
            : m_text(text)
            , m_first(text.indexOf(u'<'))
        {
        }

        void StepTo(qsizetype at)
        {
            const QChar unit = m_text[at];
            if (unit == u'<')
                m_next = at;
            else if (unit == u'/' && m_inTag && at > 0 && m_text[at - 1] == u'<')
                m_ends.insert_or_assign(m_number, EndTag{at - 1, m_next});
            if (unit == u'>') {
                m_inTag = true;
                m_number = 0;
            }
            // Odd, with its ones well spread; the shift brings the upper half down to the lower.
            constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15;
            m_number = (m_number ^ FoldUnit(unit).unicode()) * Spread;
            m_number ^= m_number >> 32;
        }

        /// To be asked when the step before went to the character behind the tag's "<".
        qsizetype NextBehindEndTag(const TagPlace &tag) const
        {
            const auto found = m_ends.find(m_number);
            if (found == m_ends.end())
                return m_first;
            const QStringView name = m_text.sliced(tag.start + 1, tag.length - 1);
            const EndTag &end = found->second;
            if (EqualWithoutCase(m_text.sliced(end.start + 2, name.size()), name))
                return end.next;
            return SearchNext(tag.start + tag.length, name);
        }

    private:
        // Two texts got the same number, which does not happen by chance.
        qsizetype SearchNext(qsizetype from, QStringView name) const
        {
            const QString sought = u"</%1"_s.arg(name);
            const qsizetype end = FindWithoutCase(m_text, sought, from);
            return end < 0 ? m_first : m_text.indexOf(u'<', end + 1);
        }

        QStringView m_text;
        qsizetype m_first;
        qsizetype m_next = -1;
        bool m_inTag = false; // a ">" stands further right
        std::uint64_t m_number = 0;
        std::unordered_map<std::uint64_t, EndTag> m_ends;
    };

} // namespace

std::optional<std::vector<TagPlace>> FindTags(QStringView text, qsizetype after, Pulse &pulse)
{
    std::vector<TagPlace> tags;
    while (true) {
        const qsizetype start = text.indexOf(u'<', after + 1);
        after = start < 0 ? -1 : text.indexOf(u'>', start + 1);
        if (after < 0)
            break;
        tags.push_back({start, after + 1 - start});
        if (!pulse.Step())
            return std::nullopt;
    }
    EndTagSearch search(text);
    qsizetype at = text.size();
    for (auto tag = tags.rbegin(); tag != tags.rend(); ++tag) {
        while (at > tag->start + 1) {
            search.StepTo(--at);
            if (!pulse.Step())
                return std::nullopt;
        }
        tag->next = search.NextBehindEndTag(*tag);
    }
    return tags;
}

} // namespace brenix
