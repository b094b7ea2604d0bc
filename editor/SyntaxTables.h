#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <array>
#include <vector>

namespace brenix {

enum class WordClass {
    Keyword = 1,
    Operator = 2,
    Function = 3,
    BlockMark = 4, ///< not a word: the text begins and ends a block
};

/// What the colouring scan knows of the language in use: words, block rules, and the fifteen
/// delimiters that all languages share. A table changes only through the functions below; each of
/// them also renews the look-ups.
class SyntaxTables
{
public:
    enum Language { None, Basic, Java, Html, Tidy };

    SyntaxTables();

    /// Loads the words and rules of a language. False, and nothing is changed, when it is the
    /// current one. A number of 5 or more is kept, but leaves words and rules as they were; the
    /// Tidy set is added to the rules there are.
    bool SetLanguage(int language);
    int CurrentLanguage() const { return m_language; }

    void AddWord(const QString &word, WordClass wordClass);
    /// A block runs from `start` to the first `end` behind it.
    void AddCommentTag(const QString &start, const QString &end);

    /// Whether a found word is written as the table spells it: Basic asks for it, and the user may
    /// want no word corrected.
    bool NormalisesCase() const { return m_normaliseCase && m_giveCorrectCase; }
    void SetGiveCorrectCase(bool on) { m_giveCorrectCase = on; }

    struct Word
    {
        QString text;
        WordClass wordClass;
    };
    const Word &WordAt(int index) const { return m_words[std::size_t(index)]; }
    bool HasWords() const { return !m_words.empty(); }
    /// The first entry that equals `word` (without regard to case where the language has none); -1
    /// when there is none.
    int FindWord(QStringView word) const;

    struct BlockRule
    {
        QString start;
        QString end;
        // Earlier rules whose end could stand where this one's does; a rule that is always beaten
        // never ends.
        std::vector<int> rivals{};
        bool neverEnds = false;
    };
    const BlockRule &RuleAt(int index) const { return m_rules[std::size_t(index)]; }
    /// The first rule that begins at `position` (from 0), -1 when none does.
    int FindBlockStart(QStringView text, qsizetype position) const
    {
        const char16_t unit = text[position].unicode();
        const int only = unit < m_ruleOfUnit.size() ? m_ruleOfUnit[unit] : SeveralRules;
        return only != SeveralRules ? only : FindBlockStartByText(text, position);
    }
    /// Where the end of rule `rule` stands, at or behind `from`, and no earlier rule's end stands
    /// at the same place; -1 when nowhere.
    qsizetype FindBlockEnd(QStringView text, qsizetype from, int rule) const;
    /// Whether a line end closes the rule.
    bool ClosesAtLineEnd(int rule) const;

    /// The delimiter at `position`, -1 when there is none. No two delimiters begin alike.
    static int FindDelimiter(QStringView text, qsizetype position)
    {
        const char16_t unit = text[position].unicode();
        const int index = unit < DelimiterOfUnit.size() ? DelimiterOfUnit[unit] : -1;
        const bool cutLineEnd = index == LineEndIndex
            && (position + 1 == text.size() || text[position + 1].unicode() != u'\n');
        return cutLineEnd ? -1 : index;
    }
    static QStringView DelimiterAt(int index) { return Delimiters[std::size_t(index)]; }

    /// Blank, line end and tab take no colour.
    static bool ShowsColour(int delimiter) { return delimiter > LastPlainIndex; }

    /// False when neither a delimiter nor a block can begin with this unit: the scan passes over
    /// it.
    bool MayBegin(char16_t unit) const
    {
        return unit < m_mayBegin.size() ? m_mayBegin[unit] : m_highMayBegin;
    }
    /// The same for a scan that takes no interest in words, and so none in blanks, line ends and
    /// tabs.
    bool MayShow(char16_t unit) const
    {
        return unit < m_mayShow.size() ? m_mayShow[unit] : m_highMayBegin;
    }

private:
    static constexpr std::array<QStringView, 15> Delimiters{
        u" ",
        u"\r\n",
        u"\t",
        u"(",
        u")",
        u"=",
        u"+",
        u"-",
        u"*",
        u">",
        u"<",
        u"\\",
        u"/",
        u"{",
        u"}",
    };
    static constexpr int LineEndIndex = 1;
    static constexpr int LastPlainIndex = 2; // blank, line end and tab show no colour
    static constexpr qint8 SeveralRules = -2; // more than its first unit must be looked at
    static constexpr std::array<qint8, 128> DelimiterOfUnit = [] {
        std::array<qint8, 128> indexes{};
        indexes.fill(-1);
        for (std::size_t i = 0; i < Delimiters.size(); ++i)
            indexes[Delimiters[i].front().unicode()] = qint8(i);
        return indexes;
    }();

    void Clear();
    void LoadBasicWords();
    void LoadJavaWords();
    void LoadTidyWords();
    template <std::size_t Count> void AddWords(const char16_t *const (&words)[Count], WordClass);
    void RenewLookUps();
    void RenewFirstUnits();
    int FindBlockStartByText(QStringView text, qsizetype position) const;

    std::vector<Word> m_words;
    QHash<QString, int> m_wordKeys; // lower-cased where the language ignores case
    std::vector<BlockRule> m_rules;
    std::array<bool, 128> m_mayBegin{};
    std::array<bool, 128> m_mayShow{};
    std::array<qint8, 128> m_ruleOfUnit{};
    bool m_highMayBegin = false;
    int m_language = None;
    bool m_ignoreCase = false;
    bool m_normaliseCase = false;
    bool m_giveCorrectCase = true;
};

} // namespace brenix
