#include "checks/TagBalance.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A short name gets what ends it, so that "<B" is not found in "<BODY".
    QString Widened(const QString &open)
    {
        if (open == u"<A")
            return u"<A "_s;
        const bool isShort = open == u"<B" || open == u"<Q" || open == u"<S" || open == u"<I";
        return isShort ? open + u'>' : open;
    }

    QString Line(std::size_t count, const QString &more, const QString &less)
    {
        return u"There are %1 more "_s.arg(count) + more + u" than "_s + less;
    }

} // namespace

TagBalance::TagBalance(const QStringList &catalogue, NeedleScan &scan)
{
    for (const QString &row : catalogue) {
        const qsizetype end = row.indexOf(u'>');
        if (end < 0 || end + 1 == row.size())
            continue;
        QString open = row.first(end);
        const QString close = row.sliced(end + 1);
        if (open == u"<P")
            continue;
        const int openNumber = scan.Add(Widened(open));
        if (open.endsWith(u' '))
            open.chop(1);
        m_pairs.push_back({open + u'>', close, openNumber, scan.Add(close)});
    }
}

void TagBalance::Report(const NeedleScan &scan, CheckReport &report) const
{
    for (const Pair &pair : m_pairs) {
        const std::size_t opened = scan.PlacesOf(pair.openNumber).size();
        const std::size_t closed = scan.PlacesOf(pair.closeNumber).size();
        if (opened == closed)
            continue;
        report.lines.append(opened > closed ? Line(opened - closed, pair.open, pair.close)
                                            : Line(closed - opened, pair.close, pair.open));
        CountFinding(report.errors);
    }
}

} // namespace brenix
