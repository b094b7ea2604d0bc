#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>

namespace brenix {

/// Rewrites a text from its start to its end in the room that it has: at no moment may more be
/// written than was read.
class InPlace
{
public:
    /// `text` must live as long as the object, and is its matter alone up to `Finish`.
    explicit InPlace(QString &text)
        : m_text(text)
        , m_units(text.data())
        , m_size(text.size())
    {
    }

    bool AtEnd() const { return m_in == m_size; }
    /// What is to be read next, and what was written last; NUL at the end and at the start.
    char16_t Next() const { return AtEnd() ? u'\0' : m_units[m_in].unicode(); }
    char16_t Last(qsizetype back = 1) const
    {
        return m_out < back ? u'\0' : m_units[m_out - back].unicode();
    }
    QStringView Rest() const { return {m_units + m_in, m_size - m_in}; }
    /// How much is written, and how long the text is when the rest stays as it is.
    qsizetype Written() const { return m_out; }
    qsizetype Length() const { return m_size - (m_in - m_out); }

    void Keep() { m_units[m_out++] = m_units[m_in++]; }
    void Keep(qsizetype count)
    {
        std::move(m_units + m_in, m_units + m_in + count, m_units + m_out);
        m_in += count;
        m_out += count;
    }
    void Skip(qsizetype count) { m_in += count; }
    /// Skips a run of one character; how long it was.
    qsizetype SkipRun(char16_t unit)
    {
        const qsizetype start = m_in;
        while (Next() == unit && !AtEnd())
            ++m_in;
        return m_in - start;
    }
    void Put(char16_t unit, qsizetype count = 1)
    {
        std::fill_n(m_units + m_out, count, QChar(unit));
        m_out += count;
    }
    void Put(QStringView units)
    {
        for (const QChar unit : units)
            m_units[m_out++] = unit;
    }

    /// Cuts the text where it was written up to.
    void Finish() { m_text.truncate(m_out); }

private:
    QString &m_text;
    QChar *m_units;
    qsizetype m_size;
    qsizetype m_in = 0;
    qsizetype m_out = 0;
};

} // namespace brenix
