#include "checks/FindReplace.h"

#include "support/SourceView.h"
#include "support/TextSearch.h"

#include <algorithm>

namespace brenix {

namespace {

    /// Goes through a page a piece at a time, so that events run also where nothing is found.
    class Finder
    {
    public:
        Finder(QStringView page, QStringView text, GoOn goOn)
            : m_page(page)
            , m_sought(text)
            , m_pulse(std::move(goOn))
        {
        }

        /// The next occurrence; -1 when there is none, or the search was stopped.
        qsizetype Next()
        {
            constexpr qsizetype piece = 1 << 20;
            while (m_pulse.Step() && m_progress.at < m_page.size()) {
                const qsizetype end = std::min(m_progress.at + piece, m_page.size());
                const qsizetype place = m_sought.FindNextIn(m_page.first(end), m_progress);
                if (place >= 0)
                    return place;
                m_pulse.LongStep();
            }
            return -1;
        }
        /// The next occurrence begins behind the last one.
        void LeaveOccurrence() { m_progress.fits = 0; }
        bool IsStopped() const { return m_pulse.Stopped(); }

    private:
        QStringView m_page;
        TextSearch m_sought;
        TextSearch::Progress m_progress;
        Pulse m_pulse;
    };

    bool IsSelected(const SourceView &source, const QString &text)
    {
        return !text.isEmpty() && source.SelLength() == text.size()
            && EqualWithoutCase(source.SelText(), text);
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
