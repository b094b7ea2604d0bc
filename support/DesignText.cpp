#include "support/DesignText.h"

#include "support/TextCodec.h"

#include <algorithm>
#include <array>
#include <utility>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    // The last letter of a token says where it stands, and so what the engine writes around it.
    enum Place : char16_t {
        InText = u'c', // as a comment
        InTag = u'b', // as the name of an attribute without a value
        InWord = u't', // in a name, a value or raw text: nothing around it
    };

    constexpr QStringView commentBegin = u"<!--";
    constexpr QStringView commentEnd = u"-->";
    constexpr QStringView emptyValue = u"=\"\"";

    constexpr auto rawTextElements = std::to_array<QStringView>(
        {u"script", u"style", u"title", u"textarea", u"xmp", u"iframe", u"noembed", u"noframes"});

    bool IsBlank(QChar c)
    {
        return c == u' ' || (c >= u'\t' && c <= u'\r' && c != u'\v');
    }

    bool IsLetter(QChar c)
    {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    }

    bool IsBlankText(QStringView text)
    {
        return !text.isEmpty() && std::all_of(text.begin(), text.end(), IsBlank);
    }

    bool HasWord(QStringView text, QStringView word)
    {
        return text.startsWith(word, Qt::CaseInsensitive);
    }

} // namespace

// Reads markup the way the engine does and writes it with tokens.
class DesignProtector
{
public:
    DesignProtector(DesignText &design, QStringView text)
        : m_design(design)
        , m_text(text)
    {
    }

    // Blanks, comments, server code and declarations up to the root element.
    QStringView Prolog();
    QStringView Doctype() const { return m_doctype; }
    QString Root();
    QStringView Epilog() const { return m_text.mid(m_at); }
    QString Fragment();

private:
    bool AtEnd() const { return m_at >= m_text.size(); }
    QChar Here() const { return m_text[m_at]; }
    QStringView Rest() const { return m_text.mid(m_at); }
    qsizetype Behind(QStringView closing, qsizetype from);
    qsizetype BehindOrEnd(QStringView closing, qsizetype from);
    qsizetype ServerCodeEnd();
    QStringView Take(qsizetype end);
    void Copy(qsizetype end) { m_html += Take(end); }
    QString Keep(QStringView text, Place place);
    void KeepAsComment(qsizetype end);
    void CopyText(qsizetype end);
    void Markup();
    bool BeginsTag() const;
    void Tag();
    QString TagName();
    void Attributes();
    void AttributeName();
    void AttributeValue();
    void RawText(const QString &name);

    DesignText &m_design;
    QStringView m_text;
    qsizetype m_at = 0;
    QString m_html;
    QStringView m_doctype;
    // what has been looked for to the end without being found
    QList<QStringView> m_missing;
    // where the engine drops or moves blanks: before the head and behind the body
    bool m_isBetweenParts = false;
    bool m_isRoot = false;
    bool m_isRootEnded = false;
};

// Every closing is looked for in vain once at most, or a page of openings would take for ever.
qsizetype DesignProtector::Behind(QStringView closing, qsizetype from)
{
    if (m_missing.contains(closing))
        return -1;
    const qsizetype at = m_text.indexOf(closing, from, Qt::CaseInsensitive);
    if (at < 0)
        m_missing.append(closing);
    return at < 0 ? -1 : at + closing.size();
}

qsizetype DesignProtector::BehindOrEnd(QStringView closing, qsizetype from)
{
    const qsizetype end = Behind(closing, from);
    return end < 0 ? m_text.size() : end;
}

// -1 where no server code begins. PHP may leave its last block open.
qsizetype DesignProtector::ServerCodeEnd()
{
    const QStringView rest = Rest();
    if (rest.startsWith(u"<%")) {
        const qsizetype end = rest.startsWith(u"<%--") ? Behind(u"--%>", m_at + 4) : -1;
        return end < 0 ? Behind(u"%>", m_at + 2) : end;
    }
    if (!rest.startsWith(u"<?"))
        return -1;
    const bool isPhp
        = rest.size() == 2 || rest[2] == u'=' || IsBlank(rest[2]) || HasWord(rest, u"<?php");
    return isPhp ? BehindOrEnd(u"?>", m_at + 2) : BehindOrEnd(u">", m_at + 2);
}

QStringView DesignProtector::Take(qsizetype end)
{
    const QStringView taken = m_text.mid(m_at, end - m_at);
    m_at = end;
    return taken;
}

QString DesignProtector::Keep(QStringView text, Place place)
{
    m_design.m_kept.append(text.toString());
    return m_design.m_mark + QString::number(m_design.m_kept.size() - 1) + QChar(place);
}

void DesignProtector::KeepAsComment(qsizetype end)
{
    m_html += commentBegin;
    m_html += Keep(Take(end), InText);
    m_html += commentEnd;
}

void DesignProtector::CopyText(qsizetype end)
{
    if (m_isBetweenParts && IsBlankText(m_text.mid(m_at, end - m_at)))
        KeepAsComment(end);
    else
        Copy(end);
}

QStringView DesignProtector::Prolog()
{
    const auto isSkipped = [](QChar c) { return IsBlank(c) || c == QChar::ByteOrderMark; };
    while (!AtEnd()) {
        const QStringView rest = Rest();
        const qsizetype serverCodeEnd = ServerCodeEnd();
        if (isSkipped(Here()))
            ++m_at;
        else if (serverCodeEnd >= 0)
            m_at = serverCodeEnd;
        else if (rest.startsWith(commentBegin))
            m_at = BehindOrEnd(commentEnd, m_at + 2);
        else if (!rest.startsWith(u"<!"))
            break;
        else if (const QStringView declaration = Take(BehindOrEnd(u">", m_at));
                 m_doctype.isEmpty() && HasWord(declaration, u"<!doctype"))
            m_doctype = declaration;
    }
    return m_text.first(m_at);
}

QString DesignProtector::Root()
{
    m_isRoot = true;
    return Fragment();
}

QString DesignProtector::Fragment()
{
    while (!AtEnd() && !m_isRootEnded) {
        const qsizetype next = m_text.indexOf(u'<', m_at);
        CopyText(next < 0 ? m_text.size() : next);
        if (!AtEnd())
            Markup();
    }
    return m_html;
}

void DesignProtector::Markup()
{
    const qsizetype serverCodeEnd = ServerCodeEnd();
    if (BeginsTag())
        Tag();
    else if (serverCodeEnd >= 0)
        KeepAsComment(serverCodeEnd);
    else if (Rest().startsWith(commentBegin))
        Copy(BehindOrEnd(commentEnd, m_at + 2));
    else if (Rest().startsWith(u"<!"))
        KeepAsComment(BehindOrEnd(u">", m_at));
    else
        Copy(m_at + 1);
}

bool DesignProtector::BeginsTag() const
{
    const QStringView name = Rest().mid(Rest().startsWith(u"</") ? 2 : 1);
    return !name.isEmpty()
        && (IsLetter(name[0]) || name.startsWith(u"<?") || name.startsWith(u"<%"));
}

void DesignProtector::Tag()
{
    const bool isEndTag = Rest().startsWith(u"</");
    if (HasWord(Rest(), u"<noscript")) {
        // Its content would be read as if scripts were off for ever, which in the head ends it.
        const qsizetype end = Behind(u"</noscript>", m_at);
        if (end >= 0) {
            KeepAsComment(end);
            return;
        }
    }
    Copy(m_at + (isEndTag ? 2 : 1));
    const QString name = TagName();
    Attributes();
    m_isBetweenParts = name == (isEndTag ? "body"_L1 : "html"_L1);
    if (isEndTag)
        m_isRootEnded
            = m_isRoot && name == "html"_L1 && !Rest().contains(u"</html", Qt::CaseInsensitive);
    else if (std::ranges::find(rawTextElements, name) != rawTextElements.end())
        RawText(name);
    else if (name == "plaintext"_L1)
        Copy(m_text.size());
}

// The same server code in the start tag and the end tag must give the same name.
QString DesignProtector::TagName()
{
    const qsizetype begin = m_html.size();
    while (!AtEnd() && !IsBlank(Here()) && Here() != u'/' && Here() != u'>') {
        const qsizetype serverCodeEnd = ServerCodeEnd();
        if (serverCodeEnd < 0) {
            Copy(m_at + 1);
            continue;
        }
        const QString code = Take(serverCodeEnd).toString();
        QString &token = m_design.m_tagNames[code];
        if (token.isEmpty())
            token = Keep(code, InWord);
        m_html += token;
    }
    return m_html.mid(begin).toLower();
}

void DesignProtector::Attributes()
{
    while (!AtEnd() && Here() != u'>') {
        if (IsBlank(Here()) || Here() == u'/')
            Copy(m_at + 1);
        else
            AttributeName();
    }
    if (!AtEnd())
        Copy(m_at + 1);
}

void DesignProtector::AttributeName()
{
    QStringView code;
    const qsizetype begin = m_at;
    while (!AtEnd() && !IsBlank(Here()) && Here() != u'/' && Here() != u'>'
           && (Here() != u'=' || m_at == begin)) {
        if (!code.isEmpty())
            m_html += Keep(std::exchange(code, {}), InWord);
        const qsizetype serverCodeEnd = ServerCodeEnd();
        if (serverCodeEnd >= 0)
            code = Take(serverCodeEnd);
        else
            Copy(m_at + 1);
    }
    qsizetype next = m_at;
    while (next < m_text.size() && IsBlank(m_text[next]))
        ++next;
    const bool hasValue = next < m_text.size() && m_text[next] == u'=';
    if (!code.isEmpty())
        m_html += Keep(code, hasValue ? InWord : InTag);
    if (!hasValue)
        return;
    Copy(next + 1);
    while (!AtEnd() && IsBlank(Here()))
        Copy(m_at + 1);
    AttributeValue();
}

void DesignProtector::AttributeValue()
{
    if (AtEnd())
        return;
    const QChar quote = Here();
    const bool isQuoted = quote == u'"' || quote == u'\'';
    if (isQuoted)
        Copy(m_at + 1);
    const auto isEnd = [&](QChar c) { return isQuoted ? c == quote : c == u'>' || IsBlank(c); };
    while (!AtEnd() && !isEnd(Here())) {
        const qsizetype serverCodeEnd = ServerCodeEnd();
        if (serverCodeEnd >= 0)
            m_html += Keep(Take(serverCodeEnd), InWord);
        else
            Copy(m_at + 1);
    }
    if (isQuoted && !AtEnd())
        Copy(m_at + 1);
}

void DesignProtector::RawText(const QString &name)
{
    const QString endTag = u"</"_s + name;
    while (!AtEnd()) {
        const qsizetype next = m_text.indexOf(u'<', m_at);
        Copy(next < 0 ? m_text.size() : next);
        if (AtEnd() || HasWord(Rest(), endTag))
            return;
        const qsizetype serverCodeEnd = ServerCodeEnd();
        if (serverCodeEnd >= 0)
            m_html += Keep(Take(serverCodeEnd), InWord);
        else
            Copy(m_at + 1);
    }
}

DesignText::DesignText(const QString &page)
    : m_original(WithCrLf(page))
{
    int salt = 0;
    do
        m_mark = u"brenixkept%1x"_s.arg(salt++);
    while (m_original.contains(m_mark, Qt::CaseInsensitive));

    DesignProtector protector(*this, m_original);
    m_before = protector.Prolog().toString();
    m_doctype = protector.Doctype().toString();
    m_root = protector.Root();
    m_after = protector.Epilog().toString();
}

QString DesignText::Protect(QStringView markup)
{
    return DesignProtector(*this, markup).Fragment();
}

QString DesignText::Restore(QStringView html) const
{
    QString text;
    text.reserve(html.size());
    qsizetype done = 0;
    for (qsizetype at; (at = html.indexOf(m_mark, done, Qt::CaseInsensitive)) >= 0;) {
        qsizetype end = at + m_mark.size();
        qsizetype number = 0;
        while (end < html.size() && html[end].isDigit() && number < m_kept.size())
            number = number * 10 + html[end++].digitValue();
        const QChar place = end < html.size() ? html[end++].toLower() : QChar();
        if (number >= m_kept.size() || (place != InText && place != InTag && place != InWord)) {
            text += html.mid(done, end - done);
            done = end;
            continue;
        }
        text += html.mid(done, at - done);
        done = end;
        if (place == InText && text.endsWith(commentBegin)
            && html.mid(done).startsWith(commentEnd)) {
            text.chop(commentBegin.size());
            done += commentEnd.size();
        }
        if (place == InTag && html.mid(done).startsWith(emptyValue))
            done += emptyValue.size();
        text += m_kept[number];
    }
    return text += html.mid(done);
}

QString DesignText::Page(QStringView root) const
{
    return WithCrLf(m_before + Restore(root) + m_after);
}

} // namespace brenix
