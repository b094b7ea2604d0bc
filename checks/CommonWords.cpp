#include "checks/CommonWords.h"

#include "checks/WordHash.h"

#include <unordered_map>
#include <vector>

namespace brenix {

namespace {

    // clang-format off
    constexpr QStringView Common[] = {
        u"the", u"any", u"spend", u"having", u"have", u"spending", u"begin", u"yourself", u"low",
        u"play", u"plays", u"player", u"playing", u"begun", u"would", u"say", u"says", u"even",
        u"late", u"latest", u"therefore", u"oh", u"yep", u"yes", u"very", u"well", u"using", u"on",
        u"will", u"every", u"evereyear", u"whereas", u"two", u"one", u"three", u"four", u"five",
        u"six", u"seven", u"over", u"under", u"between", u"put", u"push", u"pull", u"thought",
        u"below", u"eight", u"nine", u"a", u"out", u"it's", u"m", u"i", u"who", u"whom", u"but",
        u"l", u"b", u"c", u"d", u"e", u"f", u"g", u"h", u"j", u"k", u"n", u"o", u"p", u"q", u"r",
        u"s", u"t", u"u", u"v", u"w", u"x", u"y", u"z", u"æ", u"ø", u"å", u"in", u"an", u"or",
        u"until", u"used", u"up", u"we've", u"made", u"yours", u"last", u"month", u"july",
        u"february", u"mars", u"april", u"december", u"october", u"august", u"november", u"january",
        u"june", u"down", u"create", u"created", u"by", u"us", u"them", u"won't", u"we", u"are",
        u"what", u"you", u"it", u"if", u"thats", u"that's", u"all", u"goto", u"after", u"built",
        u"changes", u"completion", u"complete", u"contributed", u"decided", u"decide", u"donation",
        u"donate", u"donates", u"enjoy", u"full", u"grab", u"just", u"keep", u"may", u"now",
        u"only", u"thank", u"truly", u"while", u"i'm", u"get", u"to", u"too", u"so", u"think",
        u"can", u"how", u"where", u"they'll", u"i've", u"welcome", u"$", u"£", u"@", u"paragraph",
        u"§", u"|", u"~", u"à", u"è", u"ä", u"ã", u"â", u"also", u"write", u"written", u"wrote",
        u"doesnt", u"wont", u"gotten", u"computer", u"computers", u"search-engine",
        u"search engine", u"search engines", u"search", u"searching", u"year", u"years", u"months",
        u"tuesday", u"monday", u"saturday", u"much", u"nothing", u"sending", u"sent", u"unlike",
        u"similar", u"user", u"users", u"yeah", u"good", u"start", u"they've", u"let", u"me",
        u"into", u"great", u"take", u"takes", u"greatest", u"really", u"best", u"there", u"is",
        u"wonder", u"i'd", u"be", u"not", u"none", u"been", u"bin", u"ago", u"her", u"him", u"tell",
        u"true", u"false", u"big", u"small", u"sizable", u"most", u"she", u"he", u"min", u"minimum",
        u"max", u"maximum", u"about", u"believe", u"being", u"does", u"don't", u"cannot", u"what's",
        u"when", u"were", u"their", u"they", u"other", u"my", u"must", u"whole", u"went", u"these",
        u"that", u"both", u"some", u"since", u"add", u"site", u"and", u"at", u"click", u"has",
        u"many", u"new", u"as", u"forward", u"previous", u"back", u"next", u"go", u"here", u"want",
        u"why", u"without", u"with", u"from", u"our", u"let's", u"more", u"than", u"then", u"did",
        u"lets", u"lot", u"send", u"grow", u"show", u"shows", u"try", u"tried", u"wait", u"waiting",
        u"everywhere", u"ever", u"ending", u"end", u"never", u"for", u"need", u"test", u"before",
        u"make", u"no", u"select", u"shit", u"jeg", u"er", u"en", u"liten", u"your", u"use",
        u"usefull", u"rather", u"lots", u"name", u"copyright", u"of", u"course", u"off", u"was",
        u"www", u"com", u"http", u"htm", u"this", u"do", u"please", u"hey", u"hi", u"should",
    };
    // clang-format on

    constexpr int WordsPerHalving = 16;

    /// An entry of the list: one word or two.
    struct CommonWord
    {
        int first; ///< its number in `CommonWords::numbers`
        QStringView second;
    };

    struct CommonWords
    {
        std::vector<CommonWord> list;
        std::unordered_map<QStringView, int, WordHash>
            numbers; ///< of the first words of all entries

        CommonWords()
        {
            for (const QStringView entry : Common) {
                const qsizetype blank = entry.indexOf(u' ');
                const QStringView first = blank < 0 ? entry : entry.first(blank);
                const QStringView second = blank < 0 ? QStringView() : entry.sliced(blank + 1);
                const auto number = numbers.try_emplace(first, int(numbers.size())).first;
                list.push_back({number->second, second});
            }
        }
    };

    const CommonWords &TheCommonWords()
    {
        static const CommonWords words;
        return words;
    }

    /// The words of a text as a chain, each with the number of blanks before it. An empty word
    /// stands at either end.
    class WordChain
    {
    public:
        WordChain(QStringView text, Pulse &pulse);

        void TakeOut(const CommonWord &common);
        /// Two blanks become one, everywhere. The blanks themselves are counted anew only where a
        /// word is taken out, and in the end.
        void HalveBlanks() { ++m_halvings; }
        QString Text() const;

    private:
        struct Word
        {
            QStringView text;
            qsizetype blanks; ///< at the time of the halving number `halvings`
            int halvings = 0;
            int previous = 0;
            int next = 0;
            bool isOut = false;
        };

        Word &At(int index) { return m_words[std::size_t(index)]; }
        const Word &At(int index) const { return m_words[std::size_t(index)]; }
        void Append(QStringView text, qsizetype blanks);
        qsizetype BlanksBefore(int index) const;
        void Unlink(int first, int last);

        std::vector<Word> m_words;
        std::vector<std::vector<int>> m_places; // of each numbered word, in the order of the text
        qsizetype m_length; // of the text
        int m_halvings = 0;
        Pulse &m_pulse;
    };

    WordChain::WordChain(QStringView text, Pulse &pulse)
        : m_places(TheCommonWords().numbers.size())
        , m_length(text.size())
        , m_pulse(pulse)
    {
        Append({}, 0);
        qsizetype blanks = 0;
        for (qsizetype start = 0; start < text.size() && m_pulse.Step();) {
            const qsizetype blank = text.indexOf(u' ', start);
            const qsizetype end = blank < 0 ? text.size() : blank;
            if (end > start) {
                Append(text.sliced(start, end - start), blanks);
                blanks = 0;
            }
            blanks += blank >= 0;
            start = end + 1;
        }
        Append({}, blanks);
        m_words.back().next = -1;
    }

    void WordChain::Append(QStringView text, qsizetype blanks)
    {
        const int index = int(m_words.size());
        m_words.push_back(
            {.text = text, .blanks = blanks, .previous = index - 1, .next = index + 1});
        const auto &numbers = TheCommonWords().numbers;
        if (const auto number = numbers.find(text); number != numbers.end())
            m_places[std::size_t(number->second)].push_back(index);
    }

    qsizetype WordChain::BlanksBefore(int index) const
    {
        const Word &word = At(index);
        const int halvings = m_halvings - word.halvings;
        return (word.blanks + (qsizetype(1) << halvings) - 1) >> halvings;
    }

    void WordChain::TakeOut(const CommonWord &common)
    {
        // A match uses up the blank behind it, which the next one must not have before it.
        int behindMatch = -1;
        qsizetype blanksLeft = 0;
        for (const int first : m_places[std::size_t(common.first)]) {
            if (!m_pulse.Step())
                return;
            if (At(first).isOut)
                continue;
            const int last = common.second.isEmpty() ? first : At(first).next;
            if (last != first && (At(last).text != common.second || BlanksBefore(last) != 1))
                continue;
            const qsizetype before = first == behindMatch ? blanksLeft : BlanksBefore(first);
            const int behind = At(last).next;
            if (before == 0 || behind < 0 || BlanksBefore(behind) == 0)
                continue;
            behindMatch = behind;
            blanksLeft = BlanksBefore(behind) - 1;
            Unlink(first, last);
        }
    }

    void WordChain::Unlink(int first, int last)
    {
        const int previous = At(first).previous;
        const int behind = At(last).next;
        At(behind).blanks = BlanksBefore(first) + BlanksBefore(behind) - 1;
        At(behind).halvings = m_halvings;
        At(behind).previous = previous;
        At(previous).next = behind;
        At(first).isOut = true;
        At(last).isOut = true;
    }

    QString WordChain::Text() const
    {
        QString text;
        text.reserve(m_length);
        for (int index = 0; index >= 0; index = At(index).next) {
            text.resize(text.size() + BlanksBefore(index), u' ');
            text.append(At(index).text);
        }
        return text;
    }

} // namespace

std::span<const QStringView> CommonWordList()
{
    return Common;
}

QString WithoutCommonWords(QStringView text, Pulse &pulse)
{
    WordChain chain(text, pulse);
    int count = 0;
    for (const CommonWord &word : TheCommonWords().list) {
        chain.TakeOut(word);
        if (++count % WordsPerHalving == 0)
            chain.HalveBlanks();
    }
    return chain.Text();
}

} // namespace brenix
