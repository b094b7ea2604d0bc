#include "checks/QuotedValues.h"

namespace brenix {

std::optional<QString> QuotedValues::Next()
{
    const qsizetype word = m_word.FindIn(m_text, m_position);
    const qsizetype open = word < 0 ? -1 : m_text.indexOf(u'"', word + m_word.Length());
    const qsizetype close = open < 0 ? -1 : m_text.indexOf(u'"', open + 1);
    if (close < 0)
        return std::nullopt;
    m_position = close + 1;
    return m_text.sliced(open + 1, close - open - 1).toString();
}

} // namespace brenix
