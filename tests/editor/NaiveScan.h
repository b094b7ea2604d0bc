#pragma once

#include "editor/ColourRuns.h"
#include "editor/HighlightBlock.h"

#include <QRandomGenerator>
#include <QStringList>

/// The colouring scan in its plainest form, position by position and with strings, to compare the
/// real one with. What is painted is kept beside the stream: the look of each unit of the text.
class NaiveScan
{
public:
    struct Word
    {
        QString text;
        int number;
    };
    struct Rule
    {
        QString start;
        QString end;
    };

    NaiveScan(int language, std::vector<Word> extraWords)
        : m_basic(language == brenix::SyntaxTables::Basic)
    {
        using namespace Qt::StringLiterals;
        const std::vector<Rule> rules[]
            = {{},
               {{u"\""_s, u"\""_s}, {u"'"_s, u"\r\n"_s}},
               {{u"\""_s, u"\""_s}, {u"//"_s, u"\r\n"_s}, {u"/*"_s, u"*/"_s}, {u"/**"_s, u"*/"_s}},
               {{u"<"_s, u">"_s}, {u"&"_s, u";"_s}},
               {{u"//"_s, u"\r\n"_s}, {u":"_s, u"\r\n"_s}}};
        m_rules = rules[language];
        // The words of the languages that the alphabet of RandomSource can spell.
        if (language == brenix::SyntaxTables::Java) {
            for (const auto &word : {u"!"_s, u"?"_s, u":"_s, u"%"_s, u"&"_s, u"&&"_s})
                m_words.push_back({word, 2});
        } else if (m_basic) {
            m_words.push_back({u"&"_s, 2});
        }
        m_words.insert(m_words.end(), extraWords.begin(), extraWords.end());
    }

    QString stream;
    std::vector<brenix::ColourRun> looks; ///< one for each unit, without place

    void Run(const QString &text)
    {
        m_text = text;
        stream.clear();
        looks.assign(std::size_t(text.size()), {});
        m_painted = 0;
        qsizetype wordStart = 0;
        qsizetype blockStart = 0;
        int open = -1;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (open < 0) {
                if (const int rule = Find(i, &Rule::start); rule >= 0) {
                    open = rule;
                    blockStart = i;
                    ColorDelimiter(wordStart, i, {});
                } else if (const QString delimiter = DelimiterAt(i); !delimiter.isEmpty()) {
                    ColorDelimiter(wordStart, i, delimiter);
                    wordStart = i + delimiter.size();
                }
            } else if (Find(i, &Rule::end) == open) {
                const QString end = m_rules[std::size_t(open)].end;
                ColorBlock(blockStart, i, end);
                wordStart = i + end.size();
                open = -1;
            }
        }
        if (open >= 0)
            ColorBlock(blockStart, text.size(), {});
        else
            ColorDelimiter(wordStart, text.size(), {});
    }

private:
    int Find(qsizetype at, QString Rule::*part) const
    {
        for (std::size_t i = 0; i < m_rules.size(); ++i) {
            if (m_text.mid(at, (m_rules[i].*part).size()) == m_rules[i].*part)
                return int(i);
        }
        return -1;
    }
    QString DelimiterAt(qsizetype at) const
    {
        if (m_text.mid(at, 2) == QLatin1String("\r\n"))
            return m_text.mid(at, 2);
        return QStringLiteral(" \t()=+-*><\\/{}").contains(m_text[at]) ? m_text.mid(at, 1)
                                                                       : QString();
    }
    // What has been painted keeps its look: a block may begin on the last unit of the one before.
    void Paint(qsizetype from, qsizetype upTo, brenix::ColourRun look)
    {
        for (qsizetype i = std::max(from, m_painted); i < upTo; ++i)
            looks[std::size_t(i)] = look;
        m_painted = std::max(m_painted, upTo);
    }
    static brenix::ColourRun Look(int colour, bool bold = false, bool italic = false)
    {
        return {0, 0, brenix::RunColour(colour), bold, italic};
    }
    void ColorDelimiter(qsizetype wordStart, qsizetype at, const QString &delimiter)
    {
        if (at < wordStart)
            return;
        if (at > wordStart)
            ColorWord(wordStart, at);
        if (delimiter == QLatin1String("\r\n")) {
            stream += QLatin1String("\\par \r\n");
        } else if (delimiter == QLatin1String("\t")) {
            stream += QLatin1String("\\tab ");
        } else if (delimiter.trimmed().isEmpty()) {
            stream += delimiter;
        } else {
            const bool escaped = QStringLiteral("\\{}").contains(delimiter);
            stream += QStringLiteral("\\cf2 ") + (escaped ? QStringLiteral("\\") : QString())
                + delimiter + QStringLiteral("\\cf0 ");
            Paint(at, at + 1, Look(2));
        }
    }
    void ColorWord(qsizetype from, qsizetype upTo)
    {
        QString word = m_text.mid(from, upTo - from);
        int number = 0;
        for (const Word &entry : m_words) {
            if (entry.text.compare(word, m_basic ? Qt::CaseInsensitive : Qt::CaseSensitive) != 0)
                continue;
            number = entry.number;
            word = m_basic ? entry.text : word;
            break;
        }
        stream += QStringLiteral("\\cf%1 ").arg(number) + word + QStringLiteral("\\cf0 ");
        Paint(from, upTo, Look(number));
    }
    void ColorBlock(qsizetype from, qsizetype upTo, const QString &end)
    {
        QString t = m_text.mid(from, upTo - from);
        for (const auto &unit : {QStringLiteral("\\"), QStringLiteral("{"), QStringLiteral("}")})
            t.replace(unit, QStringLiteral("\\") + unit);
        t.replace(QStringLiteral("\r\n"), QStringLiteral("\\par "));
        t += end == QLatin1String("\r\n") ? QStringLiteral("\\par\r\n") : end;

        const auto begins = [lower = t.toLower()](const char *marks) {
            const QStringList list = QString::fromLatin1(marks).split(u'|');
            return std::any_of(list.begin(), list.end(), [&](const QString &mark) {
                return lower.startsWith(mark);
            });
        };
        const auto add = [&](const char *prefix, const char *suffix, brenix::ColourRun look) {
            stream += QString::fromLatin1(prefix) + t + QString::fromLatin1(suffix);
            Paint(from, upTo + end.size(), look);
        };
        const bool entity = t.startsWith(u'&');
        const bool closedEntity = entity && t.endsWith(u';');
        if (begins("<!"))
            add("\\cf1\\i", "\\cf0\\i0", Look(1, false, true));
        else if (begins("<table|</table>|<td|<tr|</td>|</tr>"))
            add("\\cf2", "\\cf0 ", Look(2));
        else if (t == QLatin1String(":"))
            add("\\cf2\\b\\", "\\b0\\cf0 ", Look(2, true));
        else if (closedEntity && begins("& "))
            add("\\cf0", "\\cf0", Look(0));
        else if (closedEntity)
            add("\\cf3\\i\\b\\", "\\b0\\i0\\cf0 ", Look(3, true, true));
        else if (entity)
            add("\\cf0", "\\cf0", Look(0));
        else if (begins("<?|<%"))
            add("\\cf2\\b\\", "\\b0\\cf0 ", Look(2, true));
        else if (begins("<a |</a>"))
            add("\\cf4\\b\\", "\\b0\\cf0 ", Look(4, true));
        else
            add("\\cf4", "\\cf0 ", Look(4));
    }

    bool m_basic;
    std::vector<Rule> m_rules;
    std::vector<Word> m_words;
    QString m_text;
    qsizetype m_painted = 0;
};

/// Text in which marks of every language meet often.
inline QString RandomSource(QRandomGenerator &random, int length)
{
    static const QString alphabet = QStringLiteral("<>&;/*\"' \r\n\t\\{}!?%aAtdr:");
    QString text;
    while (text.size() < length) {
        const int choice = random.bounded(int(alphabet.size()) + 6);
        if (choice < alphabet.size())
            text += alphabet[choice];
        else
            text += choice % 2 ? QStringLiteral("\r\n") : QStringLiteral("*/");
    }
    return text;
}

/// Words for the alphabet of RandomSource, in a table and in a naive scan alike.
inline const std::vector<NaiveScan::Word> &ExtraWords()
{
    static const std::vector<NaiveScan::Word> words
        = {{QStringLiteral("at"), 1}, {QStringLiteral("Tr"), 2}, {QStringLiteral("a"), 3}};
    return words;
}

inline brenix::SyntaxTables TablesWithExtraWords(int language)
{
    brenix::SyntaxTables tables;
    tables.SetLanguage(language);
    for (const NaiveScan::Word &word : ExtraWords())
        tables.AddWord(word.text, brenix::WordClass(word.number));
    return tables;
}
