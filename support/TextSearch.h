#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace brenix {

/// The unit that stands for `unit` when case does not count: its lower-case partner, "ä" for "Ä",
/// and else itself. Goes unit by unit, so that no text changes its length, and knows no language:
/// "ß" and "ss" differ, and so do the dotted and the plain "I".
inline QChar FoldUnit(QChar unit)
{
    const char16_t code = unit.unicode();
    if (code < 0x80)
        return code >= u'A' && code <= u'Z' ? QChar(char16_t(code + (u'a' - u'A'))) : unit;
    return unit.toLower();
}

/// Texts in lower and upper case, unit by unit, of the same length as before.
QString LowerCased(QStringView text);
QString UpperCased(QStringView text);

/// Equality where case does not count, as `FoldUnit` has it.
bool EqualWithoutCase(QStringView left, QStringView right);
bool StartsWithoutCase(QStringView text, QStringView start);

/// Finds one text in others, again and again; positions in UTF-16 units from 0. A search is linear
/// in the length of what is searched, whatever both hold, and jumps to where the first unit of what
/// is sought stands.
class TextSearch
{
public:
    /// An empty `sought` is found nowhere.
    explicit TextSearch(QStringView sought, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);

    qsizetype Length() const { return m_sought.size(); }
    /// The first place at or behind `from` where it stands; -1 when there is none, also for a
    /// `from` outside the text. Places may overlap: the next one is sought from one past the last
    /// place, or from `Length()` past it where they must not.
    qsizetype FindIn(QStringView text, qsizetype from = 0) const;
    bool StandsIn(QStringView text) const { return FindIn(text) >= 0; }

    /// How far a search has come that goes on where it was.
    struct Progress
    {
        qsizetype at = 0; ///< what stands before it has been read
        qsizetype fits = 0; ///< how much of its end may begin a place; 0 lets none reach back
    };
    /// The next place, from a `Progress()` on each in turn, those that overlap included, in one
    /// pass over all; -1 when there is none up to the end of the text. The text may then be one
    /// that begins with this one and is longer.
    qsizetype FindNextIn(QStringView text, Progress &progress) const;

private:
    QChar Fold(QChar unit) const
    {
        return m_sensitivity == Qt::CaseInsensitive ? FoldUnit(unit) : unit;
    }
    qsizetype NextStart(QStringView text, qsizetype from) const;

    QString m_sought; // folded
    Qt::CaseSensitivity m_sensitivity;
    // Both forms of the first unit; where there may be more than two, none.
    QChar m_lower;
    QChar m_upper;
    bool m_jumps = false;
    // For each length of a beginning that fits: that of the next shorter one that fits as well.
    std::vector<qsizetype> m_shorter;
};

/// One search, as `TextSearch` finds; -1 when there is none.
qsizetype FindWithoutCase(QStringView text, QStringView sought, qsizetype from = 0);

/// `text` with all places of `sought`, found from left to right and not overlapping, replaced by
/// `replacement`; what was put in is not searched.
QString ReplaceAll(QStringView text, const TextSearch &sought, QStringView replacement);

} // namespace brenix
