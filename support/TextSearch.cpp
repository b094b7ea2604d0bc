#include "support/TextSearch.h"

#include <algorithm>

namespace brenix {

namespace {

    // Of the letters below U+0080, "k" alone has a second capital (the kelvin sign).
    bool HasTwoForms(QChar folded)
    {
        return folded.unicode() < 0x80 && folded != u'k';
    }

    bool SameFolded(QChar left, QChar right)
    {
        return FoldUnit(left) == FoldUnit(right);
    }

} // namespace

QString LowerCased(QStringView text)
{
    QString lower(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), lower.begin(), FoldUnit);
    return lower;
}

QString UpperCased(QStringView text)
{
    QString upper(text.size(), Qt::Uninitialized);
    std::transform(
        text.begin(), text.end(), upper.begin(), [](QChar unit) { return unit.toUpper(); });
    return upper;
}

bool EqualWithoutCase(QStringView left, QStringView right)
{
    return left.size() == right.size()
        && std::equal(left.begin(), left.end(), right.begin(), SameFolded);
}

bool StartsWithoutCase(QStringView text, QStringView start)
{
    return text.size() >= start.size() && EqualWithoutCase(text.first(start.size()), start);
}

TextSearch::TextSearch(QStringView sought, Qt::CaseSensitivity sensitivity)
    : m_sought(sensitivity == Qt::CaseInsensitive ? LowerCased(sought) : sought.toString())
    , m_sensitivity(sensitivity)
{
    if (m_sought.isEmpty())
        return;
    m_lower = m_sought.front();
    m_upper = sensitivity == Qt::CaseInsensitive ? m_lower.toUpper() : m_lower;
    m_jumps = sensitivity == Qt::CaseSensitive || HasTwoForms(m_lower);
    m_shorter.assign(std::size_t(m_sought.size()) + 1, 0);
    qsizetype fits = 0;
    for (qsizetype i = 1; i < m_sought.size(); ++i) {
        while (fits > 0 && m_sought[fits] != m_sought[i])
            fits = m_shorter[std::size_t(fits)];
        if (m_sought[fits] == m_sought[i])
            ++fits;
        m_shorter[std::size_t(i) + 1] = fits;
    }
}

// Looks for both forms in one short piece after the other: a form that is rare would else be sought
// to the text's end from every place of the other.
qsizetype TextSearch::NextStart(QStringView text, qsizetype from) const
{
    constexpr qsizetype Piece = 256;
    for (; from < text.size(); from += Piece) {
        QStringView piece = text.sliced(from, std::min(Piece, text.size() - from));
        const qsizetype lower = piece.indexOf(m_lower);
        if (lower >= 0)
            piece = piece.first(lower);
        const qsizetype upper = m_upper == m_lower ? -1 : piece.indexOf(m_upper);
        if (upper >= 0 || lower >= 0)
            return from + (upper >= 0 ? upper : lower);
    }
    return text.size();
}

qsizetype TextSearch::FindIn(QStringView text, qsizetype from) const
{
    if (from < 0 || text.size() - from < m_sought.size())
        return -1;
    Progress progress{.at = from};
    return FindNextIn(text, progress);
}

qsizetype TextSearch::FindNextIn(QStringView text, Progress &progress) const
{
    auto &[at, fits] = progress;
    if (m_sought.isEmpty())
        at = text.size();
    while (at < text.size()) {
        if (fits == 0 && m_jumps) {
            at = NextStart(text, at);
            if (at == text.size())
                break;
        }
        const QChar unit = Fold(text[at++]);
        while (fits > 0 && m_sought[fits] != unit)
            fits = m_shorter[std::size_t(fits)];
        if (m_sought[fits] == unit)
            ++fits;
        if (fits == m_sought.size()) {
            fits = m_shorter[std::size_t(fits)];
            return at - m_sought.size();
        }
    }
    return -1;
}

qsizetype FindWithoutCase(QStringView text, QStringView sought, qsizetype from)
{
    return TextSearch(sought).FindIn(text, from);
}

QString ReplaceAll(QStringView text, const TextSearch &sought, QStringView replacement)
{
    QString result;
    qsizetype copied = 0;
    for (qsizetype at = sought.FindIn(text); at >= 0; at = sought.FindIn(text, copied)) {
        result.append(text.sliced(copied, at - copied)).append(replacement);
        copied = at + sought.Length();
    }
    return result.append(text.sliced(copied));
}

} // namespace brenix
