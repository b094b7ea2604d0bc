#include "checks/FindReplace.h"

#include "support/SourceView.h"

namespace brenix {

namespace {

    // A unit as it compares without regard to case; the other unit of its character tells what it
    // belongs to.
    char16_t Folded(QStringView text, qsizetype position)
    {
        const char16_t unit = text[position].unicode();
        if (unit < 0x80)
            return unit >= u'A' && unit <= u'Z' ? char16_t(unit | 0x20) : unit;
        if (!QChar::isSurrogate(unit))
            return QChar::toCaseFolded(unit);
        const char16_t other = QChar::isHighSurrogate(unit)
            ? (position + 1 < text.size() ? text[position + 1].unicode() : u'\0')
            : (position > 0 ? text[position - 1].unicode() : u'\0');
        if (QChar::isHighSurrogate(unit) && QChar::isLowSurrogate(other))
            return QChar::highSurrogate(QChar::toCaseFolded(QChar::surrogateToUcs4(unit, other)));
        if (QChar::isLowSurrogate(unit) && QChar::isHighSurrogate(other))
            return QChar::lowSurrogate(QChar::toCaseFolded(QChar::surrogateToUcs4(other, unit)));
        return unit;
    }

    /// Goes through a page unit by unit and never back, whatever the text repeats of itself.
    class Finder
    {
    public:
        Finder(QStringView page, QStringView text, GoOn goOn)
            : m_page(page)
            , m_pulse(std::move(goOn))
        {
            m_text.reserve(std::size_t(text.size()));
            for (qsizetype i = 0; i < text.size(); ++i)
                m_text.push_back(Folded(text, i));
            m_borders.resize(m_text.size());
            for (std::size_t i = 1; i < m_text.size(); ++i)
                m_borders[i] = Longer(m_borders[i - 1], m_text[i]);
        }

        /// The next occurrence; -1 when there is none, or the search was stopped.
        qsizetype Next()
        {
            while (!m_text.empty() && m_at < m_page.size()) {
                if (!m_pulse.Step()) {
                    m_isStopped = true;
                    return -1;
                }
                if (m_matched == m_text.size())
                    m_matched = m_borders.back();
                m_matched = Longer(m_matched, Folded(m_page, m_at++));
                if (m_matched == m_text.size())
                    return m_at - qsizetype(m_matched);
            }
            return -1;
        }
        /// The next occurrence begins behind the last one.
        void LeaveOccurrence() { m_matched = 0; }
        bool IsStopped() const { return m_isStopped; }

    private:
        // How many units of the text stand before the page's place once one unit more is read.
        std::size_t Longer(std::size_t matched, char16_t unit) const
        {
            while (matched > 0 && m_text[matched] != unit)
                matched = m_borders[matched - 1];
            return matched + (m_text[matched] == unit ? 1 : 0);
        }

        QStringView m_page;
        std::vector<char16_t> m_text;
        // For each beginning of the text, how much of its end is such a beginning again.
        std::vector<std::size_t> m_borders;
        qsizetype m_at = 0;
        std::size_t m_matched = 0;
        Pulse m_pulse;
        bool m_isStopped = false;
    };

    bool IsSelected(const SourceView &source, const QString &text)
    {
        return !text.isEmpty() && source.SelLength() == text.size()
            && source.SelText().compare(text, Qt::CaseInsensitive) == 0;
    }

    bool SearchFrom(SourceView &source, const QString &text, int start)
    {
        source.Search(text, start);
        return IsSelected(source, text);
    }

    int FirstPlace(const SourceView &source, bool fromTop)
    {
        return fromTop ? 0 : source.SelStart() + 1;
    }

} // namespace

bool Find(SourceView &source, const QString &text, bool fromTop)
{
    return SearchFrom(source, text, FirstPlace(source, fromTop) + source.SelLength());
}

bool FindNext(SourceView &source, const QString &text)
{
    if (source.SelLength() == text.size() && source.SelText() == text)
        source.SetSelStart(source.SelStart() + int(text.size()));
    return SearchFrom(source, text, source.SelStart() + source.SelLength());
}

bool ReplaceNext(SourceView &source, const QString &text, const QString &replacement, bool fromTop)
{
    if (!SearchFrom(source, text, FirstPlace(source, fromTop)))
        return false;
    source.AddUndo();
    source.SetSelText(replacement);
    source.AddUndo();
    return true;
}

void ReplaceAll(SourceView &source, const QString &text, const QString &replacement, GoOn goOn)
{
    source.AddUndo();
    const int caret = source.SelStart();
    const QString page = source.Text();
    const QString replaced = WithReplacements(page, text, replacement, std::move(goOn));
    if (replaced != page) {
        source.SetText(replaced);
        source.SetSelStart(caret);
    }
    source.AddUndo();
}

void LiveSearch(SourceView &source, const QString &text)
{
    const int start = source.SelStart();
    if (!source.Search(text, start + source.SelLength()))
        source.Search(text, start);
    else if (source.SelText() == text)
        source.Search(text, 0);
}

std::vector<int> Occurrences(QStringView page, QStringView text, GoOn goOn)
{
    std::vector<int> places;
    Finder finder(page, text, std::move(goOn));
    for (qsizetype place = finder.Next(); place >= 0; place = finder.Next())
        places.push_back(int(place));
    return places;
}

QString WithReplacements(const QString &page, QStringView text, QStringView replacement, GoOn goOn)
{
    QString result;
    qsizetype done = 0;
    Finder finder(page, text, std::move(goOn));
    for (qsizetype place = finder.Next(); place >= 0; place = finder.Next()) {
        result += QStringView(page).sliced(done, place - done);
        result += replacement;
        done = place + text.size();
        finder.LeaveOccurrence();
    }
    if (finder.IsStopped() || done == 0)
        return page;
    return result + QStringView(page).sliced(done).toString();
}

} // namespace brenix
