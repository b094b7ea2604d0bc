#pragma once

#include "support/TextSearch.h"

#include <QSet>
#include <QString>
#include <QStringList>

/// Both checking engines in their plainest form, to compare the real ones with: every test at every
/// character, every search from where it starts. Positions count from 1, and 0 is none.
namespace naive {

using namespace Qt::StringLiterals;

class Text
{
public:
    explicit Text(const QString &text)
        : m_text(text)
        , m_lower(brenix::LowerCased(text))
    {
    }

    const QString &All() const { return m_text; }
    QString Part(qsizetype from, qsizetype upTo) const
    {
        return m_text.mid(from - 1, upTo - from + 1);
    }
    bool IsAt(qsizetype place, const QString &sought) const
    {
        return m_lower.mid(place - 1, sought.size()) == sought;
    }
    qsizetype Find(qsizetype from, const QString &sought) const
    {
        return m_lower.indexOf(brenix::LowerCased(sought), from - 1) + 1;
    }
    qsizetype FindExact(qsizetype from, QChar sought) const
    {
        return m_text.indexOf(sought, from - 1) + 1;
    }
    QList<qsizetype> FindAll(const QString &sought) const
    {
        QList<qsizetype> places;
        for (qsizetype at = Find(1, sought); at > 0; at = Find(at + 1, sought))
            places += at;
        return places;
    }

private:
    QString m_text;
    QString m_lower;
};

class CharacterPass
{
public:
    explicit CharacterPass(const QString &text)
        : m_text(text)
    {
        for (m_i = 1; m_i <= text.size(); ++m_i) {
            LookForBrackets();
            LookForTags();
            LookForWords();
        }
        if (m_inScript)
            lines += u"No end of script tag..."_s;
        lines += {u""_s,
                  u"---------------------------------------------"_s,
                  u"Total Errors: "_s + QString::number(m_errors)};
    }

    QStringList lines{u"Checking - for errors..."_s, u""_s};

private:
    bool At(const QString &sought) const { return m_text.IsAt(m_i, sought); }
    void Say(const QString &message) { lines += message + QString::number(m_i - 1) + u")..."_s; }
    void Error(const QString &message)
    {
        Say(message);
        m_errors = std::min(m_errors + 1, 32767);
    }

    void LookForBrackets()
    {
        if (At(u"<"_s) && m_inTag && m_lastTagFault != 2) {
            Error(u"Tag starts before previous tag ends (Char "_s);
            m_lastTagFault = 2;
        }
        if (At(u">"_s) && !m_inTag) {
            if (m_lastTagFault != 1)
                Error(u"Tag ends before previous tag starts (Char: "_s);
            m_lastTagFault = 1;
            if (m_inQuote)
                Error(u"Missing quotation (Char: "_s);
            m_inQuote = false;
        }
        m_inTag = At(u"<"_s) || (m_inTag && !At(u">"_s));
    }

    void LookForTags()
    {
        m_inScript |= At(u"<script>"_s);
        if (At(u"</script>"_s)) {
            if (!m_inScript)
                Say(u"New script starts before previous script is finished . (Char: "_s);
            m_inScript = false;
        }
        if (At(u"<hltm>"_s))
            Error(u"Spell Error?. (Char: "_s);
        m_bodySeen |= At(u"<body"_s);
        m_inQuote ^= At(u"\""_s);
        if (At(u"<frameset"_s) && m_bodySeen)
            Say(u"Body tag before frameset tag. No frames are shown. (Char: "_s);
    }

    void LookForWords()
    {
        const auto errorAt = [this](const char *words, const QString &message) {
            for (const QString &word : QString::fromUtf8(words).split(u' '))
                if (At(word))
                    Error(message);
        };
        errorAt("<htlm> <htm>", u"Spell Error?. (Char: "_s);
        errorAt("<centre>", u"Spell Error? Supposed <CENTER>. (Char: "_s);
        errorAt("</centre>", u"Spell Error? Supposed </CENTER>. (Char: "_s);
        errorAt("bgcolour", u"Spell Error? Supposed BGCOLOR. (Char: "_s);
        errorAt("<htm> <bdy <boddy", u"Spell Error?. (Char: "_s);
        for (const QString &letter :
             u"å=aring Å=Aring ø=oslash Ø=Oslash æ=aelig Æ=AElig"_s.split(u' '))
            if (m_text.Part(m_i, m_i) == letter.left(1))
                Error(u"Unknown character (%1), use &%2; instead. (Char: "_s.arg(letter.left(1),
                                                                                 letter.mid(2)));
        errorAt("</meta> </frame> </br> </param> </wbr>", u"Closing tag forbidden. (Char: "_s);
    }

    Text m_text;
    qsizetype m_i = 0;
    int m_errors = 0;
    bool m_inTag = false;
    bool m_inQuote = false;
    bool m_inScript = false;
    bool m_bodySeen = false;
    int m_lastTagFault = 0;
};

class SearchRules
{
public:
    SearchRules(const QString &text, const QStringList &catalogue)
        : m_text(text)
    {
        for (const QString &row : catalogue)
            Balance(row);
        if (text.count(u'"') % 10 % 2 != 0)
            Error(u"Please check your quotemarks"_s);
        Walks();
        if (m_text.Find(1, u"<html>"_s) == 0)
            Error(u"A HTML document must include the <HTML> tag"_s);
        if (m_text.Find(1, u"</html>"_s) == 0)
            Error(u"The </HTML> tag is missing"_s);
        NestedFonts();
        SimilarTags(ImagesWithoutAlt(Title()));
        lines += {u" "_s,
                  u"--------------------"_s,
                  u"Totally %1 errors"_s.arg(m_errors),
                  u"Totally %1 warnings"_s.arg(m_warnings)};
    }

    QStringList lines{u"Checking document for errors"_s, u"----------------------------"_s, u" "_s};
    QList<std::pair<qsizetype, bool>> caretMoves; ///< positions from 0, and whether focus is given

private:
    void Error(const QString &line)
    {
        lines += line;
        m_errors = std::min(m_errors + 1, 32767);
    }
    void Warning(const QString &line)
    {
        lines += line;
        m_warnings = std::min(m_warnings + 1, 32767);
    }

    void Balance(const QString &row)
    {
        const qsizetype p = row.indexOf(u'>') + 1;
        QString open = row.left(p - 1);
        const QString close = row.mid(p);
        if (p == row.size() || open == u"<P"_s)
            return;
        if (open == u"<A"_s)
            open += u' ';
        if (u"<B <Q <S <I"_s.split(u' ').contains(open))
            open += u'>';
        const qsizetype more = m_text.FindAll(open).size() - m_text.FindAll(close).size();
        if (open.endsWith(u'>'))
            open.chop(1);
        if (open.endsWith(u' '))
            open.chop(1);
        open += u'>';
        const QString line = u"There are %1 more %2 than %3"_s;
        if (more > 0)
            Error(line.arg(QString::number(more), open, close));
        if (more < 0)
            Error(line.arg(QString::number(-more), close, open));
    }

    void Walks()
    {
        for (const QString &tag : u"</br> </! </BGSOUND> </FRAME>"_s.split(u' '))
            for (const qsizetype at : m_text.FindAll(tag))
                Error(u"No endtag allowed: %1. (Char %2)   "_s.arg(tag, QString::number(at)));
        for (const QString &tag : u"<HTML> <BODY <NOFRAMES"_s.split(u' '))
            for (const qsizetype at : m_text.FindAll(tag).mid(1))
                Error(u"Only one %1> tag allowed. (Char %2)   "_s.arg(QString(tag).remove(u'>'),
                                                                      QString::number(at - 1)));
        for (const QString &letter : u"å=aring Å=Aring ø=oslash Ø=Oslash"_s.split(u' '))
            for (qsizetype at = 1; at <= m_text.All().size(); ++at)
                if (m_text.Part(at, at) == letter.left(1))
                    Warning(u"Unknown character! Use &%1;. (Char %2)   "_s.arg(
                        letter.mid(2), QString::number(at - 1)));
        for (const qsizetype at : m_text.FindAll(u"<>"_s))
            Warning(u"Empty tag? Please Check! (Char %1)   "_s.arg(at - 1));
    }

    void NestedFonts()
    {
        QSet<qsizetype> treated;
        qsizetype q = 0;
        while (true) {
            const qsizetype start = m_text.Find(q + 1, u"<FONT"_s);
            if (start == 0 || treated.contains(start))
                return;
            treated += start;
            const qsizetype p = m_text.FindExact(start + 1, u'>');
            q = m_text.Find(p + 1, u"<FONT"_s);
            if (m_text.Find(p + 1, u"</FONT>"_s) < q)
                continue;
            if (p == 0 || q == 0)
                return;
            caretMoves += {start - 1, true};
            lines += u"Combinable Nested tag:<FONT>:%1\r\n"_s.arg(start);
        }
    }

    qsizetype Title()
    {
        const qsizetype p = m_text.Find(1, u"<TITLE>"_s);
        const qsizetype q = m_text.Find(1, u"</TITLE>"_s);
        if (p == 0 || q == 0 || q < p) {
            lines += u"Improper or missing tag: <TITLE> (Char:%1)"_s.arg(p);
            caretMoves += {p - 1, true};
        }
        return q;
    }

    qsizetype ImagesWithoutAlt(qsizetype q)
    {
        while (true) {
            const qsizetype p = m_text.Find(q + 1, u"<IMG"_s);
            q = m_text.FindExact(p + 1, u'>') + 1;
            if (p == 0 || q == 1)
                return q;
            if (brenix::LowerCased(m_text.Part(p, q - 1)).contains(u" alt="_s))
                continue;
            caretMoves += {p - 1, false};
            lines += u"Missing alt attribute: <IMG> (Char %1)"_s.arg(p);
        }
    }

    void SimilarTags(qsizetype q)
    {
        while (true) {
            const qsizetype p = m_text.FindExact(q + 1, u'<');
            q = m_text.FindExact(p + 1, u'>');
            if (p == 0 || q == 0)
                return;
            const QString a = m_text.Part(p, q);
            const qsizetype r = m_text.Find(q + 1, u"</"_s + a.mid(1));
            const qsizetype p2 = m_text.FindExact(r + 1, u'<');
            const qsizetype q2 = m_text.FindExact(p2 + 1, u'>');
            const QString b = m_text.Part(p2, q2);
            if (p2 != 0 && q2 != 0 && brenix::LowerCased(a) == brenix::LowerCased(b))
                lines
                    += u"Similar Immediate Tag "_s + brenix::UpperCased(a) + u" (Char %1)"_s.arg(p);
        }
    }

    Text m_text;
    int m_errors = 0;
    int m_warnings = 0;
};

} // namespace naive
