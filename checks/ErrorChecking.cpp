#include "checks/ErrorChecking.h"

#include "checks/NeedleScan.h"
#include "checks/TagBalance.h"
#include "checks/TagEnds.h"
#include "support/TextSearch.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    using Places = std::vector<qsizetype>;

    constexpr QStringView ForbiddenEndTags[] = {u"</br>", u"</!", u"</BGSOUND>", u"</FRAME>"};

    struct SingleTag
    {
        QStringView sought;
        QStringView name;
    };
    constexpr SingleTag SingleTags[] = {
        {u"<HTML>", u"<HTML>"},
        {u"<BODY", u"<BODY>"},
        {u"<NOFRAMES", u"<NOFRAMES>"},
    };

    struct Letter
    {
        char16_t letter;
        QStringView entity;
    };
    constexpr Letter Letters[] = {
        {u'å', u"&aring;"},
        {u'Å', u"&Aring;"},
        {u'ø', u"&oslash;"},
        {u'Ø', u"&Oslash;"},
    };

    // The place in a line of these rules, from 0 or 1 as the rule counts.
    QString Place(qsizetype place)
    {
        return QString::number(place) + u")   "_s;
    }

    // The first place behind `after`; -1 stands for no place, and is before all of them.
    qsizetype FirstBehind(const Places &places, qsizetype after)
    {
        const auto place = std::upper_bound(places.begin(), places.end(), after);
        return place == places.end() ? -1 : *place;
    }

    /// One run over a page: the rules in their order, as far as nobody stops it.
    class SearchRules
    {
    public:
        SearchRules(QStringView text,
                    const QStringList &catalogue,
                    const GoOn &goOn,
                    CheckReport &report)
            : m_text(text)
            , m_report(report)
            , m_pulse(goOn)
            , m_balance(catalogue, m_scan)
        {
            for (const QStringView tag : ForbiddenEndTags)
                m_forbidden.push_back(m_scan.Add(tag));
            for (const SingleTag &tag : SingleTags)
                m_single.push_back(m_scan.Add(tag.sought));
        }

        /// False when it was stopped.
        bool Run()
        {
            using Rule = void (SearchRules::*)();
            static constexpr Rule rules[] = {
                &SearchRules::Balance,
                &SearchRules::QuotationMarks,
                &SearchRules::ForbiddenTags,
                &SearchRules::TagsThatStandOnce,
                &SearchRules::Characters,
                &SearchRules::EmptyTags,
                &SearchRules::DocumentFrame,
                &SearchRules::NestedFonts,
                &SearchRules::Title,
                &SearchRules::ImagesWithoutAlt,
                &SearchRules::SimilarTags,
            };
            m_going = m_pulse.Ask() && m_scan.Run(m_text, m_pulse);
            for (const Rule rule : rules) {
                if (m_going)
                    (this->*rule)();
            }
            return m_going;
        }

    private:
        /// To be asked in each round of a loop that a page can make long.
        bool Going()
        {
            m_going = m_going && m_pulse.Step();
            return m_going;
        }

        void ReportError(const QString &line)
        {
            m_report.lines.append(line);
            CountFinding(m_report.errors);
        }
        void ReportWarning(const QString &line)
        {
            m_report.lines.append(line);
            CountFinding(m_report.warnings);
        }

        const Places &PlacesOf(int number) const { return m_scan.PlacesOf(number); }
        qsizetype EndBehind(qsizetype after) const { return m_text.indexOf(u'>', after + 1); }

        void Balance() { m_balance.Report(m_scan, m_report); }

        void QuotationMarks()
        {
            if (m_text.count(u'"') % 2 != 0)
                ReportError(u"Please check your quotemarks"_s);
        }

        void ForbiddenTags()
        {
            for (std::size_t i = 0; i < std::size(ForbiddenEndTags); ++i) {
                const QString message = u"No endtag allowed: %1. (Char "_s.arg(ForbiddenEndTags[i]);
                for (const qsizetype place : PlacesOf(m_forbidden[i])) {
                    if (!Going())
                        return;
                    ReportError(message + Place(place + 1));
                }
            }
        }

        void TagsThatStandOnce()
        {
            for (std::size_t i = 0; i < std::size(SingleTags); ++i) {
                const QString message
                    = u"Only one %1 tag allowed. (Char "_s.arg(SingleTags[i].name);
                const Places &places = PlacesOf(m_single[i]);
                for (std::size_t n = 1; n < places.size() && Going(); ++n)
                    ReportError(message + Place(places[n]));
            }
        }

        void Characters()
        {
            for (const Letter &letter : Letters) {
                const QString message = u"Unknown character! Use %1. (Char "_s.arg(letter.entity);
                qsizetype place = m_text.indexOf(letter.letter);
                for (; place >= 0 && Going(); place = m_text.indexOf(letter.letter, place + 1))
                    ReportWarning(message + Place(place));
            }
        }

        void EmptyTags()
        {
            for (const qsizetype place : PlacesOf(m_empty)) {
                if (!Going())
                    return;
                ReportWarning(u"Empty tag? Please Check! (Char "_s + Place(place));
            }
        }

        void DocumentFrame()
        {
            if (PlacesOf(m_html).empty())
                ReportError(u"A HTML document must include the <HTML> tag"_s);
            if (PlacesOf(m_htmlEnd).empty())
                ReportError(u"The </HTML> tag is missing"_s);
        }

        // The tags are taken as the rule comes on them, which leaves out every second one that is
        // closed before the next. Where no ">" follows, the rule goes on at the page's start, with
        // the tags that it left out, until it comes on one that it has seen.
        void NestedFonts()
        {
            const Places &fonts = PlacesOf(m_font);
            std::vector<bool> seen(fonts.size());
            qsizetype after = -1;
            while (Going()) {
                const auto font = std::upper_bound(fonts.begin(), fonts.end(), after);
                if (font == fonts.end() || seen[std::size_t(font - fonts.begin())])
                    return;
                seen[std::size_t(font - fonts.begin())] = true;
                const qsizetype end = EndBehind(*font);
                after = FirstBehind(fonts, end);
                if (FirstBehind(PlacesOf(m_fontEnd), end) < after)
                    continue;
                if (end < 0 || after < 0)
                    return;
                m_report.caretMoves.push_back({*font, true});
                m_report.lines.append(u"Combinable Nested tag:<FONT>:%1\r\n"_s.arg(*font + 1));
            }
        }

        void Title()
        {
            const qsizetype start = FirstBehind(PlacesOf(m_title), -1);
            m_after = FirstBehind(PlacesOf(m_titleEnd), -1);
            if (start >= 0 && m_after >= start)
                return;
            m_report.lines.append(u"Improper or missing tag: <TITLE> (Char:%1)"_s.arg(start + 1));
            m_report.caretMoves.push_back({start, true});
        }

        void ImagesWithoutAlt()
        {
            const TextSearch alt(u" alt=");
            while (Going()) {
                const qsizetype start = FirstBehind(PlacesOf(m_image), m_after);
                m_after = EndBehind(start) + 1;
                if (start < 0 || m_after == 0)
                    return;
                if (alt.StandsIn(m_text.sliced(start, m_after - start)))
                    continue;
                m_report.caretMoves.push_back({start, false});
                m_report.lines.append(u"Missing alt attribute: <IMG> (Char %1)"_s.arg(start + 1));
            }
        }

        void SimilarTags()
        {
            const auto places = FindTags(m_text, m_after, m_pulse);
            m_going = places.has_value();
            for (std::size_t i = 0; Going() && i < places->size(); ++i) {
                const TagPlace &place = (*places)[i];
                const QStringView tag = m_text.sliced(place.start, place.length);
                if (place.next < 0 || !StartsWithoutCase(m_text.sliced(place.next), tag))
                    continue;
                m_report.lines.append(u"Similar Immediate Tag "_s + UpperCased(tag) + u" (Char "_s
                                      + QString::number(place.start + 1) + u')');
            }
        }

        QStringView m_text;
        CheckReport &m_report;
        Pulse m_pulse;
        bool m_going = true;
        /// Where a rule stopped and the next one goes on; -1 for the start of the page.
        qsizetype m_after = -1;

        NeedleScan m_scan;
        TagBalance m_balance;
        std::vector<int> m_forbidden;
        std::vector<int> m_single;
        int m_empty = m_scan.Add(u"<>");
        int m_html = m_scan.Add(u"<html>");
        int m_htmlEnd = m_scan.Add(u"</html>");
        int m_font = m_scan.Add(u"<font");
        int m_fontEnd = m_scan.Add(u"</font>");
        int m_title = m_scan.Add(u"<title>");
        int m_titleEnd = m_scan.Add(u"</title>");
        int m_image = m_scan.Add(u"<img");
    };

} // namespace

CheckReport ErrorChecking(QStringView text, const QStringList &catalogue, const GoOn &goOn)
{
    CheckReport report;
    report.lines = {u"Checking document for errors"_s, QString(28, u'-'), u" "_s};
    const qsizetype heading = report.lines.size();
    const bool isWhole = SearchRules(text, catalogue, goOn, report).Run();
    report.findings = report.lines.size() - heading;
    if (!isWhole)
        return report;
    report.lines.append({u" "_s,
                         QString(20, u'-'),
                         u"Totally %1 errors"_s.arg(report.errors),
                         u"Totally %1 warnings"_s.arg(report.warnings)});
    return report;
}

} // namespace brenix
