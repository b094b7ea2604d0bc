#include "tags/TovikHTMLParser.h"

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    void Normalise(QString &html)
    {
        html.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ').remove(u'\t');
    }

    // Blanks alone: a no-break space belongs to a name, a value or a text.
    QString WithoutOuterBlanks(QStringView text)
    {
        while (text.startsWith(u' '))
            text = text.sliced(1);
        while (text.endsWith(u' '))
            text.chop(1);
        return text.toString();
    }

    template <typename... Arguments>
    void Raise(const std::function<void(const Arguments &...)> &event,
               const std::type_identity_t<Arguments> &...arguments)
    {
        if (event)
            event(arguments...);
    }

    /// One pass over a normalised text.
    class Scan
    {
    public:
        explicit Scan(const TovikHTMLParser &events)
            : m_events(events)
        {
        }

        void Take(QChar c)
        {
            if (m_inValue)
                TakeInValue(c);
            else if (m_inAttrs)
                TakeInAttributes(c);
            else if (m_inTag)
                TakeInTag(c);
            else
                TakeOutside(c);
        }

    private:
        void TakeOutside(QChar c)
        {
            if (c != u'<') {
                // A text begins with its first word: blanks alone, which are never reported, would
                // only gather from tag to tag.
                if (c != u' ' || !m_text.isEmpty())
                    m_text += c;
                return;
            }
            m_inTag = true;
            m_beginRaised = false;
            if (!m_text.isEmpty())
                Raise(m_events.HTMLText, WithoutOuterBlanks(std::exchange(m_text, {})));
        }

        void TakeInTag(QChar c)
        {
            if (c == u' ') {
                m_inAttrs = true;
                RaiseBegin();
            } else if (c == u'>') {
                m_inTag = false;
                FinishTag();
                m_tag.clear();
            } else {
                m_tag += c;
            }
        }

        void TakeInAttributes(QChar c)
        {
            if (c == u'"')
                m_inValue = true;
            else
                m_name += c;
        }

        void TakeInValue(QChar c)
        {
            if (c != u'"') {
                m_value += c;
                return;
            }
            m_inValue = false;
            m_inAttrs = false;
            const QString name = WithoutOuterBlanks(std::exchange(m_name, {}));
            const QString value = WithoutOuterBlanks(std::exchange(m_value, {}));
            if (!name.isEmpty())
                Raise(m_events.HTMLProperty, name.chopped(1), value);
        }

        void FinishTag()
        {
            if (m_tag.startsWith(u'/')) {
                Raise(m_events.HTMLTagClose, m_tag.sliced(1));
                return;
            }
            RaiseBegin();
            Raise(m_events.HTMLTagEnd, m_tag);
        }

        void RaiseBegin()
        {
            if (!std::exchange(m_beginRaised, true))
                Raise(m_events.HTMLTagBegin, m_tag);
        }

        const TovikHTMLParser &m_events;
        bool m_inTag = false;
        bool m_inAttrs = false;
        bool m_inValue = false;
        bool m_beginRaised = false;
        QString m_text;
        QString m_tag;
        QString m_name;
        QString m_value;
    };

} // namespace

void TovikHTMLParser::ParseHTML(QString &html) const
{
    Normalise(html);
    const QString text = html;
    Scan scan(*this);
    for (const QChar c : text)
        scan.Take(c);
}

} // namespace brenix
