#include "editor/SyntaxTables.h"

#include <QVarLengthArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString LineEndMark = u"\r\n"_s;
    const QString QuoteMark = u"\""_s;

    // The spellings are part of the colouring: "volatitle" is what has always been painted.
    // clang-format off
    constexpr const char16_t *BasicKeywords[] = {
        u"#Const", u"#Else", u"#ElseIf", u"#End If", u"#If", u"Alias", u"And", u"As", u"Base",
        u"Binary", u"Boolean", u"Byte", u"ByVal", u"Call", u"Case", u"CBool", u"CByte", u"CCur",
        u"CDate", u"CDbl", u"CDec", u"CInt", u"CLng", u"Close", u"Compare", u"Const", u"CSng",
        u"CStr", u"Currency", u"CVar", u"CVErr", u"Decimal", u"Declare", u"DefBool", u"DefByte",
        u"DefCur", u"DefDate", u"DefDbl", u"DefDec", u"DefInt", u"DefLng", u"DefObj", u"DefSng",
        u"DefStr", u"DefVar", u"Dim", u"Do", u"Double", u"Each", u"Else", u"ElseIf", u"End",
        u"Enum", u"Eqv", u"Erase", u"Error", u"Exit", u"Explicit", u"False", u"For", u"Function",
        u"Get", u"Global", u"GoSub", u"GoTo", u"If", u"Imp", u"In", u"Integer", u"Is", u"LBound",
        u"Let", u"Lib", u"Like", u"Line", u"Lock", u"Long", u"Loop", u"LSet", u"Name", u"New",
        u"Next", u"Not", u"Object", u"On", u"Open", u"Option", u"UCase", u"LCase", u"Optional",
        u"Or", u"Output", u"Print", u"Private", u"Property", u"Public", u"Put", u"Random", u"Read",
        u"ReDim", u"Resume", u"Return", u"RSet", u"Seek", u"Select", u"Set", u"Single", u"Spc",
        u"Static", u"String", u"Stop", u"Sub", u"Tab", u"Then", u"True", u"Type", u"UBound",
        u"Unlock", u"Variant", u"Wend", u"While", u"With", u"Nothing", u"To", u"Step", u"Input",
    };

    constexpr const char16_t *BasicFunctions[] = {
        u"MsgBox", u"InputBox",
    };

    constexpr const char16_t *BasicOperators[] = {
        u"Xor", u"=", u">", u"<", u"<=", u">=", u"=<", u"=>", u"+", u"-", u"/", u"*", u"<>", u"&",
    };

    constexpr const char16_t *JavaKeywords[] = {
        u"abstract", u"boolean", u"break", u"byte", u"case", u"catch", u"char", u"class", u"const",
        u"continue", u"default", u"do", u"double", u"else", u"extends", u"final", u"finally",
        u"float", u"for", u"goto", u"if", u"implements", u"import", u"instanceof", u"int",
        u"interface", u"long", u"native", u"new", u"package", u"private", u"protected", u"public",
        u"return", u"short", u"static", u"super", u"switch", u"synchronized", u"this", u"throw",
        u"throws", u"transient", u"try", u"void", u"volatitle", u"while",
    };

    constexpr const char16_t *JavaOperators[] = {
        u"+", u"-", u"*", u"/", u"%", u">", u"<", u">=", u"<=", u"!=", u"==", u"!", u"&&", u"||",
        u"-", u"&", u"|", u"^", u"<<", u">>", u">>>", u"=", u"++", u"--", u"+=", u"-=", u"*=",
        u"/=", u"%=", u"|=", u"&=", u"^=", u"<<=", u">>=", u">>>=", u"new", u"?", u":", u"(", u")",
        u"{", u"}", u"true", u"false",
    };

    constexpr const char16_t *TidyKeywords[] = {
        u"tidy", u"mark", u"markup", u"wrap", u"attributes", u"script", u"literals", u"asp",
        u"jste", u"php", u"literal", u"tab", u"size", u"indent", u"spaces", u"hide", u"endtags",
        u"input", u"xml", u"output", u"add", u"pi", u"decl", u"xhtml", u"doctype", u"char",
        u"encoding", u"numeric", u"entities", u"quote", u"marks", u"nbsp", u"ampersand", u"assume",
        u"procins", u"fix", u"backslash", u"break", u"before", u"br", u"uppercase", u"tags",
        u"attributes", u"word", u"2000", u"clean", u"logical", u"emphasis", u"drop", u"empty",
        u"paras", u"font", u"tags", u"enclose", u"text", u"block", u"fix", u"bad", u"comments",
        u"add", u"space", u"alt", u"write", u"back", u"keep", u"time", u"error", u"file", u"show",
        u"warnings", u"quiet", u"gnu", u"emacs", u"split", u"new", u"inline", u"blocklevel", u"pre",
        u"-",
    };
    // clang-format on

} // namespace

SyntaxTables::SyntaxTables()
{
    RenewLookUps();
}

bool SyntaxTables::SetLanguage(int language)
{
    if (language == m_language)
        return false;
    switch (language) {
    case None:
        Clear();
        break;
    case Basic:
        Clear();
        LoadBasicWords();
        break;
    case Java:
        Clear();
        LoadJavaWords();
        break;
    case Html:
        Clear();
        m_rules = {{u"<"_s, u">"_s}, {u"&"_s, u";"_s}};
        break;
    case Tidy:
        m_words.clear();
        LoadTidyWords();
        break;
    default:
        break;
    }
    m_language = language;
    RenewLookUps();
    return true;
}

void SyntaxTables::Clear()
{
    m_words.clear();
    m_rules.clear();
}

template <std::size_t Count>
void SyntaxTables::AddWords(const char16_t *const (&words)[Count], WordClass wordClass)
{
    for (const char16_t *word : words)
        m_words.push_back({QString::fromUtf16(word), wordClass});
}

void SyntaxTables::LoadBasicWords()
{
    AddWords(BasicKeywords, WordClass::Keyword);
    AddWords(BasicFunctions, WordClass::Function);
    AddWords(BasicOperators, WordClass::Operator);
    m_rules = {{QuoteMark, QuoteMark}, {u"'"_s, LineEndMark}};
    m_ignoreCase = true;
    m_normaliseCase = true;
}

void SyntaxTables::LoadJavaWords()
{
    AddWords(JavaKeywords, WordClass::Keyword);
    AddWords(JavaOperators, WordClass::Operator);
    m_rules
        = {{QuoteMark, QuoteMark}, {u"//"_s, LineEndMark}, {u"/*"_s, u"*/"_s}, {u"/**"_s, u"*/"_s}};
    m_ignoreCase = false;
    m_normaliseCase = false;
}

void SyntaxTables::LoadTidyWords()
{
    AddWords(TidyKeywords, WordClass::Keyword);
    m_rules.push_back({u"//"_s, LineEndMark});
    m_rules.push_back({u":"_s, LineEndMark});
}

void SyntaxTables::AddWord(const QString &word, WordClass wordClass)
{
    if (wordClass == WordClass::BlockMark) {
        AddCommentTag(word, word);
        return;
    }
    m_words.push_back({word, wordClass});
    RenewLookUps();
}

void SyntaxTables::AddCommentTag(const QString &start, const QString &end)
{
    m_rules.push_back({start, end});
    RenewLookUps();
}

void SyntaxTables::RenewLookUps()
{
    m_wordKeys.clear();
    for (std::size_t i = 0; i < m_words.size(); ++i) {
        const QString key = m_ignoreCase ? m_words[i].text.toLower() : m_words[i].text;
        if (!m_wordKeys.contains(key))
            m_wordKeys.insert(key, int(i));
    }

    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        BlockRule &rule = m_rules[i];
        rule.rivals.clear();
        rule.neverEnds = false;
        for (std::size_t earlier = 0; earlier < i; ++earlier) {
            if (rule.end.startsWith(m_rules[earlier].end))
                rule.neverEnds = true;
            else if (m_rules[earlier].end.startsWith(rule.end))
                rule.rivals.push_back(int(earlier));
        }
    }
    RenewFirstUnits();
}

// What the first unit alone tells, for the scan's inner loop.
void SyntaxTables::RenewFirstUnits()
{
    m_mayBegin.fill(false);
    m_ruleOfUnit.fill(-1);
    m_highMayBegin = false;
    for (const QStringView delimiter : Delimiters)
        m_mayBegin[delimiter.front().unicode()] = true;
    for (std::size_t i = m_rules.size(); i-- > 0;) {
        const QString &start = m_rules[i].start;
        const qint8 answer = start.size() == 1 ? qint8(i) : SeveralRules;
        if (start.isEmpty()) {
            m_mayBegin.fill(true);
            m_ruleOfUnit.fill(SeveralRules);
        } else if (start.front().unicode() < m_mayBegin.size()) {
            m_mayBegin[start.front().unicode()] = true;
            m_ruleOfUnit[start.front().unicode()] = answer;
        }
        if (start.isEmpty() || start.front().unicode() >= m_mayBegin.size())
            m_highMayBegin = true;
    }
    m_mayShow = m_mayBegin;
    for (int index = 0; index <= LastPlainIndex; ++index) {
        const char16_t unit = Delimiters[std::size_t(index)].front().unicode();
        m_mayShow[unit] = m_ruleOfUnit[unit] != -1;
    }
}

int SyntaxTables::FindWord(QStringView word) const
{
    if (m_wordKeys.isEmpty())
        return -1;
    if (!m_ignoreCase)
        return m_wordKeys.value(QString::fromRawData(word.data(), word.size()), -1);
    QVarLengthArray<QChar, 64> lower(word.size());
    // A letter of another script that only lower-cases into the alphabet (the Kelvin sign) is not
    // that letter.
    std::transform(word.begin(), word.end(), lower.begin(), [](QChar c) {
        const QChar small = c.toLower();
        return c.unicode() >= 0x80 && small.unicode() < 0x80 ? c : small;
    });
    return m_wordKeys.value(QString::fromRawData(lower.data(), lower.size()), -1);
}

int SyntaxTables::FindBlockStartByText(QStringView text, qsizetype position) const
{
    const QChar first = text[position];
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        const QString &start = m_rules[i].start;
        if (start.isEmpty()
            || (start[0] == first
                && (start.size() == 1 || text.sliced(position).startsWith(start))))
            return int(i);
    }
    return -1;
}

qsizetype SyntaxTables::FindBlockEnd(QStringView text, qsizetype from, int ruleIndex) const
{
    const BlockRule &rule = m_rules[std::size_t(ruleIndex)];
    if (rule.neverEnds || from >= text.size())
        return -1;
    const auto beaten = [&](qsizetype position) {
        for (const int rival : rule.rivals) {
            if (text.sliced(position).startsWith(m_rules[std::size_t(rival)].end))
                return true;
        }
        return false;
    };
    qsizetype position = from;
    for (;; ++position) {
        position = rule.end.size() == 1 ? text.indexOf(rule.end[0], position)
                                        : text.indexOf(rule.end, position);
        if (position < 0 || position >= text.size())
            return -1;
        if (rule.rivals.empty() || !beaten(position))
            return position;
    }
}

bool SyntaxTables::ClosesAtLineEnd(int rule) const
{
    const BlockRule &found = m_rules[std::size_t(rule)];
    return !found.neverEnds && found.end == LineEndMark;
}

} // namespace brenix
