#include "support/ListInput.h"

#include <algorithm>

namespace brenix {

namespace {

    bool IsSeparator(QChar unit)
    {
        return unit == u',' || unit == u'\r' || unit == u'\n';
    }

} // namespace

std::optional<QString> ListInput::Next()
{
    if (m_position >= m_text.size())
        return std::nullopt;
    qsizetype start = m_position;
    qsizetype end = start;
    const bool quoted = m_text[start] == u'"';
    if (quoted) {
        ++start;
        end = m_text.indexOf(u'"', start);
        if (end < 0)
            end = m_text.size();
        m_position = end;
    }
    const auto separator = std::find_if(m_text.begin() + m_position, m_text.end(), IsSeparator);
    m_position = separator - m_text.begin();
    if (!quoted)
        end = m_position;
    const QString field = m_text.sliced(start, end - start).toString();
    m_position += m_text.sliced(m_position).startsWith(u"\r\n") ? 2 : 1;
    return field;
}

} // namespace brenix
